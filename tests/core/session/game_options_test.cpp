#include "core/session/game_options.h"

#include "core/base/product.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <vector>

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
    const Parsed none = parse({});
    EXPECT_FALSE(none.line.exitStatus);
    EXPECT_TRUE(none.line.options.file.empty());
    EXPECT_EQ(none.line.options.puzzle, 0);
    EXPECT_FALSE(none.line.options.developer);

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
        EXPECT_EQ(parsed.out + parsed.err, "");
    }
}

TEST(GameOptions, HelpAndVersionGoToStandardOutput) {
    const Parsed help = parse({"--help"});
    EXPECT_EQ(help.line.exitStatus, 0);
    EXPECT_EQ(help.err, "");
    for (const char* told : {"FILE", "--puzzle N ", "--folder DIR", "--screenshot OUT.png",
                             "--developer", "Example: "})
        EXPECT_NE(help.out.find(told), std::string::npos) << told;
    const Parsed version = parse({"--version"});
    EXPECT_EQ(version.line.exitStatus, 0);
    EXPECT_EQ(version.out, std::string("Tessaly ") + Product::Version + "\n");
}

TEST(GameOptions, WrongUsageIsOneLineOnStandardError) {
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
