// Hands the files of a folder to a fuzz target, one after another: what once broke it is tried
// again by every run of the tests, with any compiler. fuzz_replay_... FOLDER

#include "fuzz_target.h"
#include "support/temporary_folder.h"

#include <vector>

int main(int argc, char** argv) {
    if (argc != 2)
        return EXIT_FAILURE;
    for (const auto& file : std::filesystem::directory_iterator(argv[1])) {
        std::cout << file.path().filename().string() << std::endl;
        const std::string input = tessaly::test::contentOf(file.path());
        const std::vector<std::uint8_t> bytes(input.begin(), input.end());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    return EXIT_SUCCESS;
}
