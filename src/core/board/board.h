#pragma once

#include "core/board/difficulty.h"
#include "core/board/vocabulary.h"

#include <string>
#include <string_view>

namespace tessaly {

/// A puzzle and what its cells hold now. A plain value: copy it, compare it, have as many as you
/// like.
struct Board {
    /// The solution digit "1".."6" of each cell; "" before a puzzle is loaded.
    Grid<std::string> SolNum;
    /// The entry of each cell, and its length is its meaning: "" is an empty cell, one character a
    /// placed number, two to six characters are pencil marks (in the solver: candidates).
    Grid<std::string> CellNum;
    /// Whether the cell is a given.
    Grid<bool> FixedCell;

    Difficulty difficulty = Difficulty::Easy;
    /// The hexagon that is drawn solid and withheld from play; a value outside 1..19 is none.
    int BlankHex = NoHexagon;
    /// A hexagon that the rules for single hexagons leave out; `NoHexagon` unless one is at work on
    /// it.
    int SkipHex = NoHexagon;
    /// The hint of a hard puzzle: a position and the number that belongs there; 0 in easy ones.
    int HintCell = 0;
    int HintNum = 0;

    std::string_view DifName() const { return entryOf(difficulty).name; }
    bool isBlank(int hexagon) const {
        return (BlankHex > 0 && hexagon == BlankHex) || hexagon == SkipHex;
    }

    /// Empties every cell and gives each given its solution digit again.
    void ResetToGivens();

    /// The settled digits of a hexagon: its one-character entries, joined in cell order.
    std::string PlacedNumbers(int hexagon) const;

    friend bool operator==(const Board&, const Board&) = default;
};

/// Whether an entry is a placed number.
inline bool isPlaced(const std::string& entry) {
    return entry.size() == 1;
}

/// `text` without any character that `removed` holds.
std::string Without(std::string_view text, std::string_view removed);

} // namespace tessaly
