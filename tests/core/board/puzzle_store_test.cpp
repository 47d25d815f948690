#include "core/board/puzzle_store.h"

#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Status = PuzzleRead::Status;
using test::contentOf;
using test::put;
using test::recordFile;
using test::recordNumbered;
using test::TemporaryFolder;

const std::string Mark = "\xEF\xBB\xBF";

class PuzzleStoreTest : public testing::Test {
protected:
    fs::path path() const { return m_folder / "puzzles.txt"; }

    Outcome remove(int number, const std::string& expected) {
        return m_store.DeletePuzzle(path(), number, expected);
    }
    /// The file after an append, which must get the number `expected`.
    std::string appended(int expected) {
        int number = 0;
        EXPECT_EQ(m_store.appendPuzzle(path(), recordNumbered(9), number).problem, "");
        EXPECT_EQ(number, expected);
        EXPECT_EQ(m_store.ReadPuzzle(path(), number, m_board).record, recordNumbered(9));
        return contentOf(path());
    }

    TemporaryFolder m_folder;
    PuzzleStore m_store;
    Board m_board;
};

TEST_F(PuzzleStoreTest, ReadsAnyRecordAndTellsTheCount) {
    const std::string progress = recordNumbered(3) + ":" + std::string(BoardCellCount, ' ');
    for (const std::string lineEnd : {"\r\n", "\n"}) {
        put(path(), (Mark + recordFile(2, lineEnd)).append(progress));
        const PuzzleRead read = m_store.ReadPuzzle(path(), 3, m_board);
        EXPECT_EQ(read.status, Status::Done) << read.reason;
        EXPECT_EQ(read.count, 3);
        EXPECT_EQ(read.record, progress);
        EXPECT_EQ(PuzzleRecord(m_board), recordNumbered(3));
        EXPECT_EQ(m_store.ReadPuzzle(path(), 1, m_board).record, recordNumbered(1));
    }
}

struct BadCase {
    std::string content;
    int number;
    std::string reason;
};

