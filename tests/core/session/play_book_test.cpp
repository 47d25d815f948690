#include "core/session/play_book.h"

#include "core/play/game.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <sqlite3.h>

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <random>

namespace tessaly::play_book_test {

namespace fs = std::filesystem;

/// A puzzle as one window plays it with a book.
struct Table {
    Table(const fs::path& path, const std::string& record)
        : book(path) {
        told = book.open().problem;
        load(record);
    }
    void load(const std::string& record) {
        game.changed = [this] { told += book.keep(game).problem; };
        game.board = boardOf(record);
        game.startPuzzle();
        told += book.resume(game).problem;
    }
    void solve() {
        for (CellId cell : AllCells)
            if (game.isSelectable(cell))
                game.place(cell, game.board.SolNum[cell]);
    }
    /// All that the player would find again, in words.
    std::string found() const {
        std::string text = positionText(game);
        for (const TextStack* stack :
             {static_cast<const TextStack*>(&game.undoList), &game.wideSteps, &game.redoSteps})
            for (std::size_t age = 0; age < stack->size(); ++age)
                text += "\n" + stack->text(age);
        return text + (game.isFinished ? " finished" : "") + (game.wasSolved ? " solved" : "");
    }

    Game game;
    PlayBook book;
    std::string told;
};

struct PlayBookTest : testing::Test {
    /// What another window finds of a puzzle.
    std::string foundAnew(const std::string& record) const { return Table(path, record).found(); }
    void run(const std::string& sql) const {
        Database database;
        database.open(path, DatabaseUse::ReadWrite);
        database.execute(sql);
        EXPECT_TRUE(database.outcome().ok()) << database.outcome().problem;
    }

