// Hands the files of a folder to a fuzz target, one after another: what once broke it is tried
// again by every run of the tests, with any compiler. fuzz_replay_... FOLDER

#include "support/temporary_folder.h"

#include <cstdint>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int count = 0;
    for (const auto& file : std::filesystem::directory_iterator(argc == 2 ? argv[1] : "")) {
        std::cout << file.path().filename().string() << std::endl;
        const std::string input = tessaly::contentOf(file.path());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), // NOLINT
                               input.size());
        ++count;
    }
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
