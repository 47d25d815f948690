#pragma once

#include "core/base/prompts.h"
#include "core/play/display.h"
#include "core/session/session.h"
#include "core/session/solved_count.h"

#include <chrono>
#include <optional>
#include <string>

namespace tessaly {

/// Sees to it that what the player does is kept: every change of the game goes into the book, if
/// there is one, before anything else happens, and with it the time that was played. That the board
/// has come out right is shown after all else.
class PlayKeeping {
public:
    /// The session must outlive it. As long as it lives the game tells it of every change.
    PlayKeeping(Session& session, Display& display, Prompts& prompts);
    ~PlayKeeping();
    PlayKeeping(const PlayKeeping&) = delete;
    PlayKeeping& operator=(const PlayKeeping&) = delete;

    /// The puzzle is about to leave the board.
    void leave();
    /// Another puzzle is on the board: puts back what is known of its play.
    void resume();

    /// Time is counted only while the player is at the window.
    void setPresent(bool present);
    /// Brings the seconds played up to now.
    void countTime();

    /// "37 of 500 solved", of the file that is played; "" as long as it is not known.
    std::string solvedInWords() const { return m_solved.inWords(); }
    /// Counts them anew.
    void countSolved();

    /// Tells the player what went wrong, if anything.
    void tell(const Outcome& outcome);

private:
    using Clock = std::chrono::steady_clock;

    void keep();

    Session& m_session;
    Display& m_display;
    Prompts& m_prompts;
    /// Up to when the time is counted, while it is.
    std::optional<Clock::time_point> m_countedTo;

    SolvedCount m_solved;
    /// The file whose solved puzzles are counted, and whether the one on the board is one of them.
    FileState m_countedFile;
    bool m_isCountedSolved = false;
};

} // namespace tessaly
