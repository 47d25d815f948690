#include "core/options/scheme_library.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;
using testing::Test;
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

std::string withLineFeeds(std::string text) {
    std::erase(text, '\r');
    return text;
}

class SchemeLibraryTest : public Test {
protected:
    void setFile(const std::string& content) {
        put(m_file, content);
        ASSERT_EQ(library.RefreshSchemeList().problem, "");
    }
    std::string file() const { return contentOf(m_file); }
    std::string problemOfLoading(const std::string& scheme) {
        return library.LoadScheme(scheme, appearance).problem;
    }
    bool colourLineIsRefused(const std::string& line) {
        put(m_file, "bad.col\r\n" + colourLines(100, 5) + line + "\r\n" + colourLines(105, 7));
        return problemOfLoading("bad.col").find("all.col: line 7: this is no colour") !=
               std::string::npos;
    }

    test::TemporaryFolder folder;
    std::filesystem::path m_file = folder / "all.col";
    SchemeLibrary library{folder.path().native() + "/"};
    Appearance appearance;
};

TEST_F(SchemeLibraryTest, ListsEveryLineWithTheExtensionUpToItsFirstOne) {
    setFile(record("Ocean.col", 50) + record("a;b.col", 60) + record("x.colour.col", 70) +
            "\xEF\xBB\xBF" + record("Été.col", 80) + ".col\r\nno scheme\r\n" +
            record("Ocean.col", 90));
    EXPECT_EQ(library.names(), (Names{"Ocean", "a;b", "x", "\xEF\xBB\xBFÉté", "", "Ocean"}));
    setFile("\xEF\xBB\xBF" + withLineFeeds(record("xp.col", 10)) + "last.col");
    EXPECT_EQ(library.names(), (Names{"xp", "last"}));
    EXPECT_EQ(problemOfLoading("xp.col"), "");
    setFile("");
    EXPECT_EQ(library.names(), Names{});
}

TEST_F(SchemeLibraryTest, LoadsTheFirstRecordWithExactlyThatHeader) {
    const std::string ocean = "Ocean.col\r\n" + colourLines(100, 12) + "0;128;255;9;x\r\n";
    setFile(record("ocean.col", 50) + ocean + record("Ocean.col", 150));
    appearance.SchemeColours[13] = 99;
    ASSERT_EQ(problemOfLoading("Ocean.col"), "");
    EXPECT_EQ(appearance.SchemeColours[slot::Background], RGB(100, 2, 3));
    EXPECT_EQ(appearance.SchemeColours[11], RGB(109, 2, 3));
    EXPECT_EQ(appearance.SchemeColours[12], RGB(0, 128, 255));
    EXPECT_EQ(appearance.SchemeColours[13], 99U);
    ASSERT_EQ(problemOfLoading("ocean.col"), "");
    EXPECT_EQ(appearance.SchemeColours[slot::Background], RGB(50, 2, 3));
    EXPECT_EQ(appearance.ActiveScheme, "xp.col") << "loading alone does not choose a scheme";
}

TEST_F(SchemeLibraryTest, ASchemeThatIsGoneLeavesTheColoursAndTheBuiltInSchemeActive) {
    setFile(record("xp.col", 50));
    const Appearance before = appearance;
    EXPECT_EQ(problemOfLoading("XP.col"), "Colour Scheme: XP.col not found");
    EXPECT_EQ(appearance.ActiveScheme, "default.col");
    EXPECT_EQ(appearance.SchemeColours, before.SchemeColours);
}

TEST_F(SchemeLibraryTest, TheBuiltInSchemeNeedsNoFileAndSetsThreeSlots) {
    appearance.SchemeColours = sampleColours(100);
    ASSERT_EQ(problemOfLoading("DEFAULT.COL"), "");
    SchemeColours expected = sampleColours(100);
    expected[2] = expected[4] = DesignColours[slot::Background];
    expected[3] = Black;
    EXPECT_EQ(appearance.SchemeColours, expected);
}

