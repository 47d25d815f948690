#include "core/options/scheme_library.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;
using Names = std::vector<std::string>;

/// A scheme whose slots are all different; slot 2 is (`base`, 2, 3).
SchemeColours sampleColours(int base) {
    SchemeColours colours{};
    for (std::size_t slot = 0; slot < StoredSlotCount; ++slot)
        colours[slot] = RGB(base + static_cast<int>(slot) - 2, 2, 3);
    return colours;
}

/// `count` colour lines as they are written.
std::string colourLines(int base, int count = 13) {
    std::string lines;
    for (int slot = 0; slot < count; ++slot)
        lines += " " + std::to_string(base + slot - 2) + "; 2; 3\r\n";
    return lines;
}

std::string record(const std::string& header, int base) {
    return header + "\r\n" + colourLines(base);
}

class SchemeLibraryTest : public testing::Test {
protected:
    void setFile(const std::string& content) {
        put(m_file, content);
        ASSERT_EQ(library.RefreshSchemeList().problem, "");
    }
    std::string file() const { return contentOf(m_file); }
    std::string problemOfLoading(const std::string& scheme) {
        return library.LoadScheme(scheme, appearance).problem;
    }
    std::string problemOfAdding(const std::string& name) {
        return library.AddScheme(name, sampleColours(100)).problem;
    }

    test::TemporaryFolder folder;
    std::filesystem::path m_file = folder / "all.col";
    SchemeLibrary library{folder.path() / ""};
    Appearance appearance;
    SchemeColours before = appearance.SchemeColours;
};

TEST_F(SchemeLibraryTest, ListsEveryLineWithTheExtensionUpToItsFirstOne) {
    const std::pair<std::string, Names> rows[] = {
        {"", {}},
        {"\xEF\xBB\xBF" + record("xp.col", 10) + "last.col", {"xp", "last"}},
        {"Été.col\nx.colour.col\n.col\nno scheme\r\na;b.col", {"Été", "x", "", "a;b"}},
        {record("Ocean.col", 50) + record("Ocean.col", 90), {"Ocean", "Ocean"}},
    };
    for (const auto& [content, names] : rows) {
        setFile(content);
        EXPECT_EQ(library.names(), names);
    }
}

TEST_F(SchemeLibraryTest, LoadsTheFirstRecordWithExactlyThatHeader) {
    setFile(record("ocean.col", 50) + "Ocean.col\r\n" + colourLines(100, 12) +
            "0.5;\t1.5;254.5;9;x\r\n" + record("Ocean.col", 150));
    appearance.SchemeColours[13] = 99;
    ASSERT_EQ(problemOfLoading("Ocean.col"), "");
    EXPECT_EQ(appearance.SchemeColours[slot::Background], RGB(100, 2, 3));
    EXPECT_EQ(appearance.SchemeColours[12], RGB(0, 2, 254)) << "rounded, halves to even";
    EXPECT_EQ(appearance.SchemeColours[13], 99U);
    EXPECT_EQ(appearance.ActiveScheme, "xp.col") << "loading alone does not choose a scheme";

    const SchemeColours loaded = appearance.SchemeColours;
    EXPECT_EQ(problemOfLoading("OCEAN.col"), "Colour Scheme: OCEAN.col not found");
    EXPECT_EQ(appearance.ActiveScheme, "default.col");
    EXPECT_EQ(appearance.SchemeColours, loaded);
    ASSERT_EQ(problemOfLoading("DEFAULT.COL"), "");
    SchemeColours builtIn = loaded;
    builtIn[2] = builtIn[4] = DesignColours[slot::Background];
    builtIn[3] = Black;
    EXPECT_EQ(appearance.SchemeColours, builtIn);
}

TEST_F(SchemeLibraryTest, DamagedRecordsAreRefusedWithTheLineAndChangeNothing) {
    for (const char* line : {"1;2", "", "a;b;c", "1;2;", "1;;3", "256;0;0", "0;-1;0", "0;255.6;0",
                             "1;2;3x", "nan;0;0", "1e400;0;0", "next.col"}) {
        put(m_file, "bad.col\r\n" + colourLines(100, 5) + line + "\r\n" + colourLines(105, 7));
        EXPECT_NE(problemOfLoading("bad.col").find("all.col: line 7: this is no colour"),
                  std::string::npos)
            << line;
    }
    const std::string shortOne = "a.col\r\n" + colourLines(50, 12);
    for (const auto& [content, problem] :
         {std::pair<std::string, std::string>{shortOne, "12 colours instead of 13"},
          {"a.col", "0 colours instead of 13"},
          {shortOne + record("next.col", 60), "line 14: this is no colour"}}) {
        put(m_file, content);
        EXPECT_NE(problemOfLoading("a.col").find(problem), std::string::npos) << problem;
    }
    EXPECT_EQ(appearance.SchemeColours, before);
}

