#include "core/session/game_options.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tessaly {
namespace {

TEST(GameOptions, AreReadInAnyOrderOrRefusedInOneLine) {
    struct Case {
        std::vector<const char*> words;
        std::string told;
    };
    for (const auto& [words, told] : std::vector<Case>{
             {{"tessaly"}, " 0   0"},
             {{"tessaly", "my.txt", "--puzzle", "012", "--folder", "/data", "--screenshot",
               "out.png", "--developer"},
              "my.txt 12 /data out.png 1"},
             {{"tessaly", "--developer", "--screenshot=out.png", "--puzzle=12", "my.txt"},
              "my.txt 12  out.png 1"},
             {{"tessaly", "--no-such"}, "tessaly: there is no option --no-such (try --help)\n2"},
             {{"tessaly", "a.txt", "b.txt"},
              "tessaly: The following argument was not expected: b.txt (try --help)\n2"},
             {{"tessaly", "--puzzle", "0"},
              "tessaly: --puzzle: 0 is no whole number from 1 to 2147483647 (try --help)\n2"},
         }) {
        std::ostringstream said;
        const auto [options, status] =
            parseGameOptions(static_cast<int>(words.size()), words.data(), said, said);
        if (status)
            said << *status;
        else
            said << options.file.native() << ' ' << options.puzzle << ' ' << options.folder.native()
                 << ' ' << options.screenshot.native() << ' ' << options.developer;
        EXPECT_EQ(said.str(), told);
    }
}

} // namespace
} // namespace tessaly
