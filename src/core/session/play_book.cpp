#include "core/session/play_book.h"

#include "core/board/puzzle_record.h"
#include "core/session/program_folder.h"

#include <array>
#include <ctime>
#include <sstream>
#include <utility>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

/// What brings a book of version N to N + 1; a new book is of version 0.
constexpr std::array Migrations{
    "CREATE TABLE puzzle (id INTEGER PRIMARY KEY, record TEXT NOT NULL UNIQUE,"
    " version INTEGER NOT NULL, position TEXT NOT NULL, seconds INTEGER NOT NULL,"
    " hints INTEGER NOT NULL, finished INTEGER NOT NULL, solved INTEGER NOT NULL,"
    " begun INTEGER NOT NULL, played INTEGER NOT NULL);"
    "CREATE TABLE step (puzzle INTEGER NOT NULL, stack INTEGER NOT NULL, number INTEGER NOT NULL,"
    " text TEXT NOT NULL, PRIMARY KEY (puzzle, stack, number)) WITHOUT ROWID;"
    "CREATE TABLE solving (difficulty TEXT NOT NULL, hints INTEGER NOT NULL,"
    " seconds INTEGER NOT NULL, at INTEGER NOT NULL);"
    "CREATE INDEX solving_times ON solving (difficulty, hints > 0, seconds);"
    "CREATE TABLE setting (name TEXT PRIMARY KEY, value BLOB NOT NULL) WITHOUT ROWID;",
};
constexpr auto Version = static_cast<std::int64_t>(Migrations.size());

constexpr std::string_view IsSolved = "SELECT 1 FROM puzzle WHERE record = ? AND solved";

/// The setting that holds the number of the last puzzle, its record and its path.
constexpr std::string_view LastSetting = "puzzle";

/// The stacks of a play by the numbers that they have in the book.
std::array<TextStack*, 3> stacksOf(Play& play) {
    return {&play.undoList, &play.wideSteps, &play.redoSteps};
}

/// A name that no file has yet.
fs::path nameForDamaged(const fs::path& path) {
    fs::path name = path.native() + DamagedExtension;
    std::error_code error;
    for (int number = 2; fs::exists(name, error); ++number)
        name = path.native() + DamagedExtension + std::to_string(number);
    return name;
}

std::string recordOf(const Play& play) {
    return PuzzleRecord(play.board).substr(0, RecordLength);
}

/// `Version` when it cannot be found out.
std::int64_t versionOf(Database& database) {
    Statement asked(database, "PRAGMA user_version");
    return asked.next() ? asked.number(0) : Version;
}

std::int64_t now() {
    return std::time(nullptr);
}

} // namespace

struct PlayBook::Statements {
    explicit Statements(Database& database)
        : load(database, "SELECT id, version, position, seconds, hints, finished, solved"
                         " FROM puzzle WHERE record = ?")
        , loadSteps(database,
                    "SELECT stack, number, text FROM step WHERE puzzle = ? ORDER BY stack, number")
        // A row that another program has written in between bears another number than expected.
        , keep(database,
               "INSERT INTO puzzle (record, version, position, seconds, hints, finished, solved,"
               " begun, played) VALUES (?1, abs(random() / 2), ?2, ?3, ?4, ?5, ?6, ?7, ?7)"
               " ON CONFLICT (record) DO UPDATE SET version = version + 1,"
               " position = excluded.position, seconds = excluded.seconds, hints = excluded.hints,"
               " finished = excluded.finished, solved = excluded.solved, played = excluded.played"
               " RETURNING id, version")
        , removeSteps(database, "DELETE FROM step WHERE puzzle = ? AND stack = ? AND number >= ?")
        , addStep(database, "INSERT INTO step VALUES (?, ?, ?, ?)")
        , isCounted(database, "SELECT 1 FROM puzzle WHERE record = ? AND finished")
        , count(database, "INSERT INTO solving VALUES (?, ?, ?, ?)")
        , isSolved(database, IsSolved)
        , forgetSteps(database, "DELETE FROM step WHERE puzzle ="
                                " (SELECT id FROM puzzle WHERE record = ?)")
        , forget(database, "DELETE FROM puzzle WHERE record = ?")
        , times(database,
                "SELECT seconds, at >= CAST(strftime('%s', 'now', 'localtime', 'start of day',"
                " 'weekday 0', '-6 days', 'utc') AS INTEGER) FROM solving"
                " WHERE difficulty = ? AND (hints > 0) = ? ORDER BY seconds")
        , setting(database, "SELECT value FROM setting WHERE name = ?")
        , set(database, "INSERT INTO setting VALUES (?, ?)"
                        " ON CONFLICT (name) DO UPDATE SET value = excluded.value") {}

