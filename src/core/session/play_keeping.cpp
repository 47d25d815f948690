#include "core/session/play_keeping.h"

#include "core/board/puzzle_record.h"

namespace tessaly {

PlayKeeping::PlayKeeping(Session& session, Display& display, Prompts& prompts)
    : m_session(session)
    , m_display(display)
    , m_prompts(prompts) {
    m_session.game.changed = [this] { keep(); };
    // When the command that did it has drawn and said what it has to.
    m_session.game.solved = [this](CellId last) {
        m_display.afterwards({}, [this, last] { m_display.showSolved(last); });
    };
}

PlayKeeping::~PlayKeeping() {
    m_session.game.changed = {};
    m_session.game.solved = {};
}

void PlayKeeping::tell(const Outcome& outcome) {
    if (!outcome.ok())
        m_prompts.message(outcome.problem, style::Critical);
}

void PlayKeeping::keep() {
    countTime();
    if (m_session.book)
        tell(m_session.book->keep(m_session.game));
    if (m_session.game.wasSolved != m_isCountedSolved)
        countSolved();
    m_display.showPlay();
}

void PlayKeeping::countSolved() {
    m_countedFile = m_session.files.lastRead();
    m_isCountedSolved = m_session.game.wasSolved;
    if (m_session.book && m_session.puzzle.PuzNum > 0)
        m_solved.begin(m_session.book->path(), m_session.puzzle.PuzPath);
}

void PlayKeeping::leave() {
    countTime();
    if (m_session.book)
        tell(m_session.book->keep(m_session.game));
}

void PlayKeeping::resume() {
    countTime(); // what has passed was not played at this one
    m_session.game.seconds = 0;
    if (!m_session.book || !m_session.game.hasPuzzle())
        return;
    tell(m_session.book->resume(m_session.game));
    const LastPuzzle last{m_session.puzzle.PuzPath, m_session.puzzle.PuzNum,
                          PuzzleRecord(m_session.game.board).substr(0, RecordLength)};
    tell(m_session.book->rememberLast(last));
    m_isCountedSolved = m_session.game.wasSolved;
    if (m_session.files.lastRead() != m_countedFile)
        countSolved();
}

void PlayKeeping::setPresent(bool present) {
    if (present == m_countedTo.has_value())
        return;
    if (!present)
        leave();
    m_countedTo = present ? std::optional(Clock::now()) : std::nullopt;
}

void PlayKeeping::countTime() {
    if (!m_countedTo)
        return;
    const auto passed = std::chrono::floor<std::chrono::seconds>(Clock::now() - *m_countedTo);
    *m_countedTo += passed;
    if (m_session.game.hasPuzzle() && !m_session.game.isFinished)
        m_session.game.seconds += passed.count();
}

} // namespace tessaly
