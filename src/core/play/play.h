#pragma once

#include "core/board/board.h"
#include "core/play/text_stack.h"
#include "core/play/undo_list.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaly {

/// A puzzle and all that the player did with it. A plain value.
struct Play {
    Board board;
    /// Whether an undo record was pushed for the cell since the puzzle was loaded.
    Grid<bool> TouchedCell;
    UndoList undoList;
    /// Steps that changed many cells at once leave no undo records. Each is a text beside them: how
    /// many undo records lie beneath it, a blank, and the position before it.
    TextStack wideSteps;
    /// What was taken back, step by step: the position before that, and on lines of their own the
    /// undo records of the step, the oldest first; none for a step that changed many cells.
    TextStack redoSteps;

    /// How often the solution was looked at.
    int hints = 0;
    std::int64_t seconds = 0;
    /// Whether this play has come to its end, and whether it or one before it did.
    bool isFinished = false;
    bool wasSolved = false;

    /// Whether the player has entered anything, or something can be taken back.
    bool isBegun() const;
};

/// A position as one text: for each of the 114 cells its entry, "!" when it was touched, and a
/// comma. What a given holds is never told.
std::string positionText(const Play& play);

/// Puts the position of such a text on the board of its puzzle. A text that is none is refused, and
/// nothing changes.
bool readPosition(std::string_view text, Play& play);

/// Whether all texts of a play that comes from outside are what they should be.
bool isSound(const Play& play);

} // namespace tessaly
