#pragma once

#include "core/board/board.h"

#include <array>
#include <string_view>
#include <vector>

namespace tessaly {

/// What the player wants to be shown about the board while playing.
struct ViewSwitches {
    bool showBrokenRules = true;
    bool showEqualNumbers = true;
    bool fadeImpossibleMarks = false;

    friend bool operator==(const ViewSwitches&, const ViewSwitches&) = default;
};

/// A switch, and the name under which it is remembered.
struct ViewSwitch {
    std::string_view setting;
    bool ViewSwitches::*value;
};
inline constexpr std::array AllViewSwitches{
    ViewSwitch{"showBrokenRules", &ViewSwitches::showBrokenRules},
    ViewSwitch{"showEqualNumbers", &ViewSwitches::showEqualNumbers},
    ViewSwitch{"fadeImpossibleMarks", &ViewSwitches::fadeImpossibleMarks},
};

/// What stands out on the board. Nothing of it needs the solution, and the blank hexagon is never
/// looked at.
struct Highlights {
    struct Mark {
        CellId cell;
        char digit;
        friend bool operator==(const Mark&, const Mark&) = default;
    };

    /// The cell that is looked at, and the one across its side.
    std::vector<CellId> looked;
    /// The cells that hold the number that is looked for, or have it among their marks.
    std::vector<CellId> equal;
    /// The cells whose number stands twice in their hexagon.
    std::vector<CellId> repeated;
    /// Of each side with two different numbers the cell in the lower hexagon.
    std::vector<CellId> differing;
    /// Marks that the placed numbers rule out.
    std::vector<Mark> impossible;
};

/// What stands out while the player looks at a cell, or at none, and for a digit, or for none (0).
Highlights highlightsOf(const Board& board, const ViewSwitches& switches, CellId looked,
                        char digit = 0);

/// Whether a cell's number breaks a rule: it stands twice in its hexagon, or another one is across
/// the side.
bool breaksARule(const Board& board, CellId cell);

} // namespace tessaly
