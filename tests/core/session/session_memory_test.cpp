#include "core/session/configuration.h"

#include "support/file_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tessaly {
namespace {

class SessionMemoryTest : public testing::Test {
protected:
    SessionMemoryTest() {
        session.ProgramFolder = folder.path().string() + "/";
        for (const char* name : {"all.col", "hexabinx.txt"})
            std::filesystem::copy_file(std::filesystem::path(TESSALY_DATA) / name, folder / name);
    }

    test::TemporaryFolder folder;
    Session session;
};

TEST_F(SessionMemoryTest, TheFirstStartOpensTheBundledPuzzlesInTheDefaultScheme) {
    test::put(folder / ".tessaly-0123456789abcdef.tmp", "half a file of a killed process");
    const LoadedSession loaded = loadSession(session);
    EXPECT_EQ(loaded.outcome.problem + loaded.notice, "");
    EXPECT_EQ(session.last.path, session.ProgramFolder / "puzzles/easy.txt");
    EXPECT_EQ(session.appearance.ActiveScheme, "xp.col");
    EXPECT_EQ(session.appearance.HexaFillColour, session.appearance.SchemeColours[slot::Button]);
    EXPECT_EQ(session.arrangements.wordCount, ArrangementCount);
    EXPECT_EQ(folder.names(), (std::set<std::string>{"all.col", "hexabinx.txt"}));
}

TEST_F(SessionMemoryTest, OnlyAFirstStartTakesTheSchemeOfTheDesktop) {
    ASSERT_TRUE(loadSession(session, DarkScheme).outcome.ok());
    EXPECT_EQ(session.appearance.ActiveScheme, DarkScheme);
    EXPECT_GE(
        contrastRatio(session.appearance.FixedNumberColour, session.appearance.HexaFillColour),
        4.5);
    EXPECT_EQ(loadSession(session, "none.col").notice, "");
    EXPECT_EQ(session.appearance.ActiveScheme, DefaultScheme);
    SavecfgFile(session);
    ASSERT_TRUE(loadSession(session, DarkScheme).outcome.ok());
    EXPECT_EQ(session.appearance.ActiveScheme, DefaultScheme);
}

TEST_F(SessionMemoryTest, WhatWasSetIsThereAgainAfterARestart) {
    ASSERT_TRUE(loadSession(session).outcome.ok());
    session.puzzle = {"/home/me/a.txt", 12, 40, ""};
    session.recentFiles.AddRecentFile("/home/me/a.txt");
    session.appearance.SplitHexas = true;
    session.appearance.HexaBorderWidth = 4;
    session.appearance.UserNumberColour = RGB(1, 2, 3);
    SavecfgFile(session);

    Session next;
    next.ProgramFolder = session.ProgramFolder;
    EXPECT_TRUE(loadSession(next).outcome.ok());
    EXPECT_EQ(next.last.path, "/home/me/a.txt");
    EXPECT_EQ(next.last.number, 12);
    EXPECT_EQ(next.recentFiles, session.recentFiles);
    EXPECT_EQ(next.appearance, session.appearance);

    // No puzzle was shown this time, as when the file's disk is not there.
    SavecfgFile(next);
    ASSERT_TRUE(loadSession(session).outcome.ok());
    EXPECT_EQ(session.last.path, "/home/me/a.txt");
    EXPECT_EQ(session.last.number, 12);
}

TEST_F(SessionMemoryTest, AMissingOrGarbledDataFileStopsTheStart) {
    {
        const test::FileCalls calls(test::failing("pread", EIO));
        EXPECT_EQ(loadSession(session).outcome.problem,
                  (folder / "all.col").native() + ": cannot be read: Input/output error");
    }
    for (const char* name : {"hexabinx.txt", "all.col"}) {
        for (const char* garbled : {"", "garbage", "255;255;255\r\n"}) {
            test::put(folder / name, garbled);
            EXPECT_NE(loadSession(session).outcome.problem.find(name), std::string::npos);
        }
        std::filesystem::remove(folder / name);
        EXPECT_NE(loadSession(session).outcome.problem.find(name), std::string::npos);
        std::filesystem::copy_file(std::filesystem::path(TESSALY_DATA) / name, folder / name);
    }
    std::filesystem::remove(folder / "all.col");
    EXPECT_EQ(loadSession(session).outcome.problem,
              "File: all.col is missing\r\nProgram cannot run without this file");
}

TEST_F(SessionMemoryTest, ASchemeThatIsGoneOrDamagedIsSaidAndTheBuiltInOneServes) {
    session.appearance.ActiveScheme = "gone.col";
    SavecfgFile(session);
    EXPECT_EQ(loadSession(session).notice, "Colour Scheme: gone.col not found");
    EXPECT_EQ(session.appearance.ActiveScheme, "default.col");
    std::filesystem::remove(folder / "tessaly.cfg");
    test::put(folder / "all.col", "xp.col\r\n1;2\r\n");
    const LoadedSession loaded = loadSession(session);
    EXPECT_TRUE(loaded.outcome.ok());
    EXPECT_NE(loaded.notice.find("line 2"), std::string::npos) << loaded.notice;
    EXPECT_EQ(session.appearance.ActiveScheme, "default.col");
}

} // namespace
} // namespace tessaly
