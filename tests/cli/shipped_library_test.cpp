#include "support/command_line.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using test::contentOf;
using test::linesOf;
using test::runCommand;

// The seeds are those of script/make-library, which makes the files anew.
TEST(ShippedLibrary, IsWhatItsSeedsGiveByteForByte) {
    struct Case {
        std::string name;
        std::string seed;
    };
    for (const auto& [name, seed] : {Case{"easy", "1"}, Case{"hard", "2"}}) {
        const std::string path = TESSALY_DATA "/puzzles/" + name + ".txt";
        const std::string made =
            runCommand({"create", "--difficulty", name, "--count", "500", "--seed", seed}).out;
        EXPECT_EQ(linesOf(made, "\r\n").size(), 500U);
        EXPECT_TRUE(contentOf(path) == made) << path;
        EXPECT_EQ(runCommand({"check", path}).out, path + ": 500 puzzles checked, 0 findings\n");
    }
}

} // namespace
} // namespace tessaly
