#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

namespace tessaly {

/// Counts, beside all else, how many puzzles of a file are solved.
class SolvedCount {
public:
    SolvedCount() = default;
    ~SolvedCount() { stop(); }
    SolvedCount(const SolvedCount&) = delete;
    SolvedCount& operator=(const SolvedCount&) = delete;

    /// Begins to count; a count that is under way is given up.
    void begin(const std::filesystem::path& book, const std::filesystem::path& puzzles);

    /// "37 of 500 solved"; "" as long as it is not known.
    std::string inWords() const;

private:
    void stop();

    std::thread m_thread;
    std::atomic<bool> m_isStopped = false;
    std::atomic<bool> m_isDone = false;
    std::atomic<int> m_solved = 0;
    std::atomic<int> m_count = 0;
};

} // namespace tessaly