    Statement load, loadSteps, keep, removeSteps, addStep, isCounted, count, isSolved, forgetSteps,
        forget, times, setting, set;
};

PlayBook::PlayBook(fs::path path)
    : m_path(std::move(path)) {}

PlayBook::~PlayBook() {
    stop();
}

/// No more of the book is open afterwards.
void PlayBook::stop() {
    while (m_check.joinable() && !m_isChecked) {
        m_checked.interrupt(); // what runs by now, or nothing yet
        std::this_thread::yield();
    }
    if (m_check.joinable())
        m_check.join();
    m_checked.close();
    m_statements.reset();
    m_database.close();
}

Outcome PlayBook::open() {
    Outcome begun = begin();
    if (m_database.isDamaged())
        return setAside();
    if (begun.ok())
        return begun;
    stop();
    return Outcome::failed(begun.problem + "\r\nWhat you play now is not kept.");
}

Outcome PlayBook::begin() {
    m_row = m_version = 0;
    m_database.open(m_path, DatabaseUse::ReadWrite);
    if (Outcome opened = m_database.outcome(); !opened.ok())
        return opened;
    if (m_database.isReadOnly())
        return Outcome::failed(m_path.native() + ": cannot be used: it may only be read");
    // Where the file system cannot have a log beside the book, SQLite stays with its journal.
    m_database.execute("PRAGMA journal_mode = WAL");
    if (!m_database.isDamaged())
        m_database.forgetFailure();
    m_database.execute("PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 0");
    if (Outcome migrated = migrate(); !migrated.ok())
        return migrated;
    m_statements = std::make_unique<Statements>(m_database);
    Outcome prepared = m_database.outcome();
    if (prepared.ok())
        startCheck();
    return prepared;
}

/// A book of this version is not written to.
Outcome PlayBook::migrate() {
    const std::int64_t version = versionOf(m_database);
    if (version > Version)
        return Outcome::failed(m_path.native() +
                               ": cannot be used: it was written by a newer version of the game");
    if (version == Version || !m_database.outcome().ok())
        return m_database.outcome();
    m_database.begin(Transaction::Write);
    // Another program may have been quicker.
    for (std::int64_t from = versionOf(m_database); from >= 0 && from < Version; ++from)
        m_database.execute(Migrations[static_cast<std::size_t>(from)]);
    m_database.execute("PRAGMA user_version = " + std::to_string(Version));
    return m_database.commit();
}

/// On a connection of its own, for reading; in a book without a log that keeps others from
/// writing, so there it is done at once.
void PlayBook::startCheck() {
    m_isDamageFound = m_isChecked = false;
    m_checked.open(m_path, DatabaseUse::ReadOnly);
    const auto check = [this] {
        Statement look(m_checked, "PRAGMA quick_check(1)");
        m_isDamageFound = look.next() ? look.text(0) != "ok" : m_checked.isDamaged();
        m_isChecked = true;
    };
    Statement mode(m_database, "PRAGMA journal_mode");
    if (mode.next() && mode.text(0) == "wal")
        m_check = std::thread(check);
    else
        check();
}

