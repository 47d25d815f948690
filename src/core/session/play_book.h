#pragma once

#include "core/base/outcome.h"
#include "core/board/difficulty.h"
#include "core/files/database.h"
#include "core/play/play.h"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace tessaly {

/// The puzzle that was shown when the game ended last.
struct LastPuzzle {
    /// Empty when it stands in no file.
    std::filesystem::path path;
    int number = 1;
    /// Its record without the progress; empty when only the file is known.
    std::string record = {};
};

/// How the player did at the puzzles of one difficulty that were solved with hints, or without.
struct SolvingTimes {
    Difficulty difficulty = Difficulty::Easy;
    bool withHints = false;
    int solved = 0;
    int thisWeek = 0;
    /// In seconds; the usual time is the median. 0 where nothing was solved.
    std::int64_t best = 0;
    std::int64_t usual = 0;
};

/// The database in which all play is kept, by the puzzle and not by the file that it stands in:
///
///     puzzle   one row for each puzzle that was begun, known by the 119 characters of its record
///     step     its undo records, steps that changed the marks, and what can be done again; each
///              stack counts its texts from the oldest, 0
///     solving  one row for each puzzle that was solved, for the statistics
///     setting  what else is to be found again at the next start
///
/// Each change is there when the call returns, whatever ends the process afterwards, and costs as
/// much as the change, not as the play before it. Several programs may have the book open; of two
/// that play the same puzzle the one that changed it last has its say, whole.
///
/// Where an outcome holds a problem, the player should be told; the same trouble is not told twice
/// in a row.
class PlayBook {
public:
    static constexpr const char* FileName = "play.db";

    explicit PlayBook(std::filesystem::path path);
    ~PlayBook();
    PlayBook(const PlayBook&) = delete;
    PlayBook& operator=(const PlayBook&) = delete;

    /// Opens the book, or begins it. One that is damaged is set aside, which the outcome tells,
    /// and a new one begun; one that this program cannot use stays as it is, and is not open.
    Outcome open();
    bool isOpen() const { return m_statements != nullptr; }

    /// Another puzzle is on the board: puts back what is known of it.
    Outcome resume(Play& play);
    /// Keeps what has changed in the play of that puzzle; nothing of one that was never begun, nor
    /// of another puzzle.
    Outcome keep(Play& play);

    /// Forgets the play of puzzles, by their records, but not that they were solved for the
    /// statistics.
    Outcome forget(const std::vector<std::string>& records);

    bool isSolved(std::string_view record);

    std::vector<SolvingTimes> statistics();
    Outcome emptyStatistics();

    /// The puzzle that `rememberLast` named last; none at first.
    std::optional<LastPuzzle> last();
    Outcome rememberLast(const LastPuzzle& puzzle);

    /// "" for a setting that was never made.
    std::string setting(std::string_view name);
    Outcome set(std::string_view name, std::string_view value);

    const std::filesystem::path& path() const { return m_path; }

private:
    struct Statements;

    Outcome begin();
    Outcome migrate();
    void startCheck();
    void stop();
    Outcome setAside();
    Outcome told(const Outcome& outcome);
    void emptyLog();
    void readSteps(Play& play);
    bool wasCounted();
    void countSolving(const Play& play);
    void keepSteps(Play& play, std::int64_t row, bool anew);
    Outcome keepOnce(Play& play);

    std::filesystem::path m_path;
    Database m_database;
    std::unique_ptr<Statements> m_statements;
    std::string m_toldLast;
    int m_changesInLog = 0;

    /// Looks through the whole book beside the play, which takes long for a large one.
    Database m_checked;
    std::thread m_check;
    std::atomic<bool> m_isChecked = false;
    std::atomic<bool> m_isDamageFound = false;

    /// The puzzle that is played: the 119 characters of its record, its row, 0 for none, and the
    /// number that the row bore when it was read or written here last.
    std::string m_record;
    std::int64_t m_row = 0;
    std::int64_t m_version = 0;
};

/// The solved puzzles of a book as another thread than the player's asks for them.
class SolvedPuzzles {
public:
    explicit SolvedPuzzles(const std::filesystem::path& book);

    bool contain(std::string_view record);

private:
    Database m_database;
    Statement m_isSolved;
};

} // namespace tessaly
