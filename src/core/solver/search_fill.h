#pragma once

#include "core/board/arrangements.h"
#include "core/board/digit_set.h"
#include "core/solver/chance.h"
#include "core/solver/packed_board.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace tessaly {

/// The digits of a hexagon's cells 1 to 6, each of 1 to 6 once.
using Arrangement = std::array<std::uint8_t, CellCount>;

/// All 720 arrangements in ascending order.
std::vector<Arrangement> allArrangements();

/// The arrangements that the words of a table stand for.
std::vector<Arrangement> arrangementsOf(const ArrangementTable& table);

/// How a search for a filling ended.
struct FillResult {
    bool filled = false;
    /// How many attempts were made, the last one included.
    int attempts = 0;
};

/// Finds random complete fillings of the board: the hexagons are slots, the arrangements of a table
/// the candidates, the shared sides the crossings. From a table of all arrangements it draws evenly
/// (see even_fill.h), from any other it searches. Never changes once it is built, so any number of
/// threads may share one.
class SearchFill {
public:
    static constexpr int MaxAttempts = 50;

    /// Told of each hexagon that changes; its word is 0 when it is emptied again.
    using OnChange = std::function<void(int hexagon, HexagonWord cells)>;

    /// `table` holds at most 750 arrangements.
    explicit SearchFill(std::span<const Arrangement> table);

    /// Fills every hexagon, or leaves some empty when `MaxAttempts` attempts found no filling
    /// (which takes a table that lacks arrangements).
    FillResult fill(HexagonWords& cells, Chance& chance, const OnChange& onChange = {}) const;

    static constexpr std::size_t BlockCount = 12;
    /// One bit for each arrangement of the table.
    using Choices = std::array<std::uint64_t, BlockCount>;

    /// The arrangements whose cells hold only digits of the given sets.
    Choices choices(const std::array<DigitSet, CellCount>& allowed) const;
    HexagonWord arrangement(std::size_t index) const { return m_arrangements[index]; }

private:
    static constexpr std::size_t SetCount = 64;

    bool fillEvenly(HexagonWords& cells, Chance& chance, const OnChange& onChange) const;

    bool m_isComplete;
    std::vector<HexagonWord> m_arrangements;
    /// For each cell and each digit set, the arrangements that put a digit of the set there.
    std::array<std::array<Choices, SetCount>, CellCount> m_fitting{};
};

} // namespace tessaly