/// The log goes first: beside a new book it would be taken for that one's.
Outcome PlayBook::setAside() {
    stop();
    const fs::path damaged = nameForDamaged(m_path);
    std::error_code error;
    fs::rename(m_path.native() + "-wal", damaged.native() + "-wal", error);
    fs::remove(m_path.native() + "-shm", error);
    fs::rename(m_path, damaged, error);
    const std::string what = m_path.native() + ": is damaged";
    if (error)
        return Outcome::failed(what + " and cannot be set aside: " + error.message() +
                               "\r\nWhat you play now is not kept.");
    const Outcome begun = begin();
    if (!begun.ok())
        stop();
    return Outcome::failed(what + ". It was set aside as\r\n" + damaged.native() + "\r\n" +
                           (begun.ok() ? "and a new play book begun." : begun.problem));
}

/// What the player is told of an outcome, a damaged book having been set aside.
Outcome PlayBook::told(const Outcome& outcome) {
    if (m_database.isDamaged() || m_isDamageFound)
        return setAside();
    if (outcome.problem == std::exchange(m_toldLast, outcome.problem) || outcome.ok())
        return Outcome::done();
    return Outcome::failed(outcome.problem +
                           "\r\nWhat you play is not kept as long as this lasts.");
}

/// Has a long log written into the book, which waits for the disk: not while somebody plays, but
/// between two puzzles.
void PlayBook::emptyLog() {
    constexpr int LongLog = 250;
    if (m_changesInLog < LongLog)
        return;
    m_changesInLog = 0;
    m_database.forgetFailure();
    m_database.execute("PRAGMA wal_checkpoint(PASSIVE)");
}

Outcome PlayBook::resume(Play& play) {
    if (!isOpen())
        return Outcome::done();
    emptyLog();
    m_record = recordOf(play);
    m_row = m_version = 0;
    m_database.begin(Transaction::Read);
    Play known;
    known.board = play.board;
    Statement& row = m_statements->load.with(m_record);
    if (row.next() && readPosition(row.text(2), known)) {
        m_row = row.number(0);
        m_version = row.number(1);
        known.seconds = row.number(3);
        known.hints = static_cast<int>(row.number(4));
        known.isFinished = row.number(5) != 0;
        known.wasSolved = row.number(6) != 0;
        readSteps(known);
        if (isSound(known))
            play = std::move(known);
        else
            m_version = 0; // all of it is written anew
    }
    row.with();
    return told(m_database.commit());
}

void PlayBook::readSteps(Play& play) {
    const auto stacks = stacksOf(play);
    Statement& step = m_statements->loadSteps.with(m_row);
    while (step.next()) {
        TextStack& stack = *stacks.at(static_cast<std::size_t>(step.number(0)) % stacks.size());
        if (step.number(1) == static_cast<std::int64_t>(stack.size()))
            stack.push(step.text(2));
    }
    step.with();
    for (TextStack* stack : stacks)
        stack->setStored(stack->size());
}

/// Whether the end of this play stands in the statistics.
bool PlayBook::wasCounted() {
    const bool counted = m_statements->isCounted.with(m_record).next();
    m_statements->isCounted.with();
    return counted;
}

void PlayBook::countSolving(const Play& play) {
    if (play.isFinished && !wasCounted())
        m_statements->count.with(m_record.substr(0, 1), play.hints, play.seconds, now()).run();
}

void PlayBook::keepSteps(Play& play, std::int64_t row, bool anew) {
    std::int64_t number = 0;
    for (const TextStack* stack : stacksOf(play)) {
        const std::size_t from = anew ? 0 : stack->stored();
        m_statements->removeSteps.with(row, number, from).run();
        for (std::size_t i = from; i < stack->size(); ++i)
            m_statements->addStep.with(row, number, i, stack->text(stack->size() - 1 - i)).run();
        ++number;
    }
}

Outcome PlayBook::keepOnce(Play& play) {
    m_database.begin(Transaction::Write);
    countSolving(play);
    Statement& kept = m_statements->keep.with(m_record, positionText(play), play.seconds,
                                              play.hints, play.isFinished, play.wasSolved, now());
    const bool written = kept.next();
    const std::int64_t row = written ? kept.number(0) : 0;
    const std::int64_t version = written ? kept.number(1) : 0;
    kept.with();
    keepSteps(play, row, row != m_row || version != m_version + 1);
    Outcome outcome = m_database.commit();
    if (!outcome.ok())
        return outcome;
    m_row = row;
    m_version = version;
    ++m_changesInLog;
    for (TextStack* stack : stacksOf(play))
        stack->setStored(stack->size());
    return outcome;
}

