#pragma once

#include "core/play/entry_effects.h"
#include "core/play/play.h"

#include <functional>
#include <optional>
#include <string>

namespace tessaly {

/// The decimal text of a number: "3" for 3.
std::string NumText(int number);

/// The rules by which a puzzle is played. Every change of a cell goes through here, its undo record
/// pushed before the entry is written; a new change forgets what could be done again.
class Game : public Play {
public:
    PlaySwitches switches;
    /// Called after every change of the play; may be empty.
    std::function<void()> changed;
    /// Called after that when the board has come out right, with the cell that was entered last, or
    /// none; may be empty.
    std::function<void(CellId)> solved;

    /// Whether there is a puzzle on the board: every cell of one has a solution.
    bool hasPuzzle() const { return !board.SolNum[AllCells.front()].empty(); }

    /// Whether the player may know what the cell holds: a puzzle is loaded, and it is not withheld.
    bool isReadable(CellId cell) const;

    /// Whether the player may enter anything in the cell: never while no puzzle is loaded.
    bool isSelectable(CellId cell) const;

    /// Forgets the play of the puzzle before: call after another puzzle was put on the board.
    void startPuzzle();
    /// Takes the puzzle off the board.
    void takeAway();

    /// Remembers the cell's entry before a change; nothing for a cell below hexagon 1, position 1.
    void PushUndo(int hexagon, int position);

    // Entries, and what goes with them by the switches. They return what to draw again.

    /// Replaces the entry by a number, or by nothing ("").
    HexagonSet place(CellId cell, const std::string& entry);

    /// Appends a typed digit "0".."6": the first is a number, further ones make pencil marks, and
    /// so what went with the number just now is taken back. A digit that is there already, or a
    /// seventh, is ignored, but a lone mark becomes a number. Only the first can be undone.
    HexagonSet typeDigit(CellId cell, char digit);

    /// Makes a pencil mark, or takes one that is there.
    HexagonSet turnMark(CellId cell, char digit);

    /// Copies placed numbers across sides into every cell that holds none, as one undo group,
    /// hexagon by hexagon, so that an early copy feeds later ones. Adds the number of copies to
    /// `count`.
    void CopyAcrossSides(int& count);

    /// Sets the last missing number of every hexagon that lacks just one, as one undo group.
    /// Returns the number of cells set.
    int setSingles();

    /// Write pencil marks into all cells, and take all away, as one step that can be taken back.
    void fillMarks();
    void clearMarks();

    bool canUndo() const { return !undoList.empty() || !wideSteps.empty() || m_beforeReset; }
    bool canRedo() const { return !redoSteps.empty(); }

    /// Takes back the newest change, or a whole run of grouped ones, or a step that changed many
    /// cells; returns what to draw again.
    HexagonSet undo();

    /// Does again what was taken back last, as one step.
    void redo();

    /// Empties all that the player entered and forgets the undo records; the givens stay. Undo
    /// brings it all back until something new is entered or `forgetReset` is called.
    void reset();
    /// Whether there was anything left to bring back.
    bool forgetReset();

    /// The solution was looked at.
    void takeHint();

private:
    void pushGrouped(CellId cell);
    /// Remembers the whole position before a change.
    void pushWideStep();
    void takeBackWideStep();
    /// What could be done again, or brought back, no longer can.
    void forgetWhatWas();
    /// Something has changed: ends the play when all is solved, and tells.
    void told(CellId last = {});
    void undoStep(HexagonSet& changedHexagons);
    /// How many undo records lie beneath the newest step that changed many cells.
    std::size_t recordsBeneathWideStep() const;
    /// Takes the newest undo record back; its text.
    std::string undoRecord(HexagonSet& changedHexagons);

    std::optional<Play> m_beforeReset;
    /// The cell whose number was typed last, if other cells changed with it.
    CellId m_typedWithEffects;
};

} // namespace tessaly
