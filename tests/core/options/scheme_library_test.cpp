#include "core/options/scheme_library.h"

#include "support/temporary_folder.h"

#include <algorithm>

namespace tessaly::scheme_library_test {

using Names = std::vector<std::string>;

/// A scheme whose slots are all different; slot 2 is (`base`, 2, 3).
SchemeColours sampleColours(int base) {
    SchemeColours colours{};
    for (std::size_t slot = 0; slot < StoredSlotCount; ++slot)
        colours[slot] = RGB(base + static_cast<int>(slot) - 2, 2, 3);
    return colours;
}

/// Such a scheme as it is written, or as many of its lines.
std::string record(const std::string& header, int base, int count = 13) {
    std::string lines = header + "\r\n";
    for (int slot = 0; slot < count; ++slot)
        lines += " " + std::to_string(base + slot - 2) + "; 2; 3\r\n";
    return lines;
}

struct SchemeLibraryTest : testing::Test {
    void setFile(const std::string& content) {
        put(m_file, content);
        EXPECT_EQ(library.RefreshSchemeList().problem, "");
    }
    std::string file() const { return contentOf(m_file); }
    std::string loaded(const std::string& scheme) {
        return library.LoadScheme(scheme, appearance).problem;
    }
    std::string added(const std::string& name) {
        return library.AddScheme(name, sampleColours(100)).problem;
    }

    TemporaryFolder folder;
    std::filesystem::path m_file = folder / "all.col";
    SchemeLibrary library{folder.path() / ""};
    Appearance appearance;
};

TEST_F(SchemeLibraryTest, ListsEveryLineWithTheExtensionUpToItsFirstOne) {
    const std::pair<std::string, Names> rows[] = {
        {"", {}},
        {"\xEF\xBB\xBF" + record("xp.col", 10) + "last.col", {"xp", "last"}},
        {"Été.col\nx.colour.col\n.col\nno scheme\r\na;b.col", {"Été", "x", "", "a;b"}},
        {record("Ocean.col", 50) + record("Ocean.col", 90), {"Ocean", "Ocean"}}};
    for (const auto& [content, names] : rows) {
        setFile(content);
        EXPECT_EQ(library.names(), names);
    }
}

TEST_F(SchemeLibraryTest, LoadsTheFirstRecordWithExactlyThatHeader) {
    setFile(record("ocean.col", 50) + record("Ocean.col", 100, 12) + "0.5;\t1.5;254.5;9;x\r\n" +
            record("Ocean.col", 150));
    SchemeColours expected = sampleColours(100);
    expected[12] = RGB(0, 2, 254); // rounded, halves to even
    expected[13] = appearance.SchemeColours[13] = 99;
    EXPECT_EQ(loaded("Ocean.col"), "");
    EXPECT_EQ(appearance.SchemeColours, expected);
    EXPECT_EQ(appearance.ActiveScheme, "xp.col") << "loading alone does not choose a scheme";
    EXPECT_EQ(loaded("OCEAN.col"), "Colour Scheme: OCEAN.col not found");
    EXPECT_EQ(appearance.ActiveScheme, "default.col");
    EXPECT_EQ(appearance.SchemeColours, expected);
    EXPECT_EQ(loaded("DEFAULT.COL"), "") << "which is built in";
    expected[2] = expected[4] = DesignColours[slot::Background];
    expected[3] = Black;
    EXPECT_EQ(appearance.SchemeColours, expected);
}

TEST_F(SchemeLibraryTest, DamagedRecordsAreRefusedWithTheLineAndChangeNothing) {
    std::vector<std::pair<std::string, std::string>> rows{
        {record("a.col", 50, 12), "12 colours instead of 13"},
        {"a.col", "0 colours instead of 13"},
        {record("a.col", 50, 12) + record("next.col", 60), "line 14: this is no colour"}};
    for (const char* line : {"1;2", "", "a;b;c", "1;2;", "1;;3", "256;0;0", "0;-1;0", "0;255.6;0",
                             "1;2;3x", "nan;0;0", "1e400;0;0", "next.col"})
        rows.emplace_back(record("a.col", 100, 5) + line + "\r\n" + record("b.col", 105, 7),
                          "all.col: line 7: this is no colour");
    for (const auto& [content, problem] : rows) {
        setFile(content);
        EXPECT_NE(loaded("a.col").find(problem), std::string::npos) << content;
    }
    EXPECT_EQ(appearance, Appearance());
}

TEST_F(SchemeLibraryTest, AddsTheNameInLowerCaseAndRefusesItInAnyCaseFromThenOn) {
    const std::string xp = record("xp.col", 50);
    setFile(xp.substr(0, xp.size() - 2)); // whose last line is ended first
    EXPECT_EQ(SchemeLibrary(folder.path() / "").AddScheme("Ocean", sampleColours(100)).problem, "");
    EXPECT_EQ(added("OCEAN"), "Colour Scheme: OCEAN already exists");
    EXPECT_EQ(file(), xp + record("ocean.col", 100));
    EXPECT_EQ(added("ÉTÉ×"), "");
    EXPECT_EQ(added("été×"), "Colour Scheme: été× already exists");
    EXPECT_EQ(library.names(), (Names{"xp", "ocean", "été×"}));
    EXPECT_EQ(added("two\nlines"),
              "Error in adding Colour Scheme:\r\nA name cannot hold a line break");
    for (const std::string& name :
         {std::string("semi;colon"), std::string(300, 'n'), std::string(" "),
          std::string("no \xff text"), std::string("nul\0l", 5), std::string("my.colours")}) {
        EXPECT_EQ(added(name), "");
        EXPECT_EQ(library.names().back(), name.substr(0, name.find(".col")));
        EXPECT_EQ(loaded(name + ".col"), "") << name;
    }
}

TEST_F(SchemeLibraryTest, ReplacesAndDeletesEveryRecordOfTheNameAndNothingElse) {
    const std::string next = record("next.col", 60);
    std::string odd = record("A.col", 60) + "stray line\n";
    std::erase(odd, '\r');
    const std::string ofTwelve = record("a.col", 50, 12), line = " 61; 2; 3\r\n";
    const std::string changed = record("a.col", 100);
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {record("a.col", 50) + odd + record("a.col", 70) + odd, changed + odd + changed + odd,
         odd + odd},
        {next, next, next},
        {ofTwelve + next, changed + next, next}, // the neighbour does not go with it
        {"a.col\r\n" + next, changed + next, next},
        {next + ofTwelve, next + changed, next},
        {record("a.col", 50, 14) + next, changed + line + next, line + next}};
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
    const std::string before = record("xp.col", 50) + record("b.col", 60);
    const std::filesystem::path copy = folder / "newall.cox";
    setFile(before);
    std::filesystem::create_directory(copy);
    const auto expectFailure = [this](const std::filesystem::path& named) {
        const std::string start = "Error in updating Colour Scheme:\r\n" + named.native();
        EXPECT_TRUE(library.ReplaceScheme("b", sampleColours(1)).problem.starts_with(start));
        EXPECT_TRUE(library.DeleteScheme("b").problem.starts_with(start));
    };
    expectFailure(copy);
    EXPECT_EQ(file(), before);
    EXPECT_EQ(library.names(), (Names{"xp", "b"}));
    std::filesystem::remove(m_file);
    expectFailure(m_file);
    EXPECT_TRUE(added("c").starts_with("Error in adding Colour Scheme:\r\n" + m_file.native()));
    EXPECT_TRUE(library.RefreshSchemeList().problem.starts_with(m_file.native()));
    EXPECT_TRUE(loaded("xp.col").starts_with(m_file.native()));
    EXPECT_FALSE(std::filesystem::exists(m_file));
}

