#include "core/session/game_options.h"
#include "core/session/program_folder.h"
#include "support/file_calls.h"
#include "support/temporary_folder.h"

#include <future>
#include <map>
#include <sstream>

namespace tessaly::start_test {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

TEST(GameOptions, AreReadInAnyOrderOrRefusedInOneLine) {
    const std::pair<std::vector<const char*>, std::string> rows[] = {
        {{"tessaly", "my.txt", "--puzzle", "012", "--folder", "/data"}, "my.txt 12 /data  0"},
        {{"tessaly", "--developer", "--screenshot=out.png", "my.txt"}, "my.txt 0  out.png 1"},
        {{"tessaly", "--puzzle", "0"},
         "tessaly: --puzzle: 0 is no whole number from 1 to 2147483647 (try --help)\n2"}};
    for (const auto& [words, told] : rows) {
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

struct ProgramFolderTest : testing::Test {
    ProgramFolderTest() {
        fs::create_directories(share / "puzzles");
        fs::create_directory(bin);
        fs::create_directories(data);
        for (const char* name : {"all.col", "hexabinx.txt", "puzzles/easy.txt"})
            put(share / name, std::string("shipped ") + name);
    }

    /// The folder, or why there is none; paths begin in the root of it all.
    std::string found() const {
        fs::path folder;
        const Outcome outcome = findProgramFolder(sources, folder);
        const std::string answer = outcome.ok() ? folder.native() : outcome.problem;
        const std::string start = root / "";
        return answer.starts_with(start) ? answer.substr(start.size()) : answer;
    }
    /// All files in the user's data home, and what they hold.
    Files inHome() const {
        Files files;
        for (const auto& entry : fs::recursive_directory_iterator(data))
            if (!entry.is_directory())
                files[entry.path().lexically_relative(data)] = contentOf(entry.path());
        return files;
    }

    TemporaryFolder root;
    fs::path share = root / "usr/share/tessaly-data";
    fs::path bin = root / "usr/bin";
    fs::path data = root / "home/data";
    fs::path userFolder = data / "tessaly";
    ProgramFolderSources sources{
        .given = {}, .executableFolder = bin, .shareFolder = share, .dataHome = data, .home = {}};
    const std::string Found = "home/data/tessaly/";
    const Files AllShipped{{"tessaly/all.col", "shipped all.col"},
                           {"tessaly/hexabinx.txt", "shipped hexabinx.txt"},
                           {"tessaly/puzzles/easy.txt", "shipped puzzles/easy.txt"}};
};

TEST_F(ProgramFolderTest, IsTheGivenOneElseTheExecutablesElseTheUsers) {
    put(bin / "all.col", "");
    // Only the system knows where ".." leads.
    for (const auto& [given, answer] : {std::pair("usr/share/../", "usr/share/../"),
                                        {"none", "none: No such file or directory"},
                                        {"usr/bin/all.col", "usr/bin/all.col: is no folder"}}) {
        sources.given = root / given;
        EXPECT_EQ(found(), answer);
    }
    sources.given.clear();
    EXPECT_EQ(found(), "usr/bin/");
    EXPECT_EQ(inHome(), Files());
    fs::remove(bin / "all.col");
    EXPECT_EQ(found(), Found);
    sources.home = root / "me";
    for (const char* notCounting : {"", "relative/data"}) {
        sources.dataHome = notCounting;
        EXPECT_EQ(found(), "me/.local/share/tessaly/");
    }
    sources.home.clear();
    EXPECT_NE(found().find("neither HOME nor"), std::string::npos);
    const auto here = ProgramFolderSources::ofThisProcess();
    EXPECT_TRUE(fs::exists(here.executableFolder / "tessaly_core_tests"));
    EXPECT_EQ(here.shareFolder, here.executableFolder.parent_path() / "share/tessaly-data");
}

TEST_F(ProgramFolderTest, TheFirstStartCopiesWhatIsShippedAndLaterOnesRenewTheProgramsFiles) {
    // A start that was killed while it filled the folder.
    fs::create_directories(data / ".tessaly.new/puzzles");
    put(data / ".tessaly.new/puzzles/half-written", "");
    fs::create_directory(userFolder);
    EXPECT_EQ(found(), Found);
    EXPECT_EQ(inHome(), AllShipped);

    put(userFolder / "puzzles/easy.txt", "my progress");
    fs::remove(userFolder / "all.col");
    put(share / "puzzles/hard.txt", "new library");
    // Files need not look newer: some systems give all the same time.
    put(share / "hexabinx.txt", "second release");
    fs::last_write_time(share / "hexabinx.txt", fs::file_time_type::min());
    put(share / "tessaly.htm", "new page");
    fs::create_directory(share / "manual");
    put(share / "manual/side.png", "new drawing");
    EXPECT_EQ(found(), Found);
    EXPECT_EQ(inHome(), (Files{{"tessaly/hexabinx.txt", "second release"},
                               {"tessaly/manual/side.png", "new drawing"},
                               {"tessaly/puzzles/easy.txt", "my progress"},
                               {"tessaly/tessaly.htm", "new page"}}));
    fs::remove_all(share);
    EXPECT_EQ(found(), Found) << "an installed folder is enough";
}

TEST_F(ProgramFolderTest, AFirstStartThatFailsSaysWhyAndLeavesNothingBehind) {
    int flushes = 0;
    {
        const auto count = [&](std::string_view name, int) {
            return flushes += name == "fsync", 0;
        };
        const FileCalls calls(count);
        ASSERT_EQ(found(), Found);
    }
    // The last two flush the filled folder and the one that it lies in.
    for (const auto& [call, first, place] : {std::tuple("open", 0, "home/data"),
                                             {"write", 0, "home/data/.tessaly.new/all.col"},
                                             {"rename", 0, "home/data/tessaly"},
                                             {"fsync", flushes - 2, "home/data/.tessaly.new"},
                                             {"fsync", flushes - 1, "home/data/tessaly"}}) {
        fs::remove_all(userFolder);
        const FileCalls calls(failing(call, ENOSPC, first));
        const std::string answer = found();
        EXPECT_TRUE(answer.starts_with(std::string(place) + ": ") &&
                    answer.ends_with(": No space left on device"))
            << call << ": " << answer;
        EXPECT_EQ(inHome().empty(), call != std::string("fsync") || first < flushes - 1);
    }
    fs::remove_all(userFolder);
    // Even a file that the program could do without is not left out when it is only in trouble.
    fs::create_directory(share / "tessaly.htm");
    EXPECT_TRUE(found().starts_with("usr/share/tessaly-data/tessaly.htm: ")) << found();
    fs::remove(share / "tessaly.htm");
    fs::remove(share / "hexabinx.txt");
    EXPECT_TRUE(found().starts_with("usr/share/tessaly-data/hexabinx.txt: ")) << found();
    EXPECT_TRUE(fs::is_empty(data));
    put(userFolder, "a file");
    EXPECT_EQ(found(), "home/data/tessaly: is no folder");
    fs::remove(userFolder);
    fs::create_symlink(userFolder, userFolder);
    EXPECT_EQ(found(), "home/data/tessaly: cannot be examined: Too many levels of symbolic links");
    fs::remove_all(root / "home");
    put(root / "home", "a file");
    EXPECT_TRUE(found().starts_with("home")) << found();
    // Where not even the system administrator can make a folder.
    sources.dataHome = "/proc";
    EXPECT_TRUE(found().starts_with("/proc/.tessaly.new: cannot be created: ")) << found();
}

TEST_F(ProgramFolderTest, TwoFirstStartsAtOnceBothFindAWholeFolder) {
    for (int round = 0; round < 30; ++round) {
        fs::remove_all(data);
        const auto start = [this] { return found() == Found && inHome() == AllShipped; };
        auto other = std::async(std::launch::async, start);
        EXPECT_TRUE(start());
        EXPECT_TRUE(other.get());
    }
}

} // namespace tessaly::start_test