TEST_F(PuzzleStoreTest, WhatIsNoRecordIsRefusedWithItsReasonAndChangesNothing) {
    const std::string good = recordNumbered(1);
    std::string nul = good;
    nul[60] = '\0';
    std::string huge;
    huge.resize(10'000'000, 'E');
    const std::vector<BadCase> cases{
        {"", 1, "no puzzle 1"},
        {recordFile(2), 3, "no puzzle 3"},
        {recordFile(2), 0, "no puzzle 0"},
        {recordFile(1) + "\r\n \r\n", 2, "no puzzle 2"},
        {good.substr(0, 118) + "\n", 1, "line 1: the record has 118 characters"},
        {"EXX00" + good.substr(5), 1, "line 1: character 2 of the header"},
        {recordFile(1) + "\n" + recordFile(1), 2, "line 2: the record has 0 characters"},
        {nul, 1, "line 1: character 61"},
        {huge + "\r\n", 1, "longer than any record"},
        {good + std::string(5'000, ' '), 1, "longer than any record"}};
    for (const BadCase& bad : cases) {
        put(path(), bad.content);
        Board before;
        before.CellNum[3][4] = "2";
        m_board = before;
        const PuzzleRead read = m_store.ReadPuzzle(path(), bad.number, m_board);
        EXPECT_EQ(read.status, Status::NoRecord) << bad.reason;
        EXPECT_NE(read.reason.find(path().native() + ": "), std::string::npos) << read.reason;
        EXPECT_NE(read.reason.find(bad.reason), std::string::npos) << read.reason;
        EXPECT_EQ(m_board, before);
    }
    put(path(), recordFile(1) + huge + "\n" + recordFile(1));
    EXPECT_EQ(m_store.ReadPuzzle(path(), 3, m_board).record, good);
}

TEST_F(PuzzleStoreTest, FilesMayShrinkVanishOrBecomeSomethingElseBetweenTwoCommands) {
    put(path(), recordFile(1000));
    ASSERT_TRUE(m_store.ReadPuzzle(path(), 1000, m_board).ok());
    const Board before = m_board;
    fs::resize_file(path(), recordFile(500).size());
    EXPECT_EQ(m_store.ReadPuzzle(path(), 1000, m_board).status, Status::NoRecord);
    EXPECT_EQ(m_store.ReadPuzzle(path(), 500, m_board).count, 500);
    m_board = before;
    fs::remove(path());
    const PuzzleRead gone = m_store.ReadPuzzle(path(), 1, m_board);
    EXPECT_EQ(gone.status, Status::CannotRead);
    EXPECT_EQ(gone.reason, path().native() + ": cannot be read: No such file or directory");
    EXPECT_FALSE(remove(1, recordNumbered(1)).ok());
    fs::create_directory(path());
    EXPECT_EQ(m_store.ReadPuzzle(path(), 1, m_board).status, Status::CannotRead);
    EXPECT_FALSE(m_store.WritePuzzle(path(), 1, m_board).ok());
    fs::remove(path());
    ASSERT_EQ(::mkfifo(path().c_str(), 0600), 0);
    EXPECT_EQ(m_store.ReadPuzzle(path(), 1, m_board).status, Status::CannotRead);
    EXPECT_FALSE(m_store.WritePuzzle(path(), 2, m_board).ok());
    EXPECT_FALSE(remove(1, recordNumbered(1)).ok());
    EXPECT_EQ(m_board, before);
}

TEST_F(PuzzleStoreTest, WritesOneRecordOrAppends) {
    ASSERT_TRUE(readRecord(recordNumbered(7), m_board).ok());
    for (int mode : {2, 0, 1, 2})
        EXPECT_EQ(m_store.WritePuzzle(path(), mode, m_board).problem, "");
    EXPECT_EQ(contentOf(path()), recordNumbered(7) + "\r\n" + recordNumbered(7) + "\r\n");
    int count = 0;
    EXPECT_EQ(m_store.CountLines(path(), count).problem, "");
    EXPECT_EQ(count, 2);
}

TEST_F(PuzzleStoreTest, AnAppendedPuzzleGetsTheNextNumberWhateverStandsAtTheEnd) {
    const std::string added = recordNumbered(9) + "\r\n";
    const std::string twice = added + added;
    const std::string two = Mark + recordFile(2);
    EXPECT_EQ(appended(1), added);
    EXPECT_EQ(appended(2), twice);
    const std::string cut = recordNumbered(3).substr(0, 118);
    for (const std::string& tail : {std::string(), std::string("\r\n"), std::string(" \n\n\t"),
                                    std::string("\n\n\n"), cut, cut.substr(0, 1)}) {
        put(path(), two + tail);
        int count = 0;
        int visited = 0;
        EXPECT_TRUE(m_store.CountLines(path(), count).ok());
        EXPECT_TRUE(forEachRecord(path(), [&](RecordLine line) {
                        visited = line.number;
                        return true;
                    }).ok());
        EXPECT_EQ(count, 2) << tail;
        EXPECT_EQ(visited, 2) << tail;
        EXPECT_EQ(appended(3), two + added);
        EXPECT_EQ(appended(4), two + twice);
    }
    for (const std::string& last : {recordNumbered(2), std::string("Easter"), cut + "x"}) {
        put(path(), recordFile(1, "\n") + last);
        EXPECT_EQ(appended(3), recordFile(1, "\n") + last + "\r\n" + added) << "ended and kept";
    }
    put(path(), "\r\n\r\n");
    EXPECT_EQ(appended(1), added);
    EXPECT_EQ(m_folder.names().size(), 1U);
}

TEST_F(PuzzleStoreTest, DeletingTakesOneLineAndKeepsEveryOtherByte) {
    const std::string a = recordNumbered(1) + "\n";
    const std::string b = recordNumbered(2) + "  \r\n";
    const std::string c = recordNumbered(3);
    const std::vector<std::string> rests{Mark + b + c, Mark + a + c, Mark + a + b};
    const std::string whole = Mark + a + b + c;
    for (int number = 1; number <= 3; ++number) {
        put(path(), whole);
        const std::string record = m_store.ReadPuzzle(path(), number, m_board).record;
        EXPECT_EQ(remove(number, record).problem, "");
        EXPECT_EQ(contentOf(path()), rests[static_cast<std::size_t>(number - 1)]);
    }
    put(path(), c);
    EXPECT_EQ(remove(1, c).problem, "");
    EXPECT_EQ(contentOf(path()), "");
    EXPECT_EQ(m_store.ReadPuzzle(path(), 1, m_board).status, Status::NoRecord);
    EXPECT_EQ(m_folder.names().size(), 1U);
}

TEST_F(PuzzleStoreTest, APuzzleThatIsNoLongerTheOneShownIsNotDeleted) {
    put(path(), recordFile(3));
    ASSERT_TRUE(m_store.ReadPuzzle(path(), 2, m_board).ok());
    const std::string changed = recordNumbered(2) + "\r\n" + recordNumbered(3) + "\r\n";
    put(path(), changed);
    EXPECT_NE(remove(2, recordNumbered(2)).problem.find("another program"), std::string::npos);
    for (int none : {0, 3})
        EXPECT_FALSE(remove(none, recordNumbered(3)).ok());
    EXPECT_EQ(contentOf(path()), changed);
}

TEST_F(PuzzleStoreTest, YieldsForEveryBlock) {
    int yields = 0;
    PuzzleStore store([&] { ++yields; });
    put(path(), recordFile(10'000));
    EXPECT_EQ(store.ReadPuzzle(path(), 1, m_board).count, 10'000);
    EXPECT_GE(yields, 18);
    yields = 0;
    EXPECT_TRUE(store.DeletePuzzle(path(), 1, recordNumbered(1)).ok());
    EXPECT_GE(yields, 4);
}

} // namespace
} // namespace tessaly
