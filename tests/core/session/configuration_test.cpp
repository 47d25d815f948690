#include "core/session/configuration.h"

#include "support/file_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::put;
using Paths = std::vector<fs::path>;

class ConfigurationTest : public testing::Test {
protected:
    Configuration readBack() {
        Configuration configuration;
        EXPECT_EQ(ReadcfgFile(path, configuration).problem, "");
        return configuration;
    }
    Configuration reading(const std::string& content) {
        put(path, content);
        return readBack();
    }

    test::TemporaryFolder folder;
    fs::path path = folder / "tessaly.cfg";
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

TEST_F(ConfigurationTest, WhatIsSavedHasItsPlaceAndIsReadBackAsItWas) {
    const std::pair<Configuration, std::string> rows[] = {
        {sample(), "123456,9,5,1,256,65536,1,16777215,1\r\n"
                   "a, \"b\";c.col\r\nDejaVu Sans, Condensed\r\n"
                   "/home/me/ my \xff puzzles\r\r\n"
                   "/1 , \r\n/2\"\r\n/3\r\r\n/4\r\n/5\r\n"},
        {{}, "1,2,2,,,,0,,0\r\nxp.col\r\nArial\r\n\r\n"},
    };
    for (const auto& [saved, content] : rows) {
        EXPECT_EQ(SavecfgFile(path, saved).problem, "");
        EXPECT_EQ(contentOf(path), content);
        EXPECT_EQ(readBack(), saved);
    }
    Configuration odd;
    odd.PuzPath = "/a\n/b";
    odd.recentFiles.append("/c\n/d");
    odd.recentFiles.append("/e");
    EXPECT_TRUE(SavecfgFile(path, odd).ok());
    EXPECT_EQ(readBack().PuzPath, "") << "a line feed cannot be stored";
    EXPECT_EQ(readBack().recentFiles.paths(), Paths{"/e"});
}

TEST_F(ConfigurationTest, EachValueFallsBackAlone) {
    const std::string rest = "\r\na.col\r\nCourier\r\n/p\r\n/r\r\n";
    const std::vector<std::string> good{"7", "3", "4", "1", "2", "3", "1", "4", "1"};
    const Configuration expected = reading("7,3,4,1,2,3,1,4,1" + rest);
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
    for (const std::string& none : {std::string(), std::string("\xEF\xBB\xBF\r\n\r\n  \n\n \t\n\n"),
                                    std::string(100'000, '\0')})
        EXPECT_EQ(reading(none), Configuration());
    fs::remove(path);
    EXPECT_EQ(readBack(), Configuration());
    EXPECT_EQ(reading("1\n\n\n\n\n/a\r\n  \r\n/b\n\n/c\r\n\t\r\n/d\n/e\n/f").recentFiles.paths(),
              (Paths{"/a", "/b", "/c", "/d", "/e"}));
}

TEST(RecentFiles, AKnownPathKeepsItsPlaceAndTheSixthDropsTheOldest) {
    RecentFiles recent;
    for (const char* path : {"/a", "/b", "/c", "/d", "/e", "/b"})
        recent.AddRecentFile(path);
    EXPECT_EQ(recent.paths(), (Paths{"/e", "/d", "/c", "/b", "/a"}));
    recent.AddRecentFile("/B");
    EXPECT_EQ(recent.paths(), (Paths{"/B", "/e", "/d", "/c", "/b"}));
}

// ---- one run and the next

class SessionMemoryTest : public testing::Test {
protected:
    SessionMemoryTest() {
        session.ProgramFolder = folder.path() / "";
        for (const char* name : {"all.col", "hexabinx.txt"})
            fs::copy_file(fs::path(TESSALY_DATA) / name, folder / name);
    }

    test::TemporaryFolder folder;
    Session session;
};

TEST_F(SessionMemoryTest, TheFirstStartOpensTheBundledPuzzlesInTheSchemeOfTheDesktop) {
    put(folder / ".tessaly-0123456789abcdef.tmp", "half a configuration");
    EXPECT_EQ(loadSession(session, DarkScheme).notice, "");
    EXPECT_EQ(folder.names().size(), 2u) << "what a killed process left is cleared up";
    EXPECT_EQ(session.last.path, session.ProgramFolder / "puzzles/easy.txt");
    EXPECT_EQ(session.appearance.ActiveScheme, DarkScheme);
    const Appearance& worn = session.appearance;
    EXPECT_GE(contrastRatio(worn.FixedNumberColour, worn.HexaFillColour), 4.5);
    EXPECT_EQ(worn.HexaFillColour, worn.SchemeColours[slot::Button]);
    EXPECT_EQ(worn.UserNumberColour, worn.SchemeColours[slot::DarkRed]);
    EXPECT_EQ(session.arrangements.wordCount, ArrangementCount);
    EXPECT_EQ(loadSession(session, "none.col").notice, "");
    EXPECT_EQ(session.appearance.ActiveScheme, DefaultScheme);
}

TEST_F(SessionMemoryTest, WhatWasSetIsThereAgainAfterARestart) {
    ASSERT_TRUE(loadSession(session).outcome.ok());
    session.puzzle = {"/home/me/a.txt", 12, 40, ""};
    session.recentFiles.AddRecentFile("/home/me/a.txt");
    Configuration chosen = sample();
    chosen.applyTo(session.appearance);
    EXPECT_EQ(SavecfgFile(session).problem, "");

    // The second time no puzzle was shown, as when the file's disk is not there.
    Session next;
    next.ProgramFolder = session.ProgramFolder;
    for (int run = 0; run < 2; ++run) {
        EXPECT_TRUE(loadSession(next, DarkScheme).outcome.ok());
        EXPECT_EQ(next.last.path, "/home/me/a.txt");
        EXPECT_EQ(next.last.number, 12);
        EXPECT_EQ(next.recentFiles, session.recentFiles);
        EXPECT_EQ(next.appearance, session.appearance);
        EXPECT_EQ(SavecfgFile(next).problem, "");
    }
}

TEST_F(SessionMemoryTest, AConfigurationThatCannotBeReadIsToldAndNotWrittenOver) {
    put(folder / "tessaly.cfg", "7,3\r\nsky.col\r\n");
    {
        // The folder, the schemes and the arrangements are opened first.
        const test::FileCalls calls(test::failing("open", EIO, 3));
        EXPECT_EQ(loadSession(session).notice,
                  (folder / "tessaly.cfg").native() + ": cannot be read: Input/output error");
    }
    EXPECT_EQ(SavecfgFile(session).problem, "");
    EXPECT_EQ(contentOf(folder / "tessaly.cfg"), "7,3\r\nsky.col\r\n");
    ASSERT_EQ(loadSession(session).notice, "");
    const test::FileCalls calls(test::failing("write", ENOSPC));
    EXPECT_EQ(SavecfgFile(session).problem,
              (folder / "tessaly.cfg").native() + ": cannot be written: No space left on device");
}

TEST_F(SessionMemoryTest, AMissingOrGarbledDataFileStopsTheStart) {
    for (const char* name : {"hexabinx.txt", "all.col"}) {
        for (const char* garbled : {"", "garbage", "255;255;255\r\n"}) {
            put(folder / name, garbled);
            const LoadedSession loaded = loadSession(session);
            EXPECT_TRUE(loaded.outcome.problem.starts_with((folder / name).native() + ": "));
            EXPECT_EQ(loaded.holdsNoScheme, std::string_view(name) == "all.col");
        }
        fs::remove(folder / name);
        EXPECT_NE(loadSession(session).outcome.problem.find(name), std::string::npos);
        fs::copy_file(fs::path(TESSALY_DATA) / name, folder / name);
    }
    const test::FileCalls calls(test::failing("open", EACCES, 1));
    EXPECT_EQ(loadSession(session).outcome.problem,
              (folder / "all.col").native() + ": cannot be read: Permission denied");
}

TEST_F(SessionMemoryTest, ASchemeThatIsGoneOrDamagedIsSaidAndTheBuiltInOneServes) {
    put(folder / "all.col", "xp.col\r\n1;2\r\n");
    for (const auto& [scheme, notice] : {std::pair("gone.col", "Colour Scheme: gone.col not found"),
                                         std::pair("xp.col", "line 2")}) {
        session.appearance.ActiveScheme = scheme;
        EXPECT_TRUE(SavecfgFile(session).ok());
        const LoadedSession loaded = loadSession(session);
        EXPECT_TRUE(loaded.outcome.ok());
        EXPECT_NE(loaded.notice.find(notice), std::string::npos) << loaded.notice;
        EXPECT_EQ(session.appearance.ActiveScheme, "default.col");
    }
}

} // namespace
} // namespace tessaly