Outcome PlayBook::keep(Play& play) {
    if (!isOpen() || m_record != recordOf(play) || (m_row == 0 && !play.isBegun()))
        return Outcome::done();
    Outcome outcome = told(keepOnce(play));
    if (isOpen() && m_row == 0) // in a new book
        static_cast<void>(keepOnce(play).ok());
    return outcome;
}

Outcome PlayBook::forget(const std::vector<std::string>& records) {
    if (!isOpen())
        return Outcome::done();
    m_database.begin(Transaction::Write);
    for (const std::string& record : records) {
        m_statements->forgetSteps.with(record).run();
        m_statements->forget.with(record).run();
        if (record == m_record)
            m_record.clear(); // until it is on the board again
    }
    return told(m_database.commit());
}

bool PlayBook::isSolved(std::string_view record) {
    if (!isOpen())
        return false;
    m_database.forgetFailure();
    const bool solved = m_statements->isSolved.with(record).next();
    m_statements->isSolved.with();
    return solved;
}

std::vector<SolvingTimes> PlayBook::statistics() {
    std::vector<SolvingTimes> all;
    if (!isOpen())
        return all;
    m_database.forgetFailure();
    for (const DifficultyEntry& entry : Difficulties)
        for (const bool withHints : {false, true}) {
            SolvingTimes& times = all.emplace_back();
            times.difficulty = entry.difficulty;
            times.withHints = withHints;
            std::vector<std::int64_t> seconds;
            Statement& row =
                m_statements->times.with(std::string_view(&entry.letter, 1), withHints);
            for (; row.next(); times.thisWeek += row.number(1) != 0 ? 1 : 0)
                seconds.push_back(row.number(0));
            row.with();
            times.solved = static_cast<int>(seconds.size());
            times.best = seconds.empty() ? 0 : seconds.front();
            times.usual = seconds.empty() ? 0 : seconds[(seconds.size() - 1) / 2];
        }
    return all;
}

Outcome PlayBook::emptyStatistics() {
    if (!isOpen())
        return Outcome::done();
    m_database.begin(Transaction::Write);
    m_database.execute("DELETE FROM solving");
    return told(m_database.commit());
}

std::optional<LastPuzzle> PlayBook::last() {
    std::istringstream text(setting(LastSetting));
    LastPuzzle puzzle;
    std::string path;
    if (!(text >> puzzle.number >> puzzle.record))
        return std::nullopt;
    text.ignore();
    std::getline(text, path, '\0');
    puzzle.path = path;
    return puzzle;
}

Outcome PlayBook::rememberLast(const LastPuzzle& puzzle) {
    return set(LastSetting,
               std::to_string(puzzle.number) + " " + puzzle.record + " " + puzzle.path.native());
}

std::string PlayBook::setting(std::string_view name) {
    if (!isOpen())
        return {};
    m_database.forgetFailure();
    Statement& row = m_statements->setting.with(name);
    std::string value = row.next() ? row.text(0) : std::string();
    row.with();
    return value;
}

Outcome PlayBook::set(std::string_view name, std::string_view value) {
    if (!isOpen())
        return Outcome::done();
    m_database.begin(Transaction::Write);
    m_statements->set.with(name, value).run();
    ++m_changesInLog;
    return told(m_database.commit());
}

SolvedPuzzles::SolvedPuzzles(const fs::path& book) {
    m_database.open(book, DatabaseUse::ReadOnly);
    m_isSolved = Statement(m_database, IsSolved);
}

bool SolvedPuzzles::contain(std::string_view record) {
    const bool solved = m_isSolved.with(record).next();
    m_isSolved.with();
    return solved;
}

} // namespace tessaly