    TemporaryFolder folder;
    const fs::path path = folder / PlayBook::FileName;
    const std::vector<std::string> records = sampleRecords("easy.txt");
};

TEST_F(PlayBookTest, EveryChangeIsFoundByAnotherWindowAtOnce) {
    Table window(path, records[0]);
    EXPECT_EQ(window.told, "");
    std::mt19937 chance(7);
    Game& game = window.game;
    int count = 0;
    CellId cell;
    int turn = 0;
    game.switches.fillBothSides = game.switches.strikeMarks = true;
    const auto type = [&] {
        if (game.isSelectable(cell))
            turn % 2 == 0 ? game.typeDigit(cell, static_cast<char>('0' + chance() % 7))
                          : game.turnMark(cell, static_cast<char>('1' + chance() % 6));
    };
    const auto undo = [&] { game.undo(); };
    const auto redo = [&] { game.redo(); };
    const std::function<void()> moves[] = {
        [&] { game.fillMarks(); }, [&] { game.clearMarks(); }, [&] { game.CopyAcrossSides(count); },
        [&] { game.setSingles(); }, [&] { chance() % 8 == 0 ? game.reset() : game.takeHint(); }};
    for (; turn < 400; ++turn) {
        cell = AllCells[chance() % AllCells.size()];
        const std::size_t move = chance() % 16;
        move < 5 ? moves[move]() : move < 8 ? redo() : move < 11 ? undo() : type();
        if (turn % 3 == 0) {
            EXPECT_EQ(foundAnew(records[0]), window.found()) << turn;
        }
    }
    EXPECT_EQ(foundAnew(records[1]), Table("/nonexistent/play.db", records[1]).found());
    EXPECT_EQ(foundAnew(records[0] + ":123"), window.found()) << "known wherever it stands";
    EXPECT_EQ(window.told, "");
}

TEST_F(PlayBookTest, OfTwoWindowsTheLastToChangeAPuzzleHasItsSayWhole) {
    Table one(path, records[0]);
    Table other(path, records[0]);
    const CellId cell{10, 3};
    for (const char* entry : {"1", "2", "3"}) {
        for (Table* window : {&one, &one, &other, &one, &other}) {
            window->game.place(cell, entry);
            EXPECT_EQ(foundAnew(records[0]), window->found());
        }
        other.game.undo();
        EXPECT_EQ(foundAnew(records[0]), other.found());
    }
    EXPECT_TRUE(other.book.forget({records[0].substr(0, RecordLength)}).ok());
    one.game.redo();
    one.game.undo();
    EXPECT_EQ(foundAnew(records[0]), one.found());
    EXPECT_EQ(one.told + other.told, "");
}

TEST_F(PlayBookTest, SolvedPuzzlesAreKnownAndCountedOncePerPlay) {
    Table window(path, records[0]);
    const auto times = [&](std::size_t row) {
        const SolvingTimes all = window.book.statistics().at(row);
        return std::vector<std::int64_t>{all.solved, all.thisWeek, all.best, all.usual};
    };
    using Times = std::vector<std::int64_t>;
    const std::tuple<int, int, Times, Times> rows[] = {
        // Seconds and hints; the easy puzzles without hints and with hints then.
        {90, 0, {1, 1, 90, 90}, {0, 0, 0, 0}},
        {30, 0, {2, 2, 30, 30}, {0, 0, 0, 0}},
        {70, 0, {3, 3, 30, 70}, {0, 0, 0, 0}},
        {20, 2, {3, 3, 30, 70}, {1, 1, 20, 20}},
    };
    for (const auto& [seconds, hints, without, with] : rows) {
        window.game.reset();
        window.game.seconds = seconds;
        window.game.hints = hints;
        window.solve();
        window.game.undo();
        window.game.redo();
        EXPECT_EQ(times(0), without);
        EXPECT_EQ(times(1), with);
    }
    EXPECT_EQ(times(2), (Times{0, 0, 0, 0})) << "no hard one";
    run("UPDATE solving SET at = at - 8 * 86400 WHERE seconds = 30");
    EXPECT_EQ(times(0), (Times{3, 2, 30, 70}));
    EXPECT_TRUE(window.book.isSolved(records[0].substr(0, RecordLength)));
    EXPECT_FALSE(window.book.isSolved(records[1].substr(0, RecordLength)));
    EXPECT_TRUE(window.book.emptyStatistics().ok());
    EXPECT_EQ(times(0), (Times{0, 0, 0, 0}));
    window.game.reset();
    EXPECT_TRUE(Table(path, records[0]).game.wasSolved) << "what is done stays done";
    EXPECT_TRUE(window.book.forget({records[0].substr(0, RecordLength)}).ok());
    window.game.place({10, 3}, "4");
    EXPECT_FALSE(Table(path, records[0]).game.wasSolved);
}

TEST_F(PlayBookTest, WhatIsNoPlayInABookIsNotPutOnTheBoard) {
    for (const char* wrong :
         {"UPDATE puzzle SET position = 'x'", "UPDATE puzzle SET position = position || ','",
          "UPDATE puzzle SET position = replace(position, '3', '7')",
          "UPDATE step SET text = '0100' WHERE stack = 0", "UPDATE step SET text = '99013'",
          "UPDATE step SET text = '' WHERE stack = 1", "UPDATE step SET text = '9 ' || text",
          "UPDATE step SET text = text || char(10) || '2' WHERE stack = 2",
          "UPDATE step SET text = '0105999' WHERE stack = 0"}) {
        const std::string fresh = foundAnew(records[0]);
        {
            Table window(path, records[0]);
            for (CellId cell : {CellId{10, 3}, {10, 4}})
                window.game.place(cell, "3");
            window.game.fillMarks();
            window.game.place({10, 3}, "");
            window.game.undo();
        }
        run(wrong);
        Table window(path, records[0]);
        EXPECT_EQ(window.found(), fresh) << wrong;
        window.game.place({10, 3}, "4");
        EXPECT_EQ(foundAnew(records[0]), window.found()) << wrong;
        EXPECT_TRUE(window.book.forget({records[0].substr(0, RecordLength)}).ok());
    }
}

/// Has SQLite make other calls of the system than its own, by their names, while it lives.
class OtherCalls {
public:
    template <class Call>
    OtherCalls(std::vector<const char*> names, Call* call)
        : m_names(std::move(names)) {
        for (const char* name : m_names)
            m_vfs->xSetSystemCall(m_vfs, name, reinterpret_cast<sqlite3_syscall_ptr>(call));
    }
    OtherCalls(const OtherCalls&) = delete;
    OtherCalls& operator=(const OtherCalls&) = delete;
    ~OtherCalls() {
        for (const char* name : m_names)
            m_vfs->xSetSystemCall(m_vfs, name, nullptr);
    }

private:
    sqlite3_vfs* m_vfs = sqlite3_vfs_find(nullptr);
    std::vector<const char*> m_names;
};

int openToRead(const char* name, int how, int mode) {
    return (how & O_RDWR) != 0 ? (errno = EROFS, -1) : ::open(name, how, mode);
}

int lockNothing(int, int, ...) {
    return errno = ENOLCK, -1;
}

ssize_t findNoSpace(int, const void*, std::size_t, off_t) {
    return errno = ENOSPC, -1;
}

TEST_F(PlayBookTest, ABookThatCannotBeUsedIsLeftAsItIsWithOneMessage) {
    const auto play = [this](const std::string& message) {
        Table window(path, records[0]);
        EXPECT_NE(window.told.find(": cannot be used: " + message), std::string::npos)
            << window.told;
        EXPECT_FALSE(window.book.isOpen());
        window.told.clear();
        window.game.place({10, 4}, "5");
        EXPECT_EQ(window.told, "") << "it is told once";
    };
    { Table(path, records[0]).game.place({10, 3}, "3"); }
    const std::string kept = foundAnew(records[0]);
    {
        const OtherCalls readOnly({"open"}, openToRead);
        play("it may only be read");
    }
    {
        const OtherCalls noLocks({"fcntl"}, lockNothing);
        play("");
    }
    run("PRAGMA user_version = 9");
    play("it was written by a newer version of the game");
    run("PRAGMA user_version = 1");
    EXPECT_EQ(foundAnew(records[0]), kept);
    fs::rename(path, folder / "other");
    fs::create_directory(path);
    play("unable to open database file");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"other", "play.db"}));
}