TEST_F(SchemeLibraryTest, AddsTheNameInLowerCaseAndRefusesItInAnyCaseFromThenOn) {
    const std::string xp = record("xp.col", 50);
    setFile(xp.substr(0, xp.size() - 2)); // whose last line is ended first
    EXPECT_EQ(SchemeLibrary(folder.path() / "").AddScheme("Ocean", sampleColours(100)).problem, "");
    EXPECT_EQ(problemOfAdding("OCEAN"), "Colour Scheme: OCEAN already exists");
    EXPECT_EQ(file(), xp + record("ocean.col", 100));
    EXPECT_EQ(problemOfAdding("ÉTÉ×"), "");
    EXPECT_EQ(problemOfAdding("été×"), "Colour Scheme: été× already exists");
    EXPECT_EQ(library.names(), (Names{"xp", "ocean", "été×"}));
    EXPECT_EQ(problemOfAdding("two\nlines"),
              "Error in adding Colour Scheme:\r\nA name cannot hold a line break");
    for (const std::string& name :
         {std::string("semi;colon"), std::string(300, 'n'), std::string(" "),
          std::string("no \xff text"), std::string("nul\0l", 5), std::string("my.colours")}) {
        EXPECT_EQ(problemOfAdding(name), "");
        EXPECT_EQ(library.names().back(), name.substr(0, name.find(".col")));
        EXPECT_EQ(problemOfLoading(name + ".col"), "") << name;
    }
}

TEST_F(SchemeLibraryTest, ReplacesAndDeletesEveryRecordOfTheNameAndNothingElse) {
    const std::string next = record("next.col", 60);
    std::string odd = record("A.col", 60) + "stray line\n";
    std::erase(odd, '\r');
    const std::string two = record("a.col", 50) + odd + record("a.col", 70) + odd;
    const std::string ofTwelve = "a.col\r\n" + colourLines(50, 12);
    const std::string ofFourteen = "a.col\r\n" + colourLines(50, 14);
    const std::string changed = record("a.col", 100);
    const struct {
        std::string content, replaced, deleted;
    } rows[] = {
        {two, changed + odd + changed + odd, odd + odd},
        {next, next, next},
        {ofTwelve + next, changed + next, next}, // the neighbour does not go with it
        {"a.col\r\n" + next, changed + next, next},
        {next + ofTwelve, next + changed, next},
        {ofFourteen + next, changed + " 61; 2; 3\r\n" + next, " 61; 2; 3\r\n" + next},
    };
    for (const auto& [content, replaced, deleted] : rows) {
        setFile(content);
        EXPECT_EQ(library.ReplaceScheme("A", sampleColours(100)).problem, "");
        EXPECT_EQ(file(), replaced);
        EXPECT_EQ(contentOf(folder / "newall.cox"), replaced);
        setFile(content);
        EXPECT_EQ(library.DeleteScheme("A").problem, "");
        EXPECT_EQ(file(), deleted);
        EXPECT_EQ(std::count(library.names().begin(), library.names().end(), "a"), 0);
    }
    EXPECT_EQ(folder.names(), (std::set<std::string>{"all.col", "newall.cox"}));
}

TEST_F(SchemeLibraryTest, FailuresNameTheFileAndLeaveTheLibraryWhole) {
    setFile(record("xp.col", 50) + record("b.col", 60));
    std::filesystem::create_directory(folder / "newall.cox");
    for (const Outcome& outcome :
         {library.ReplaceScheme("b", sampleColours(1)), library.DeleteScheme("b")}) {
        EXPECT_TRUE(outcome.problem.starts_with("Error in updating Colour Scheme:\r\n"));
        EXPECT_NE(outcome.problem.find("newall.cox"), std::string::npos) << outcome.problem;
    }
    EXPECT_EQ(file(), record("xp.col", 50) + record("b.col", 60));
    EXPECT_EQ(library.names(), (Names{"xp", "b"}));

    std::filesystem::remove(m_file);
    for (const Outcome& outcome :
         {library.AddScheme("c", sampleColours(1)), library.ReplaceScheme("b", sampleColours(1)),
          library.DeleteScheme("b"), library.RefreshSchemeList(),
          library.LoadScheme("xp.col", appearance)})
        EXPECT_NE(outcome.problem.find(m_file.native()), std::string::npos) << outcome.problem;
    EXPECT_FALSE(std::filesystem::exists(m_file));
}

} // namespace
} // namespace tessaly
