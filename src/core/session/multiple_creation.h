#pragma once

#include "core/session/puzzle_file_commands.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>

namespace tessaly {

/// What a long creation was asked for.
struct CreationOrder {
    /// The puzzle file that the new puzzles are appended to.
    std::filesystem::path path;
    DifficultyChoice difficulty;
    int count = 0;
};

/// Asks what to create: the dialog, as the command sees it. Nothing when the user cancels.
class CreationOrderChoice {
public:
    virtual ~CreationOrderChoice() = default;
    virtual std::optional<CreationOrder> choose() = 0;
};

/// Creates many puzzles in one go ("AutoCreate") and appends them to a puzzle file. The puzzles of
/// a short while are written together, flushed to the disk, and only then counted as made.
class MultipleCreation {
public:
    MultipleCreation(Session& session, PuzzleFileCommands& files, Display& display,
                     Prompts& prompts, CreationOrderChoice& orders, Chance chance);

    /// Asks for an order, then for a confirmation, and carries it out.
    void run();
    /// Carries out an order at once; `made` counts the puzzles that are at the end of the file.
    Outcome create(const CreationOrder& order, int& made);
    /// Ends a run that is under way as soon as it notices; what is in the file stays.
    void stop() { m_stopped = true; }

private:
    bool confirmed(const CreationOrder& order);
    void carryOut(const CreationOrder& order);
    /// Creates until all are made, the file cannot be written, or the run is stopped; `made` counts
    /// those that are on the disk.
    Outcome createAll(const CreationOrder& order, int& made);
    Outcome append(const std::filesystem::path& path, const std::string& records);
    bool waitFor(const std::function<bool()>& attempt);
    /// The records of a short while, counted in `made`.
    std::string createSome(const CreationOrder& order, int& made);
    /// A record that was not made in this run before.
    std::string createOne(const CreationOrder& order, int number);
    void showPuzzleAgain();
    void report(const CreationOrder& order, int made, const Outcome& outcome);

    Session& m_session;
    PuzzleFileCommands& m_files;
    Display& m_display;
    Prompts& m_prompts;
    CreationOrderChoice& m_orders;
    PuzzleStore m_store;
    SearchFill m_fill;
    Chance m_chance;
    std::unordered_set<std::string> m_known;
    std::atomic<bool> m_stopped = false;
    /// Whether the thread that writes waits for another program.
    std::atomic<bool> m_waiting = false;
};

} // namespace tessaly
