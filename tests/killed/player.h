#pragma once

#include "core/session/session.h"

#include <functional>
#include <random>
#include <string>
#include <unistd.h>

/// A player who never stops: whoever kills the process finds in what it said how far it came.
namespace tessaly::killed {

/// Says a line in one piece, which no end of the process takes back.
inline void say(std::string_view what, const std::string& about) {
    const std::string line = std::string(what) + " " + about + "\n";
    if (::write(STDOUT_FILENO, line.data(), line.size()) < 0)
        ::_exit(2);
}

/// All that is to be found again of a play, as one number.
inline std::string stateOf(const Game& game) {
    std::string text = positionText(game);
    for (const TextStack* stack :
         {static_cast<const TextStack*>(&game.undoList), &game.wideSteps, &game.redoSteps})
        for (std::size_t age = 0; age <= stack->size(); ++age)
            text += age < stack->size() ? "\n" + stack->text(age) : ";";
    return std::to_string(std::hash<std::string>()(text));
}

/// Whether the book holds what is on the board, as another program reads it.
inline bool isStored(const Game& game, Database& book) {
    book.forgetFailure();
    Statement position(book, "SELECT position FROM puzzle");
    return position.next() && position.text(0) == positionText(game) &&
           game.undoList.stored() == game.undoList.size() &&
           game.wideSteps.stored() == game.wideSteps.size() &&
           game.redoSteps.stored() == game.redoSteps.size();
}

/// Says what was found at the start, and for ever after what is being changed and what is kept:
///
///     found 123        told FILE: ...        does 456        kept 456
///
/// `press` gives the game one of its keys.
[[noreturn]] inline void playForEver(Session& session,
                                     const std::function<void(std::mt19937&)>& press) {
    Game& game = session.game;
    say("found", stateOf(game));
    Database book;
    book.open(session.book->path(), DatabaseUse::ReadOnly);
    game.changed = [&game, &book, keep = game.changed] {
        say("does", stateOf(game));
        keep();
        say(isStored(game, book) ? "kept" : "lost", stateOf(game));
    };
    std::mt19937 chance(std::random_device{}());
    for (;;)
        press(chance);
}

inline int sayingWhatFails(const std::function<int()>& play) {
    try {
        return play();
    } catch (const std::exception& problem) {
        say("told", problem.what());
        return 1;
    }
}

} // namespace tessaly::killed