TEST_F(SchemeLibraryTest, DamagedRecordsAreRefusedWithTheLineAndChangeNothing) {
    const Appearance before = appearance;
    for (const char* line : {"1;2", "", "a;b;c", "1;2;", "1;;3", "256;0;0", "0;-1;0", "0;255.6;0",
                             "1;2;3x", "nan;0;0", "1e400;0;0", "next.col"})
        EXPECT_TRUE(colourLineIsRefused(line)) << line;
    for (const char* line : {"1;2;3", "  0 ;\t255; 7", "0.5;1.5;254.5;x", "1;2;3;"})
        EXPECT_FALSE(colourLineIsRefused(line)) << line;
    appearance = before;

    put(m_file, "short.col\r\n" + colourLines(50, 12));
    EXPECT_NE(problemOfLoading("short.col").find("12 colours instead of 13"), std::string::npos);
    put(m_file, "bare.col");
    EXPECT_NE(problemOfLoading("bare.col").find("0 colours instead of 13"), std::string::npos);
    put(m_file, "short.col\r\n" + colourLines(50, 12) + record("next.col", 60));
    EXPECT_NE(problemOfLoading("short.col").find("line 14: this is no colour"), std::string::npos);
    EXPECT_EQ(appearance, before);
}

TEST_F(SchemeLibraryTest, ChannelsAreRoundedHalvesToEven) {
    setFile("a.col\r\n0.5;1.5;254.5\r\n" + colourLines(50, 12));
    ASSERT_EQ(problemOfLoading("a.col"), "");
    EXPECT_EQ(appearance.SchemeColours[0], RGB(0, 2, 254));
}

TEST_F(SchemeLibraryTest, AddsTheNameInLowerCaseAndRefusesItInAnyCaseFromThenOn) {
    setFile(record("xp.col", 50));
    EXPECT_EQ(library.AddScheme("Ocean", sampleColours(100)).problem, "");
    EXPECT_EQ(file(), record("xp.col", 50) + record("ocean.col", 100));
    EXPECT_EQ(library.names(), (Names{"xp", "ocean"}));
    EXPECT_EQ(library.AddScheme("OCEAN", sampleColours(1)).problem,
              "Colour Scheme: OCEAN already exists");
    EXPECT_EQ(library.AddScheme("ÉTÉ×", sampleColours(60)).problem, "");
    EXPECT_EQ(library.AddScheme("été×", sampleColours(60)).problem,
              "Colour Scheme: été× already exists");
    EXPECT_EQ(library.names().back(), "été×");
    EXPECT_EQ(library.AddScheme("two\nlines", sampleColours(60)).problem,
              "Error in adding Colour Scheme:\r\nA name cannot hold a line break");
    EXPECT_EQ(library.names().size(), 3U);
}

TEST_F(SchemeLibraryTest, OddNamesAreStoredAsTheyAreAndLoadAgain) {
    setFile("");
    const std::string longName(300, 'n');
    for (const std::string& name : {std::string("semi;colon"), longName, std::string(" "),
                                    std::string("no \xff text"), std::string("nul\0l", 5)}) {
        ASSERT_EQ(library.AddScheme(name, sampleColours(100)).problem, "");
        EXPECT_EQ(library.names().back(), name);
        EXPECT_EQ(problemOfLoading(name + ".col"), "");
    }
    ASSERT_EQ(library.AddScheme("my.colours", sampleColours(100)).problem, "");
    EXPECT_EQ(library.names().back(), "my") << "the list cuts a name at its first .col";
    EXPECT_EQ(problemOfLoading("my.colours.col"), "");
}

TEST_F(SchemeLibraryTest, AnUnfinishedLastLineIsEndedBeforeASchemeIsAdded) {
    const std::string unfinished = record("xp.col", 50).substr(0, record("xp.col", 50).size() - 2);
    setFile(unfinished);
    ASSERT_EQ(library.AddScheme("new", sampleColours(100)).problem, "");
    EXPECT_EQ(file(), record("xp.col", 50) + record("new.col", 100));
}

