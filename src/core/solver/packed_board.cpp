#include "core/solver/packed_board.h"

#include "core/board/digit_set.h"

#include <algorithm>
#include <functional>

namespace tessaly {
namespace {

bool isAscending(const std::string& entry) {
    return std::adjacent_find(entry.begin(), entry.end(), std::greater_equal<>()) == entry.end();
}

unsigned packCandidates(const std::string& entry) {
    const unsigned digits = DigitSet::fromText(entry).bits();
    const bool onlyDigits = entry.front() >= '1' && entry.back() <= '6';
    return onlyDigits && isAscending(entry) ? digits : digits | word::UnusualBits;
}

} // namespace

unsigned packEntry(const std::string& entry) {
    if (entry.size() > 1)
        return packCandidates(entry);
    if (entry.empty())
        return 0;
    const DigitSet digit = DigitSet::fromText(entry);
    return digit.empty() ? word::ZeroBit : digit.bits();
}

void unpackEntry(unsigned byte, std::string& entry) {
    const DigitSet digits = DigitSet::fromBits(byte);
    if (std::has_single_bit(byte))
        entry.assign(1, digits.empty() ? '0' : static_cast<char>('0' + digits.first()));
    else
        entry = digits.text();
}

HexagonWords packEntries(const Grid<std::string>& entries) {
    HexagonWords cells{};
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        HexagonWord packed = 0;
        for (int position = 1; position <= CellCount; ++position)
            packed |= HexagonWord{packEntry(entries[{hexagon, position}])}
                      << word::shiftOf(position);
        cells[static_cast<std::size_t>(hexagon)] = packed;
    }
    return cells;
}

void unpackChanges(const HexagonWords& before, const HexagonWords& now,
                   Grid<std::string>& entries) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const HexagonWord cells = now[static_cast<std::size_t>(hexagon)];
        const HexagonWord changed = cells ^ before[static_cast<std::size_t>(hexagon)];
        for (int position = 1; changed != 0 && position <= CellCount; ++position)
            if (word::byteAt(changed, position) != 0)
                unpackEntry(word::byteAt(cells, position), entries[{hexagon, position}]);
    }
}

PackedBoard::PackedBoard(const HexagonWords& cells)
    : m_cells(cells) {
    for (std::size_t at = 1; at < m_cells.size(); ++at)
        settle(at, word::flagSettled(m_cells[at]));
}

bool PackedBoard::everyCellIsSettled() const {
    return std::all_of(m_openFlags.begin() + 1, m_openFlags.end(),
                       [](HexagonWord flags) { return flags == 0; });
}

} // namespace tessaly
