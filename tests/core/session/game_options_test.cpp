#include "core/session/game_options.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace tessaly {
namespace {

struct Parsed {
    GameCommandLine line;
    std::string out;
    std::string err;
};

Parsed parse(const std::vector<const char*>& words) {
    std::vector<const char*> arguments{"tessaly"};
    std::copy(words.begin(), words.end(), std::back_inserter(arguments));
    std::ostringstream out;
    std::ostringstream err;
    GameCommandLine line =
        parseGameOptions(static_cast<int>(arguments.size()), arguments.data(), out, err);
    return {std::move(line), out.str(), err.str()};
}

TEST(GameOptions, AreAllReadInAnyOrder) {
    for (const std::vector<const char*>& all :
         {std::vector<const char*>{"my.txt", "--puzzle", "12", "--folder", "/data", "--screenshot",
                                   "out.png", "--developer"},
          {"--developer", "--screenshot=out.png", "--folder=/data", "--puzzle=12", "my.txt"}}) {
        const Parsed parsed = parse(all);
        EXPECT_FALSE(parsed.line.exitStatus);
        EXPECT_EQ(parsed.line.options.file, "my.txt");
        EXPECT_EQ(parsed.line.options.puzzle, 12);
        EXPECT_EQ(parsed.line.options.folder, "/data");
        EXPECT_EQ(parsed.line.options.screenshot, "out.png");
        EXPECT_TRUE(parsed.line.options.developer);
    }
    const GameOptions none = parse({}).line.options;
    EXPECT_TRUE(none.file.empty() && none.puzzle == 0 && !none.developer);
}

TEST(GameOptions, HelpGoesToStandardOutputAndWrongUsageIsOneLineOfError) {
    EXPECT_EQ(parse({"--help"}).line.exitStatus, 0);
    EXPECT_NE(parse({"--help"}).out.find("--screenshot OUT.png"), std::string::npos);
    for (const std::vector<const char*>& wrong : {std::vector<const char*>{"--no-such"},
                                                  {"a.txt", "b.txt"},
                                                  {"--puzzle"},
                                                  {"--puzzle", "0"},
                                                  {"--puzzle", "-3"},
                                                  {"--puzzle", "x"},
                                                  {"--puzzle", "99999999999"}}) {
        const Parsed parsed = parse(wrong);
        EXPECT_EQ(parsed.line.exitStatus, 2) << wrong.back();
        EXPECT_EQ(parsed.out, "");
        EXPECT_EQ(parsed.err.find("tessaly: "), 0U) << parsed.err;
        EXPECT_EQ(parsed.err.find('\n'), parsed.err.size() - 1) << parsed.err;
    }
}

} // namespace
} // namespace tessaly