TEST_F(PlayBookTest, ADamagedBookIsSetAsideAndANewOneBegun) {
    std::set<std::string> names{"play.db"};
    const std::function<void()> damages[] = {
        [this] { put(path, std::string(5000, 'x')); },
        [this] { fs::resize_file(path, 6000); },
        [this] {
            std::string bytes = contentOf(path);
            put(path, bytes.replace(bytes.size() / 2, 3000, std::string(3000, '\7')));
        },
    };
    for (const auto& damage : damages) {
        {
            Table window(path, records[0]);
            for (int i = 0; i < 300; ++i)
                window.game.place({10, 3}, std::to_string(i % 6 + 1));
        }
        damage();
        const std::string damaged = contentOf(path);
        const std::string name =
            "play.db.damaged" + (names.size() > 1 ? std::to_string(names.size()) : std::string());
        Table window(path, records[1]);
        for (int turn = 0; turn < 100'000 && window.told.empty(); ++turn)
            window.game.place({10, 4}, "5"); // it is looked through meanwhile
        EXPECT_NE(
            window.told.find("is damaged. It was set aside as\r\n" + (folder / name).native()),
            std::string::npos)
            << window.told;
        window.game.place({10, 4}, "6");
        EXPECT_EQ(foundAnew(records[1]), window.found());
        names.insert(name);
        EXPECT_GE(contentOf(folder / name).size(), damaged.size()) << name;
    }
}

TEST_F(PlayBookTest, OnAFullDiskPlayGoesOnAndIsKeptWhenThereIsRoomAgain) {
    Table window(path, records[0]);
    window.game.place({10, 3}, "3");
    const std::string before = window.found();
    {
        const OtherCalls full({"write", "pwrite", "pwrite64"}, findNoSpace);
        for (const char* entry : {"1", "2", "3"})
            window.game.place({10, 4}, entry);
        EXPECT_EQ(window.told, path.native() +
                                   ": cannot be used: database or disk is full\r\nWhat you play is "
                                   "not kept as long as this lasts.");
    }
    EXPECT_EQ(foundAnew(records[0]), before);
    window.game.undo();
    EXPECT_EQ(foundAnew(records[0]), window.found());
}

} // namespace tessaly::play_book_test
