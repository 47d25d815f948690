#include "core/session/solved_count.h"

#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/session/play_book.h"

namespace tessaly {

void SolvedCount::stop() {
    m_isStopped = true;
    if (m_thread.joinable())
        m_thread.join();
    m_isStopped = false;
}

void SolvedCount::begin(const std::filesystem::path& book, const std::filesystem::path& puzzles) {
    stop();
    m_isDone = false;
    m_solved = m_count = 0;
    m_thread = std::thread([this, book, puzzles] {
        SolvedPuzzles solved(book);
        const Outcome read = forEachRecord(puzzles, [&](RecordLine line) {
            m_solved += solved.contain(line.text.substr(0, RecordLength)) ? 1 : 0;
            ++m_count;
            return !m_isStopped;
        });
        m_isDone = read.ok() && !m_isStopped;
    });
}

std::string SolvedCount::inWords() const {
    return m_isDone ? std::to_string(m_solved) + " of " + std::to_string(m_count) + " solved"
                    : std::string();
}

} // namespace tessaly
