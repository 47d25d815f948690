#include "core/session/configuration.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;
using Paths = std::vector<std::filesystem::path>;

class ConfigurationTest : public testing::Test {
protected:
    Configuration reading(const std::string& content) {
        put(path, content);
        return ReadcfgFile(path);
    }

    test::TemporaryFolder folder;
    std::string path = folder / "tessaly.cfg";
};

Configuration sample() {
    Configuration sample;
    sample.PuzNum = 123456;
    sample.PrintLineWidth = 9;
    sample.HexaBorderWidth = 5;
    sample.FixedNumberColour = RGB(1, 0, 0);
    sample.UserNumberColour = RGB(0, 1, 0);
    sample.HexaBorderColour = RGB(0, 0, 1);
    sample.SplitHexas = true;
    sample.HexaFillColour = White;
    sample.NumBorder = true;
    sample.ActiveScheme = "a, \"b\";c.col";
    sample.NumberFont = "DejaVu Sans, Condensed";
    sample.PuzPath = "/home/me/ my \xff puzzles\r";
    for (const char* recent : {"/1 , ", "/2\"", "/3\r", "/4", "/5"})
        sample.recentFiles.append(recent);
    return sample;
}

TEST_F(ConfigurationTest, TheFileHasItsLinesAndNumbersInOrderAndIsReadBack) {
    for (const auto& [saved, content] :
         {std::pair(sample(), "123456,9,5,1,256,65536,1,16777215,1\r\n"
                              "a, \"b\";c.col\r\nDejaVu Sans, Condensed\r\n"
                              "/home/me/ my \xff puzzles\r\r\n"
                              "/1 , \r\n/2\"\r\n/3\r\r\n/4\r\n/5\r\n"),
          {Configuration(), "1,2,2,,,,0,,0\r\nxp.col\r\nArial\r\n\r\n"}}) {
        ASSERT_EQ(SavecfgFile(path, saved).problem, "");
        EXPECT_EQ(contentOf(path), content);
        EXPECT_EQ(ReadcfgFile(path), saved);
    }
}

TEST_F(ConfigurationTest, EachValueFallsBackAlone) {
    const std::string rest = "\r\na.col\r\nCourier\r\n/p\r\n/r\r\n";
    const std::vector<std::string> good{"7", "3", "4", "1", "2", "3", "1", "4", "1"};
    Configuration expected = reading("7,3,4,1,2,3,1,4,1" + rest);
    EXPECT_EQ(expected.PuzNum, 7);
    EXPECT_EQ(expected.PuzPath, "/p");

    const struct {
        std::size_t index;
        std::vector<std::string> values;
        void (*reset)(Configuration&);
    } fields[] = {
        {0, {"0", "-1", "x", "", "2.5", "2147483648", "9 9"}, [](auto& c) { c.PuzNum = 1; }},
        {1, {"0", "-3", "10000000000000"}, [](auto& c) { c.PrintLineWidth = 2; }},
        {2, {"0", "6", "0x3"}, [](auto& c) { c.HexaBorderWidth = 2; }},
        {3, {"-1", "16777216", "red"}, [](auto& c) { c.FixedNumberColour.reset(); }},
        {4, {"-1", "16777216", ""}, [](auto& c) { c.UserNumberColour.reset(); }},
        {5, {"-1", "16777216", "1 2"}, [](auto& c) { c.HexaBorderColour.reset(); }},
        {6, {"-1", "2", "yes"}, [](auto& c) { c.SplitHexas = false; }},
        {7, {"-1", "16777216", "1e3"}, [](auto& c) { c.HexaFillColour.reset(); }},
        {8, {"-1", "2", "1;"}, [](auto& c) { c.NumBorder = false; }},
    };
    for (const auto& field : fields) {
        Configuration fallenBack = expected;
        field.reset(fallenBack);
        for (const std::string& value : field.values) {
            std::string line;
            for (std::size_t i = 0; i < good.size(); ++i)
                line += (i == 0 ? "" : ", ") + (i == field.index ? value : good[i]);
            EXPECT_EQ(reading(line + rest), fallenBack) << line;
        }
    }
}

TEST_F(ConfigurationTest, WhatIsMissingKeepsItsDefault) {
    EXPECT_EQ(ReadcfgFile(path), Configuration());
    EXPECT_EQ(ReadcfgFile(folder.path()), Configuration());
    for (const std::string& bare :
         {std::string(), "\xEF\xBB\xBF" + std::string("1\n\n \t\r\n"), std::string(100'000, '\0')})
        EXPECT_EQ(reading(bare), Configuration());
    Configuration expected;
    expected.PuzNum = 12;
    expected.PrintLineWidth = 4;
    expected.ActiveScheme = "sky.col";
    EXPECT_EQ(reading("12,4,,,,,,,,99\nsky.col"), expected);
}

TEST_F(ConfigurationTest, RecentFilesLeaveNoGapsAndTheSixthIsDropped) {
    EXPECT_EQ(reading("1\r\n\r\n\r\n\r\n/a\r\n  \r\n/b\n\n/c\r\n\t\r\n/d\r\n/e\r\n/f")
                  .recentFiles.paths(),
              (Paths{"/a", "/b", "/c", "/d", "/e"}));
    RecentFiles recent;
    for (const char* each : {"/a", "/b", "/c", "/d", "/e", "/b"})
        recent.AddRecentFile(each);
    EXPECT_EQ(recent.paths(), (Paths{"/e", "/d", "/c", "/b", "/a"})) << "each keeps its place";
    recent.AddRecentFile("/B");
    EXPECT_EQ(recent.paths(), (Paths{"/B", "/e", "/d", "/c", "/b"}));

    Configuration configuration;
    configuration.PuzPath = "/a\n/b";
    configuration.recentFiles.append("/c\n/d");
    configuration.recentFiles.append("/e");
    ASSERT_TRUE(SavecfgFile(path, configuration).ok());
    const Configuration read = ReadcfgFile(path);
    EXPECT_EQ(read.PuzPath, "") << "a path with a line feed is left out";
    EXPECT_EQ(read.recentFiles.paths(), Paths{"/e"});
}

TEST_F(ConfigurationTest, AFailureToSaveIsToldAndKeepsTheOldFile) {
    std::filesystem::create_directory(path);
    EXPECT_EQ(SavecfgFile(path, sample()).problem.find(path), 0U);
    EXPECT_EQ(folder.names(), std::set<std::string>{"tessaly.cfg"});
}

TEST(ConfigurationAndAppearance, ColoursThatWereNeverChosenComeFromTheScheme) {
    Appearance appearance;
    appearance.SchemeColours[slot::DarkRed] = RGB(9, 9, 9);
    appearance.SchemeColours[slot::Button] = RGB(4, 4, 4);
    appearance.HexaBorderColour = White;
    Configuration().applyTo(appearance);
    EXPECT_EQ(appearance.FixedNumberColour, White) << "black would not read";
    EXPECT_EQ(appearance.HexaBorderColour, Black);
    EXPECT_EQ(appearance.UserNumberColour, RGB(9, 9, 9));
    EXPECT_EQ(appearance.HexaFillColour, RGB(4, 4, 4));
    appearance.SchemeColours[slot::Button] = RGB(250, 250, 250);
    Configuration().applyTo(appearance);
    EXPECT_EQ(appearance.FixedNumberColour, Black);
}

} // namespace
} // namespace tessaly
