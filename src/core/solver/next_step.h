#pragma once

#include "core/board/board.h"
#include "core/solver/player_view.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace tessaly {

/// Why a number must stand where it does, in the order in which a person tries the reasons.
enum class Reason {
    Across, ///< it stands across the side
    Last,   ///< it is the only number that the hexagon lacks
    Place,  ///< it has one place left in the hexagon
    Cell,   ///< it is the only one that both hexagons of the cell leave
    Xcell,  ///< of the three pairs at a corner only this one can hold it
};

/// A reason in one word, and said of the numbers that it places.
struct ReasonEntry {
    Reason reason;
    std::string_view word;
    std::string_view description;
};
inline constexpr std::array<ReasonEntry, 5> Reasons{{
    {Reason::Across, "across", "Numbers across a side"},
    {Reason::Last, "last", "Last numbers of a hexagon"},
    {Reason::Place, "place", "Numbers with one place left in a hexagon"},
    {Reason::Cell, "cell", "Triangles with one number left"},
    {Reason::Xcell, "xcell", "Pairs that alone can hold a number at a corner"},
}};

/// A number that follows from what stands on the board.
struct Step {
    Reason reason = Reason::Across;
    CellId cell;
    int digit = 0;
    /// The cells whose numbers prove it: with these alone the cell can hold nothing else.
    std::vector<CellId> proof;
    /// The corner of a step by `Xcell`, 1..24; else 0.
    int xcell = 0;
};

/// The step that a person takes first; none where the rules lead no further. It sees what a player
/// sees and nothing of the solution. The blank hexagon obeys the rules too, and a step may lie in
/// one of its cells.
///
///     WithheldDigits withheld{};
///     while (const auto step = nextStep(board, withheld))
///         take(*step, board, withheld);
///
/// Where numbers on the board are wrong, what follows from them is too: see mistakes.h.
std::optional<Step> nextStep(const Board& board, const WithheldDigits& withheld = {});

/// Enters a step's number, or remembers that the blank hexagon must hold it.
void take(const Step& step, Board& board, WithheldDigits& withheld);

/// How many sides can be settled at once, each by whatever reason but `Across`.
int countOpenSteps(const Board& board, const WithheldDigits& withheld);

/// The way that the steps lead from a puzzle's givens, and the board at its end.
struct Way {
    std::vector<Step> steps;
    Board end;
};
Way wayFromGivens(Board board);

} // namespace tessaly