// ---- what is shipped

/// The colours that the shipped file gives the scheme of that name.
SchemeColours shipped(const std::string& name) {
    Appearance appearance;
    EXPECT_EQ(SchemeLibrary(TESSALY_DATA "/").LoadScheme(name + ".col", appearance).problem, "");
    return appearance.SchemeColours;
}

/// How far apart two colours are, from 0 to 510, to eyes that take red and green for one.
int distanceWithoutRedGreen(Colour one, Colour other) {
    const auto redGreen = [](Colour colour) { return (RedOf(colour) + GreenOf(colour)) / 2; };
    return std::abs(redGreen(one) - redGreen(other)) + std::abs(BlueOf(one) - BlueOf(other));
}

TEST(ShippedSchemes, TheBoardReadsInEachOfThem) {
    SchemeLibrary library(TESSALY_DATA "/");
    ASSERT_EQ(library.RefreshSchemeList().problem, "");
    EXPECT_EQ(library.names().size(), 15U);
    for (const std::string& name : library.names()) {
        const SchemeColours colours = shipped(name);
        // WCAG 2, sections 1.4.3 and 1.4.11: text, and large text or signs.
        for (const auto& [seen, least] : {std::pair(readableOn(colours[slot::Background]), 4.5),
                                          {colours[slot::DarkRed], 4.5},
                                          {colours[slot::Green], 3.0},
                                          {colours[slot::Red], 3.0}})
            for (const std::size_t fill : {slot::Background, slot::Button})
                EXPECT_GE(contrastRatio(seen, colours[fill]), least) << name;
    }
}

TEST(ShippedSchemes, TheSpecialOnesAreWhatTheirNamesSay) {
    const SchemeColours night = shipped("night");
    for (std::size_t ground : {slot::Background, slot::Menu})
        EXPECT_GE(contrastRatio(White, night[ground]), 12);
    const SchemeColours high = shipped("high contrast");
    for (std::size_t ground : {slot::Background, slot::Menu, slot::Button, slot::Accent})
        EXPECT_GE(contrastRatio(readableOn(high[ground]), high[ground]), 7) << ground;
    for (std::size_t text : {slot::DarkRed, slot::Red, slot::Green})
        EXPECT_GE(contrastRatio(high[text], high[slot::Button]), 7) << text;
    // Givens, the user's numbers, the solution; and the two signal colours.
    const auto leastDistance = [](const SchemeColours& colours) {
        return std::min({distanceWithoutRedGreen(Black, colours[slot::DarkRed]),
                         distanceWithoutRedGreen(Black, colours[slot::Green]),
                         distanceWithoutRedGreen(colours[slot::DarkRed], colours[slot::Green]),
                         distanceWithoutRedGreen(colours[slot::Red], colours[slot::Green])});
    };
    EXPECT_GE(leastDistance(shipped("red-green safe")), 110);
    EXPECT_LT(leastDistance(shipped("meadow")), 55) << "the measure must tell a bad one";
}

} // namespace tessaly::scheme_library_test
