#include "core/session/play_book_commands.h"

#include "core/board/puzzle_record.h"
#include "core/session/while_at_work.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tessaly {
namespace {

/// How many puzzles are looked at between two looks at what the player does meanwhile.
constexpr int AtOnce = 500;

} // namespace

PlayBookCommands::PlayBookCommands(Session& session, PlayKeeping& keeping,
                                   PuzzleFileCommands& files, Display& display, Prompts& prompts)
    : m_session(session)
    , m_keeping(keeping)
    , m_files(files)
    , m_display(display)
    , m_prompts(prompts) {}

/// 0 when there is none.
int PlayBookCommands::nextUnsolved() {
    const WhileAtWork atWork(m_session, m_display);
    const CurrentPuzzle shown = m_session.puzzle;
    Board board;
    for (int step = 1; step < shown.PuzCount; ++step) {
        const int number = (shown.PuzNum - 1 + step) % shown.PuzCount + 1;
        const PuzzleRead read = m_session.files.ReadPuzzle(shown.PuzPath, number, board);
        if (read.ok() &&
            !(m_session.book && m_session.book->isSolved(read.record.substr(0, RecordLength))))
            return number;
        if (step % AtOnce == 0)
            m_display.yield();
    }
    return 0;
}

void PlayBookCommands::mnunextunsolved() {
    if (m_session.puzzle.PuzNum == 0)
        return;
    if (const int number = nextUnsolved(); number != 0)
        static_cast<void>(m_files.ReadPuzzle(m_session.puzzle.PuzPath, number).ok());
    else
        m_display.showMessage("There is no other unsolved puzzle in this file");
    m_display.focusBoard();
}

bool PlayBookCommands::confirmed(std::string_view question) {
    return m_prompts.message(question, "vbyesno+vbquestion+vbdefaultbutton2") == answer::Yes;
}

void PlayBookCommands::mnuforgetpuzzle() {
    Game& game = m_session.game;
    if (!m_session.book || !game.hasPuzzle() || !confirmed("Forget what you played here?"))
        return;
    m_keeping.tell(m_session.book->forget({PuzzleRecord(game.board).substr(0, RecordLength)}));
    showAgain();
}

void PlayBookCommands::mnuforgetfile() {
    const CurrentPuzzle shown = m_session.puzzle;
    if (!m_session.book || shown.PuzNum == 0 ||
        !confirmed("Forget what you played in ALL puzzles of this file?"))
        return;
    Outcome forgotten;
    m_display.beginProgress(shown.PuzPath);
    {
        const WhileAtWork atWork(m_session, m_display);
        const RunClock clock;
        std::vector<std::string> records;
        int done = 0;
        const auto forget = [&] {
            done += static_cast<int>(records.size());
            forgotten = m_session.book->forget(std::exchange(records, {}));
            m_display.showProgress(clock.progress(std::min(done, shown.PuzCount), shown.PuzCount));
            m_display.yield();
            return forgotten.ok();
        };
        Outcome read = forEachRecord(shown.PuzPath, [&](RecordLine line) {
            records.emplace_back(line.text.substr(0, RecordLength));
            return records.size() < AtOnce || forget();
        });
        if (forgotten.ok() && forget())
            forgotten = std::move(read);
    }
    m_display.endProgress();
    showAgain();
    if (forgotten.ok())
        m_display.showMessage("What you played in this file is forgotten");
    m_keeping.tell(forgotten);
}

/// The puzzle as it is when nothing was played.
void PlayBookCommands::showAgain() {
    m_keeping.countSolved();
    const CurrentPuzzle shown = m_session.puzzle;
    if (shown.PuzNum > 0) {
        static_cast<void>(m_files.ReadPuzzle(shown.PuzPath, shown.PuzNum).ok());
    } else {
        m_session.game.board.ResetToGivens();
        m_session.game.startPuzzle();
        m_files.showWithoutFile();
    }
    m_display.focusBoard();
}

} // namespace tessaly
