#include "core/board/puzzle_store.h"

#include "core/board/puzzle_record.h"

#include "support/file_calls.h"
#include "support/process.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <set>

namespace tessaly::puzzle_store_test {

namespace fs = std::filesystem;
using Status = PuzzleRead::Status;

const std::string Mark = "\xEF\xBB\xBF";

struct PuzzleStoreTest : testing::Test {
    PuzzleRead read(int number) { return store.ReadPuzzle(path, number, board); }
    bool remove(int number, const std::string& expected) {
        return store.DeletePuzzle(path, number, expected).ok();
    }

    TemporaryFolder folder;
    fs::path path = folder / "puzzles.txt";
    PuzzleStore store;
    Board board;
};

TEST_F(PuzzleStoreTest, ReadsARecordOrSaysWhatIsWrongWithItAndChangesNothing) {
    const std::string good = recordNumbered(1);
    const std::string progress = recordNumbered(3) + ":" + std::string(BoardCellCount, ' ');
    const auto changed = [&good](std::size_t at, char to) {
        std::string record = good;
        record[at] = to;
        return record;
    };
    std::string huge;
    huge.resize(10'000'000, 'E');
    const struct {
        std::string content;
        int number;
        std::string reason;
        std::string record;
    } rows[] = {
        {Mark + recordFile(2) + progress, 3, "", progress},
        {Mark + recordFile(2, "\n") + progress, 1, "", good},
        {recordFile(1) + huge + "\n" + recordFile(1), 3, "", good},
        {good + "  \t", 1, "", good + "  \t"},
        {"", 1, "no puzzle 1 among its 0", ""},
        {recordFile(2), 3, "no puzzle 3 among its 2", ""},
        {recordFile(2), 0, "no puzzle 0", ""},
        {good.substr(0, 118) + "\n", 1, "line 1: the record has 118 characters", ""},
        {changed(2, 'X'), 1, "line 1: character 3 of the header", ""},
        {recordFile(1) + "\n" + recordFile(1), 2, "line 2: the record has 0 characters", ""},
        {changed(60, '\0'), 1, "line 1: character 61", ""},
        {changed(50, 'P'), 1, "line 1: character 51", ""},
        {changed(118, '7'), 1, "line 1: character 119", ""},
        {huge + "\r\n", 1, "line 1: the line is longer than any record", ""},
        {good + std::string(5'000, ' '), 1, "longer than any record", ""},
    };
    for (const auto& row : rows) {
        put(path, row.content);
        const Board expected = row.reason.empty() ? boardOf(row.record) : board;
        const PuzzleRead got = read(row.number);
        EXPECT_EQ(got.status, row.reason.empty() ? Status::Done : Status::NoRecord) << got.reason;
        EXPECT_EQ(got.flaw.empty() ? got.record : "", row.record);
        EXPECT_TRUE(got.ok() || got.reason.starts_with(path.native() + ": ")) << got.reason;
        EXPECT_NE(got.reason.find(row.reason), std::string::npos) << got.reason;
        EXPECT_EQ(board, expected);
        EXPECT_EQ(readRecordAt(path, row.number, board).ok(), row.reason.empty());
        std::string visited;
        const auto visit = [&](const RecordLine& line) {
            visited = line.number == row.number && line.read(board).ok() ? line.text : "";
            return line.number < row.number;
        };
        EXPECT_EQ(forEachRecord(path, visit).problem, "");
        EXPECT_EQ(visited, row.record);
    }
}

TEST_F(PuzzleStoreTest, AnAppendedPuzzleGetsTheNextNumberWhateverStandsAtTheEnd) {
    const std::string added = recordNumbered(9) + "\r\n";
    const std::string third = recordNumbered(3), cut = third.substr(0, 118);
    // What is no record goes; what may be one, and lacks its line end or a part of it, gets it.
    const std::vector<std::string> goes{"", "\r\n", " \n\n\t", cut, "E"};
    const std::vector<std::string> stays{third, "\n" + cut + "x", "Easter", "E0700A", "07"};
    std::map<std::string, std::string> keptOf{{third + "\r", third + "\r\n"}};
    for (const std::string& tail : goes)
        keptOf[tail] = "";
    for (const std::string& tail : stays)
        keptOf[tail] = tail + "\r\n";
    for (const std::string& whole : {std::string(), Mark, Mark + recordFile(2)})
        for (const auto& [tail, keptTail] : keptOf) {
            std::string kept = whole + keptTail;
            const auto records = static_cast<int>(std::count(kept.begin(), kept.end(), '\n'));
            int count = 0, visited = 0, number = 0;
            put(path, whole + tail);
            const auto write = [&](const ContentSink& sink) { return sink.write(added); };
            EXPECT_EQ(store.appendPuzzles(path, write).problem, "");
            EXPECT_EQ(contentOf(path), kept + added);
            put(path, whole + tail);
            EXPECT_EQ(store.CountLines(path, count).problem, "");
            const auto visit = [&](RecordLine line) { return ++visited == line.number; };
            EXPECT_EQ(forEachRecord(path, visit).problem, "");
            EXPECT_EQ(std::pair(count, visited), std::pair(records, records)) << tail;
            for (int next : {records + 1, records + 2}) {
                EXPECT_EQ(store.appendPuzzle(path, recordNumbered(9), number).problem, "");
                EXPECT_EQ(number, next);
                EXPECT_EQ(read(next).record, recordNumbered(9));
                EXPECT_EQ(contentOf(path), kept += added);
            }
        }
    for (const std::string& content : {added, added + added}) { // anew, then appended
        const int mode = content == added ? 1 : 2;
        EXPECT_EQ(store.WritePuzzle(path, mode, boardOf(recordNumbered(9))).problem, "");
        EXPECT_EQ(contentOf(path), content);
    }
}

TEST_F(PuzzleStoreTest, DeletingTakesTheLineThatIsShownAndKeepsEveryOtherByte) {
    const std::string c = recordNumbered(3);
    const std::array lines{recordNumbered(1) + "\n", recordNumbered(2) + "  \r\n", c};
    for (const int number : {1, 2, 3}) {
        std::string all = Mark, left = Mark;
        for (int line = 1; const std::string& text : lines) {
            all += text;
            if (line++ != number)
                left += text;
        }
        put(path, all);
        EXPECT_TRUE(remove(number, read(number).record));
        EXPECT_EQ(contentOf(path), left);
        EXPECT_NE(store.DeletePuzzle(path, 1, recordNumbered(5)).problem.find("another program"),
                  std::string::npos);
        for (int none : {0, 3})
            EXPECT_FALSE(remove(none, c));
        EXPECT_EQ(contentOf(path), left);
    }
    put(path, c);
    EXPECT_TRUE(remove(1, c));
    EXPECT_EQ(contentOf(path), "");
}

class TwoInstances : public PuzzleStoreTest, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(LocksAnswering, TwoInstances, testing::Values(0, ENOLCK));

TEST_P(TwoInstances, LoseAndTearNoRecord) {
    const char* const asked = std::getenv("TESSALY_ROUNDS"); // script/faults asks for more
    const int rounds = asked ? std::stoi(asked) : 100;
    std::set<std::string> expected;
    std::vector<pid_t> children;
    for (int first : {0, 100'000}) {
        for (int round = 0; round < rounds; round += 2)
            expected.insert(recordNumbered(first + round));
        // Appends records and deletes every other one again.
        children.push_back(startChild([&] {
            const FileCalls calls(
                [](std::string_view name, int) { return name == "flock" ? GetParam() : 0; });
            for (int round = 0, number = 0; round < rounds; ++round) {
                const std::string record = recordNumbered(first + round);
                if (!store.appendPuzzle(path, record, number).ok())
                    return false;
                // The other instance may move the record, also while it is looked for.
                for (int looks = 0; round % 2 == 1 && !remove(number, record);)
                    for (number = 1; read(number).record != record; ++number)
                        if (number > 4 * rounds && (number = 0, ++looks > 9))
                            return false;
            }
            return true;
        }));
    }
    for (pid_t child : children)
        EXPECT_TRUE(succeeded(child));
    const std::vector<std::string> found = recordsOf(path);
    EXPECT_EQ(std::set<std::string>(found.begin(), found.end()), expected);
    EXPECT_EQ(fs::file_size(path), expected.size() * (RecordLength + 2));
    EXPECT_EQ(folder.names().size(), 1u);
}

/// A well-formed easy record: blank hexagon 7, hexagon 1 given, the others not.
std::string sampleRecord(const std::string& header = "E0700") {
    std::string record = header + "QRSTUV";
    while (record.size() < RecordLength)
        record += "123456";
    return record;
}

TEST(PuzzleRecord, ARecordIsTheWholeBoardWhateverItHeldBefore) {
    Board board;
    board.FixedCell[5][5] = true;
    board.CellNum[5][5] = "12";
    board.SkipHex = 3;
    const std::string record = sampleRecord("H1243").replace(118, 1, "0");
    ASSERT_TRUE(readRecord(record, board).ok());
    EXPECT_EQ(board, boardOf(record));
    EXPECT_EQ(PuzzleRecord(board), record);
    EXPECT_EQ(board.DifName(), "Hard");
    EXPECT_EQ((std::array{board.BlankHex, board.HintCell, board.HintNum}), (std::array{12, 4, 3}));
    EXPECT_TRUE(board.FixedCell[1][1] && !board.FixedCell[2][1]);
    EXPECT_EQ(board.CellNum[1][1] + board.CellNum[2][1], "1");
    EXPECT_EQ(board.SolNum[2][1] + board.SolNum[19][6], "10");
    for (const char* none : {"E2000", "E0000"})
        EXPECT_FALSE(isHexagon(boardOf(sampleRecord(none)).BlankHex));
}

TEST(PuzzleRecord, ProgressIsWrittenForSingleNumbersOfThePlayerAndReadBack) {
    Board board = boardOf(sampleRecord());
    board.CellNum[2][1] = "35";
    EXPECT_EQ(PuzzleRecord(board), sampleRecord()) << "pencil marks alone are no progress";
    board.CellNum[3] = {"", "0", "1", "2", "3", "4", "5"};
    board.CellNum[4][1] = "6";
    const std::string written = sampleRecord() + ":            0123456";
    EXPECT_EQ(PuzzleRecord(board), written + std::string(95, ' '));
    board.CellNum[2][1].clear();
    EXPECT_EQ(boardOf(written), board) << "what is missing at the end is blank";
    // Cells 1 to 6 are givens; what is no number counts as blank.
    board = boardOf(sampleRecord() + ":5     47x 2");
    EXPECT_EQ(board.CellNum[1][1], "1");
    EXPECT_EQ(board.CellNum[2], (std::array<std::string, 7>{"", "4", "", "", "", "2", ""}));
}

} // namespace tessaly::puzzle_store_test
