#include "core/session/configuration.h"

#include "core/session/start_up.h"
#include "support/core_fakes.h"
#include "support/file_calls.h"
#include "support/temporary_folder.h"

namespace tessaly::configuration_test {

namespace fs = std::filesystem;
using Paths = std::vector<fs::path>;

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

/// A program folder/// A program folder with the configuration in it, and the session of one run.
struct ConfigurationTest : testing::Test {
    ConfigurationTest() {
        session.ProgramFolder = folder.path() / "";
        for (const char* name : {"all.col", "hexabinx.txt"})
            fs::copy_file(fs::path(TESSALY_DATA) / name, folder / name);
    }
    Configuration saved(const Configuration& configuration) const {
        EXPECT_EQ(SavecfgFile(path, configuration).problem, "");
        Configuration read;
        EXPECT_EQ(ReadcfgFile(path, read).problem, "");
        return read;
    }
    /// What is written when this was read.
    std::string rewritten(const std::string& content) const {
        put(path, content);
        Configuration read;
        EXPECT_EQ(ReadcfgFile(path, read).problem, "");
        EXPECT_EQ(saved(read), read);
        return contentOf(path);
    }

    TemporaryFolder folder;
    const fs::path path = folder / "tessaly.cfg";
    Session session;
};

const std::string Defaults = "1,2,2,,,,0,,0\r\nxp.col\r\nArial\r\n\r\n";

TEST_F(ConfigurationTest, WhatIsSavedHasItsPlaceAndIsReadBackAsItWas) {
    EXPECT_EQ(saved({}), Configuration());
    EXPECT_EQ(contentOf(path), Defaults);
    EXPECT_EQ(saved(sample()), sample());
    EXPECT_EQ(contentOf(path), "123456,9,5,1,256,65536,1,16777215,1\r\n"
                               "a, \"b\";c.col\r\nDejaVu Sans, Condensed\r\n"
                               "/home/me/ my \xff puzzles\r\r\n"
                               "/1 , \r\n/2\"\r\n/3\r\r\n/4\r\n/5\r\n");
    Configuration odd;
    odd.PuzPath = "/a\n/b"; // a line feed cannot be stored
    for (const char* recent : {"/c\n/d", "/e"})
        odd.recentFiles.append(recent);
    EXPECT_EQ(saved(odd).PuzPath, "");
    EXPECT_EQ(saved(odd).recentFiles.paths(), Paths{"/e"});
}

TEST_F(ConfigurationTest, EachValueFallsBackAlone) {
    // The nine numbers of the first line, each with values that are none, and what it falls back
    // to.
    const std::tuple<std::string, std::string, std::vector<std::string>> numbers[] = {
        {"7", "1", {"0", "-1", "x", "", "2.5", "2147483648", "9 9"}},
        {"3", "2", {"0", "-3", "10000000000000"}},
        {"4", "2", {"0", "6", "0x3"}},
        {"1", "", {"-1", "16777216", "red"}},
        {"2", "", {"1 2"}},
        {"3", "", {"-1"}},
        {"1", "0", {"-1", "2", "yes"}},
        {"4", "", {"1e3"}},
        {"1", "0", {"2", "1;"}},
    };
    const std::string rest = "\r\na.col\r\nCourier\r\n/p\r\n/r\r\n";
    const auto lineWith = [&numbers](std::size_t index, const std::string& value) {
        std::string line;
        for (std::size_t i = 0; i < std::size(numbers); ++i)
            line.append(i == 0 ? "" : ",").append(i == index ? value : std::get<0>(numbers[i]));
        return line;
    };
    for (std::size_t i = 0; i < std::size(numbers); ++i)
        for (const std::string& wrong : std::get<2>(numbers[i]))
            EXPECT_EQ(rewritten(lineWith(i, std::string(" ").append(wrong)) + rest),
                      lineWith(i, std::get<1>(numbers[i])) + rest)
                << i << ": " << wrong;
    for (const std::string& none : {std::string(), std::string("\xEF\xBB\xBF\r\n\r\n  \n\n \t\n\n"),
                                    std::string(100'000, '\0')})
        EXPECT_EQ(rewritten(none), Defaults);
    const std::string five = "/a\r\n/b\r\n/c\r\n/d\r\n/e\r\n";
    EXPECT_EQ(rewritten("1\n\n\n\n\n/a\r\n  \r\n/b\n\n/c\r\n\t\r\n/d\n/e\n/f"), Defaults + five);
}

TEST(RecentFiles, AKnownPathKeepsItsPlaceAndTheSixthDropsTheOldest) {
    RecentFiles recent;
    for (const char* path : {"/a", "/b", "/c", "/d", "/e", "/b", "/B"})
        recent.AddRecentFile(path);
    EXPECT_EQ(recent.paths(), (Paths{"/B", "/e", "/d", "/c", "/b"}));
}

TEST_F(ConfigurationTest, TheFirstStartOpensTheBundledPuzzlesInTheSchemeOfTheDesktop) {
    put(folder / ".tessaly-0123456789abcdef.tmp", "half a configuration");
    EXPECT_EQ(loadSession(session, DarkScheme).notice, "");
    EXPECT_EQ(folder.names().size(), 2u) << "what a killed process left is cleared up";
    EXPECT_EQ(session.last.path, session.ProgramFolder / "puzzles/easy.txt");
    const Appearance& worn = session.appearance;
    EXPECT_EQ(worn.ActiveScheme, DarkScheme);
    for (const Colour seen : {worn.FixedNumberColour, worn.HexaBorderColour})
        EXPECT_GE(contrastRatio(seen, worn.HexaFillColour), 4.5);
    EXPECT_EQ(worn.HexaFillColour, worn.SchemeColours[slot::Button]);
    EXPECT_EQ(worn.UserNumberColour, worn.SchemeColours[slot::DarkRed]);
    EXPECT_EQ(session.arrangements.wordCount, ArrangementCount);
    EXPECT_EQ(loadSession(session, "none.col").notice, "");
    EXPECT_EQ(session.appearance.ActiveScheme, DefaultScheme);
}

TEST_F(ConfigurationTest, WhatWasSetIsThereAgainAfterARestart) {
    ASSERT_TRUE(loadSession(session).outcome.ok());
    session.puzzle = {"/home/me/a.txt", 12, 40, ""};
    session.recentFiles.AddRecentFile("/home/me/a.txt");
    sample().applyTo(session.appearance);
    EXPECT_EQ(SavecfgFile(session).problem, "");
    // The second time no puzzle was shown, as when the file's disk is not there.
    Session next;
    next.ProgramFolder = session.ProgramFolder;
    for (int run = 0; run < 2; ++run) {
        EXPECT_TRUE(loadSession(next, DarkScheme).outcome.ok());
        EXPECT_TRUE(next.last.path == "/home/me/a.txt" && next.last.number == 12);
        EXPECT_EQ(next.recentFiles, session.recentFiles);
        EXPECT_EQ(next.appearance, session.appearance);
        EXPECT_EQ(SavecfgFile(next).problem, "");
    }
}

TEST_F(ConfigurationTest, AConfigurationThatCannotBeReadIsToldAndNotWrittenOver) {
    const std::string content = "7,3,4,1,2,3,1,4,1\r\nxp.col\r\nArial\r\n\r\n";
    put(path, content);
    {
        // The folder, the schemes and the arrangements are opened first.
        const FileCalls calls(failing("open", EIO, 3));
        EXPECT_EQ(loadSession(session).notice,
                  path.native() + ": cannot be read: Input/output error");
    }
    EXPECT_EQ(SavecfgFile(session).problem, "");
    EXPECT_EQ(contentOf(path), content);
    EXPECT_EQ(loadSession(session).notice, "");
    const FileCalls calls(failing("write", ENOSPC));
    EXPECT_EQ(SavecfgFile(session).problem,
              path.native() + ": cannot be written: No space left on device");
}

TEST_F(ConfigurationTest, ADamagedConfigurationIsKeptBesideBeforeItIsWrittenOver) {
    const fs::path kept = path.native() + ".damaged";
    const std::string whole = "7,3,4,1,,3,1,4,1\r\nxp.col\r\nArial\r\n\r\n";
    for (const auto& [content, isDamaged] : {std::pair<std::string, bool>{whole, false},
                                             {whole.substr(4), true},
                                             {"x" + whole, true},
                                             {whole.substr(0, 30), true},
                                             {whole + "/home/me/a.t", true}}) {
        put(path, content);
        EXPECT_EQ(!loadSession(session).notice.empty(), isDamaged) << content;
        EXPECT_TRUE(SavecfgFile(session).ok());
        EXPECT_EQ(fs::exists(kept) ? contentOf(kept) : "", isDamaged ? content : "");
        fs::remove(kept);
    }
    put(path, "garbled");
    fs::create_directory(kept);
    EXPECT_NE(loadSession(session).notice, "");
    EXPECT_TRUE(SavecfgFile(session).ok());
    EXPECT_EQ(contentOf(path), "garbled") << "nothing could be kept";
}

TEST_F(ConfigurationTest, ADataFileThatIsMissingOrGarbledStopsTheStartUnlessItIsRestored) {
    const auto problem = [this] { return loadSession(session).outcome.problem; };
    for (const char* name : {"hexabinx.txt", "all.col"}) {
        put(folder / name, "255;255;255\r\n");
        EXPECT_TRUE(problem().starts_with((folder / name).native() + ": ")) << problem();
        ProgramFolderSources sources;
        sources.given = sources.shareFolder = folder.path();
        ScriptedPrompts prompts;
        const auto starts = [&](std::deque<int> answers) {
            prompts.answers = std::move(answers);
            return startSession(session, sources, DefaultScheme, prompts).outcome.ok();
        };
        EXPECT_FALSE(starts({})) << "the installed one is no better";
        EXPECT_EQ(prompts.shown.size(), 1u);
        sources.shareFolder = TESSALY_DATA;
        EXPECT_FALSE(starts({answer::No, answer::Ok}));
        EXPECT_EQ(prompts.shown.at(1).text, problem() + "\r\nRestore the installed one?");
        EXPECT_TRUE(starts({answer::Yes}));
        EXPECT_EQ(contentOf((folder / name).native() + ".damaged"), "255;255;255\r\n");
        fs::remove(folder / name);
        EXPECT_NE(problem().find(name), std::string::npos) << problem();
        fs::copy_file(fs::path(TESSALY_DATA) / name, folder / name);
    }
    const FileCalls calls(failing("open", EACCES, 1));
    EXPECT_EQ(problem(), (folder / "all.col").native() + ": cannot be read: Permission denied");
}

TEST_F(ConfigurationTest, ASchemeThatIsGoneOrDamagedIsSaidAndTheBuiltInOneServes) {
    put(folder / "all.col", "xp.col\r\n1;2\r\n");
    for (const auto& [scheme, notice] :
         {std::pair("gone.col", "gone.col not found"), {"xp.col", "line 2"}}) {
        put(path, std::string("1\r\n") + scheme);
        EXPECT_NE(loadSession(session).notice.find(notice), std::string::npos);
        EXPECT_EQ(session.appearance.ActiveScheme, "default.col");
    }
}

} // namespace tessaly::configuration_test