TEST_F(SchemeLibraryTest, ReplacesEveryRecordOfTheNameInPlaceAndKeepsTheOthersBytes) {
    const std::string others = withLineFeeds(record("Other.col", 60)) + "stray line\n";
    setFile(record("ocean.col", 50) + others + record("ocean.col", 70) + others);
    ASSERT_EQ(library.ReplaceScheme("Ocean", sampleColours(100)).problem, "");
    const std::string expected =
        record("ocean.col", 100) + others + record("ocean.col", 100) + others;
    EXPECT_EQ(file(), expected);
    EXPECT_EQ(contentOf(folder / "newall.cox"), expected);
    EXPECT_EQ(folder.names(), (std::set<std::string>{"all.col", "newall.cox"}));
}

TEST_F(SchemeLibraryTest, DeletesEveryRecordOfTheNameAndNothingElse) {
    setFile(record("a.col", 50) + record("b.col", 60) + record("a.col", 70) + record("C.col", 80));
    ASSERT_EQ(library.DeleteScheme("A").problem, "");
    EXPECT_EQ(file(), record("b.col", 60) + record("C.col", 80));
    EXPECT_EQ(contentOf(folder / "newall.cox"), file());
    EXPECT_EQ(library.names(), (Names{"b", "C"}));
    EXPECT_EQ(library.DeleteScheme("C").problem, "") << "c.col is not there: nothing to remove";
    EXPECT_EQ(library.names(), (Names{"b", "C"}));
    ASSERT_EQ(library.DeleteScheme("b").problem, "");
    EXPECT_EQ(file(), record("C.col", 80));
}

TEST_F(SchemeLibraryTest, ARecordOfTheWrongLengthDoesNotTakeItsNeighbourAlong) {
    const std::string twelve = "a.col\r\n" + colourLines(50, 12);
    const std::string bare = "a.col\r\n";
    const std::string next = record("next.col", 60);
    for (const std::string& damaged : {twelve, bare}) {
        setFile(damaged + next);
        ASSERT_EQ(library.ReplaceScheme("a", sampleColours(100)).problem, "");
        EXPECT_EQ(file(), record("a.col", 100) + next);
        setFile(next + damaged);
        ASSERT_EQ(library.DeleteScheme("a").problem, "");
        EXPECT_EQ(file(), next);
    }
    setFile("a.col\r\n" + colourLines(50, 14) + next);
    ASSERT_EQ(library.DeleteScheme("a").problem, "");
    EXPECT_EQ(file(), " 61; 2; 3\r\n" + next);
    EXPECT_EQ(library.names(), Names{"next"});
}

TEST_F(SchemeLibraryTest, WorksOnWhatTheFileHoldsNow) {
    setFile(record("xp.col", 50));
    SchemeLibrary other(folder.path().native() + "/");
    ASSERT_EQ(other.AddScheme("new", sampleColours(60)).problem, "");
    EXPECT_EQ(library.AddScheme("New", sampleColours(70)).problem,
              "Colour Scheme: New already exists");
    ASSERT_EQ(library.DeleteScheme("xp").problem, "");
    EXPECT_EQ(file(), record("new.col", 60));
}

TEST_F(SchemeLibraryTest, FailuresNameTheFileAndLeaveTheLibraryWhole) {
    setFile(record("xp.col", 50) + record("b.col", 60));
    std::filesystem::create_directory(folder / "newall.cox");
    for (const Outcome& outcome :
         {library.ReplaceScheme("b", sampleColours(1)), library.DeleteScheme("b")}) {
        EXPECT_EQ(outcome.problem.find("Error in updating Colour Scheme:\r\n"), 0U);
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

TEST(SchemeInForce, IsComparedWithTheBareEntry) {
    EXPECT_FALSE(isSchemeInForce("xp", "xp.col"));
    EXPECT_TRUE(isSchemeInForce("XP", "xP"));
}

} // namespace
} // namespace tessaly
