// Hands the files of a folder to a fuzz target, one after another: what once broke it is tried
// again by every run of the tests, with any compiler. fuzz_replay_... FOLDER

#include "fuzz_target.h"
#include "support/temporary_folder.h"

#include <vector>

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& file : std::filesystem::directory_iterator(argv[i])) {
            const std::string input = tessaly::test::contentOf(file.path());
            const std::vector<std::uint8_t> bytes(input.begin(), input.end());
            std::cout << file.path().filename().string() << std::endl;
            LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
            ++count;
        }
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
