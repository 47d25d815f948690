#include "core/solver/puzzle_series.h"

#include "core/board/puzzle_record.h"
#include "core/solver/generator.h"

#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace tessaly {
namespace {

using Records = std::vector<std::string>;

/// So many that waking the taker costs next to nothing.
constexpr std::uint64_t BlockSize = 32;
/// So many that all threads go on while the taker waits for a disk.
constexpr std::uint64_t BlocksAhead = 32;

/// Blocks of records that several threads make in any order and one takes in theirs.
class BlockQueue {
public:
    explicit BlockQueue(int jobs)
        : m_ahead(BlocksAhead * static_cast<std::uint64_t>(jobs)) {}

    /// The next block to make, as soon as the taker is near enough; false when all is over.
    bool claim(std::uint64_t& block) {
        std::unique_lock lock(m_mutex);
        m_mayGoOn.wait(lock, [this] { return m_isOver || m_claimed < m_taken + m_ahead; });
        block = m_claimed++;
        return !m_isOver;
    }

    void put(std::uint64_t block, Records records) {
        const std::lock_guard lock(m_mutex);
        m_made.emplace(block, std::move(records));
        if (block == m_taken)
            m_nextIsMade.notify_one();
    }

    Records take() {
        std::unique_lock lock(m_mutex);
        m_nextIsMade.wait(lock, [this] { return m_made.count(m_taken) != 0; });
        Records records = std::move(m_made.at(m_taken));
        m_made.erase(m_taken++);
        m_mayGoOn.notify_all();
        return records;
    }

    bool isOver() const { return m_isOver; }

    void end() {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
        m_mayGoOn.notify_all();
    }

private:
    const std::uint64_t m_ahead;
    std::mutex m_mutex;
    std::condition_variable m_nextIsMade;
    std::condition_variable m_mayGoOn;
    std::map<std::uint64_t, Records> m_made;
    std::uint64_t m_claimed = 0;
    std::uint64_t m_taken = 0;
    std::atomic<bool> m_isOver = false;
};

void makeBlocks(const PuzzleSeries& series, std::uint64_t first, const SearchFill& fill,
                BlockQueue& queue) {
    for (std::uint64_t block = 0; queue.claim(block);) {
        Records records;
        for (std::uint64_t i = 0; i < BlockSize && !queue.isOver(); ++i)
            records.push_back(series.record(first + block * BlockSize + i, fill));
        queue.put(block, std::move(records));
    }
}

bool takeAll(const Records& records, const std::function<bool(const std::string&)>& take) {
    for (const std::string& record : records)
        if (!take(record))
            return false;
    return true;
}

/// As many threads as the system grants.
std::vector<std::thread> startThreads(int count, const std::function<void()>& work) {
    std::vector<std::thread> threads;
    try {
        for (int i = 0; i < count; ++i)
            threads.emplace_back(work);
    } catch (const std::system_error&) {
    }
    return threads;
}

bool hasStars(const Board& board, const StarRange& stars) {
    if (stars.isEverything())
        return true;
    const auto rating = ratePuzzle(board);
    return rating && stars.contains(rating->stars);
}

} // namespace

std::string PuzzleSeries::record(std::uint64_t index, const SearchFill& fill) const {
    Chance chance(seed, index);
    const Difficulty drawn = drawDifficulty(difficulty, chance);
    for (;;) {
        Board board;
        CreatePuzzle(board, drawn, chance, fill);
        if (hasStars(board, stars))
            return PuzzleRecord(board);
    }
}

void makeSeries(const PuzzleSeries& series, std::uint64_t first, int jobs, const SearchFill& fill,
                const std::function<bool(const std::string& record)>& take) {
    BlockQueue queue(jobs);
    const auto work = [&] { makeBlocks(series, first, fill, queue); };
    std::vector<std::thread> threads = startThreads(jobs > 1 ? jobs : 0, work);
    if (threads.empty()) {
        for (std::uint64_t index = first; take(series.record(index, fill)); ++index) {
        }
        return;
    }
    while (takeAll(queue.take(), take)) {
    }
    queue.end();
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace tessaly
