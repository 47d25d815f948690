#include "core/board/puzzle_record.h"
#include "core/solver/puzzle_variants.h"
#include "support/command_line.h"
#include "support/file_calls.h"
#include "support/process.h"

#include <algorithm>
#include <set>

namespace tessaly::create_command_test {

struct CreateCommand : CommandLineTest {
    CommandResult create(const std::string& asked, const CommandSetting& setting = {}) const {
        return run("create --difficulty random --count " + asked, setting);
    }
    /// How many whole, different records a text consists of; -1 when there is anything else in it.
    static int differentRecords(const std::string& text) {
        const std::vector<std::string> lines = linesOf(text, "\r\n");
        const bool areRecords = std::all_of(lines.begin(), lines.end(), [](const auto& line) {
            Board board;
            return line.size() == RecordLength && readRecord(line, board).ok();
        });
        const std::set<std::string> different(lines.begin(), lines.end());
        return areRecords && different.size() == lines.size() ? static_cast<int>(lines.size()) : -1;
    }
};

TEST_F(CreateCommand, ASeedGivesTheSameBytesWhateverTheNumberOfJobs) {
    const std::string one = create("150 --seed 5 --jobs 1").out;
    EXPECT_EQ(differentRecords(one), 150);
    for (const std::string more : {"150 --seed 05 --jobs 7", "0150 --seed 5"})
        EXPECT_EQ(create(more).out, one) << more;
    EXPECT_EQ(create("40 --seed 5").out, one.substr(0, one.size() * 40 / 150));
    EXPECT_NE(create("40 --seed 6").out, create("40 --seed 5").out);
    const CommandResult random = create("3");
    EXPECT_NE(create("3").out, random.out) << "without a seed, chance decides";
    const std::string seed = random.err.substr(random.err.find_first_of("0123456789"));
    EXPECT_EQ(create("3 -s " + seed).out, random.out);
    EXPECT_NEAR(static_cast<double>(std::ranges::count(one, 'E')), 75, 45);
}

/// What a puzzle has in common with those that it becomes when it is turned, mirrored or
/// renumbered.
std::string kindOf(const std::string& record) {
    std::vector<std::string> images;
    for (const Symmetry& symmetry : symmetry::All) {
        std::string names;
        for (char& c : images.emplace_back(transformed(record, symmetry).substr(5))) {
            const auto number = static_cast<char>(c >= 'Q' ? c - 'Q' + '1' : c);
            if (names.find(number) == std::string::npos)
                names += number;
            c = static_cast<char>('a' + names.find(number));
        }
    }
    return *std::min_element(images.begin(), images.end());
}

// The seeds are those of script/make-library, which makes the files anew.
TEST_F(CreateCommand, TheShippedLibraryHasAHundredPuzzlesOfEachStarAndNoTwoAlike) {
    std::set<std::string> kinds;
    for (const auto& [name, seed] : {std::pair("easy", " --seed 1"), {"hard", " --seed 2"}}) {
        const std::string path = TESSALY_DATA "/puzzles/" + std::string(name) + ".txt";
        const std::string shipped = contentOf(path);
        for (const auto& [stars, place] : {std::pair("1", 0), {"5-5", 4}}) {
            const std::string made = run("create --difficulty " + std::string(name) + seed +
                                         " --count 100 --stars " + stars)
                                         .out;
            EXPECT_TRUE(shipped.substr(place * made.size(), made.size()) == made)
                << "is not what script/make-library makes";
        }
        EXPECT_EQ(run("check " + path).out, path + ": 500 puzzles checked, 0 findings\n");
        const std::vector<std::string> rated = linesOf(run("rate " + path).out);
        for (std::size_t i = 0; i < rated.size(); ++i)
            EXPECT_EQ(rated[i].substr(rated[i].find(' ') + 6, 1), std::to_string(1 + i / 100));
        for (const std::string& record : linesOf(shipped, "\r\n"))
            kinds.insert(kindOf(record));
    }
    EXPECT_EQ(kinds.size(), 1000U);
}

TEST_F(CreateCommand, ADayHasOnePuzzleAndPartsOfASeriesJoin) {
    const std::string day = "create --difficulty hard --day ";
    const std::string puzzle = run(day + "2028-02-29").out;
    EXPECT_EQ(differentRecords(puzzle + run(day + "2028-03-01").out), 2);
    run(day + "2028-02-29 --output " + file);
    EXPECT_EQ(contentOf(file), puzzle);
    EXPECT_EQ(create("40 --seed 5 --jobs 2").out + create("25 --seed 5 --first 41 --jobs 1").out +
                  create("35 --seed 5 --first 66 --jobs 3").out,
              create("100 --seed 5").out);
}

TEST_F(CreateCommand, AppendsToAFileWithoutRepeatingWhatItHolds) {
    const std::string records = create("30 --seed 1").out;
    const std::string progress =
        std::string(records).insert(RecordLength, ":" + std::string(BoardCellCount, '3'));
    for (const auto& [before, kept] : {std::pair(records, records),
                                       {records.substr(0, records.size() - 2), records},
                                       {records + "\r\n\r\n", records},
                                       {progress, progress}}) {
        put(file, before);
        const CommandResult again = create("20 --seed 1 --output " + file);
        EXPECT_EQ(again.status, exit_status::Done);
        EXPECT_EQ(again.out + again.err, "");
        EXPECT_EQ(contentOf(file), kept + create("50 --seed 1").out.substr(records.size()));
    }
}

TEST_F(CreateCommand, AnUnwritableOutputIsNamedOnOneLine) {
    const std::string asked = "create --difficulty easy --count 700 --seed 1 --output ";
    for (const std::string& path : {std::string(folder / "none/mine.txt"),
                                    folder.path().string() + "/", std::string("/dev/full")})
        expectRefused(asked + path, exit_status::Failed, ": " + path);
    EXPECT_TRUE(folder.names().empty());
    put(file, "dear diary\n");
    expectRefused(asked + file, exit_status::Failed, "puzzles.txt: is no puzzle file\n");
    const std::string before = create("100 --seed 2").out;
    put(file, before);
    {
        const FileCalls calls(failing("pread", EIO));
        expectRefused(asked + file, exit_status::Failed, "cannot be read: Input/output error");
        EXPECT_EQ(contentOf(file), before) << "what it holds is not to be repeated";
    }
    const FullDisk disk(600 * (RecordLength + 2) + 50);
    const std::string told = run(asked + file).err;
    const int added = differentRecords(contentOf(file)) - 100;
    EXPECT_TRUE(told.ends_with("File too large; " + std::to_string(added) + " puzzles added\n"))
        << told;
    EXPECT_TRUE(contentOf(file).starts_with(before));
}

TEST_F(CreateCommand, AStopLeavesWholeRecords) {
    for (const std::string& more : {std::string("--jobs 3"), "--output " + file}) {
        int asked = 0;
        const CommandResult result = create("1000000 --seed 1 " + more,
                                            {.wasInterrupted = [&asked] { return ++asked == 70; }});
        EXPECT_EQ(result.status, exit_status::Interrupted);
        EXPECT_EQ(result.err, "tessaly-cli: interrupted after 70 puzzles\n");
        EXPECT_EQ(differentRecords(result.out + contentOf(file)), 70);
    }
}

TEST_F(CreateCommand, ATerminalGetsAProgressBarThatIsGoneInTheEnd) {
    const CommandResult result = create("30 --seed 5", {.errIsTerminal = true});
    EXPECT_NE(result.err.find("] 1 of 30, "), std::string::npos) << result.err;
    EXPECT_TRUE(result.err.ends_with("\r\x1B[K"));
    EXPECT_EQ(result.err.find('\n'), std::string::npos);
    EXPECT_EQ(differentRecords(result.out), 30);
}

} // namespace tessaly::create_command_test
