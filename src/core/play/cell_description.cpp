#include "core/play/cell_description.h"

#include "core/board/tables.h"
#include "core/play/pencil_marks.h"

#include <array>

namespace tessaly {
namespace {

constexpr std::array<std::string_view, CellCount + 1> Places{
    "", "upper left", "top", "upper right", "lower right", "bottom", "lower left"};

/// So many changed cells are told one by one.
constexpr std::size_t MostTold = 6;

/// "1 3 5" for "135".
std::string apart(std::string_view digits) {
    std::string text;
    for (char digit : digits) {
        if (!text.empty())
            text += ' ';
        text += digit;
    }
    return text;
}

} // namespace

std::string_view placeInWords(int position) {
    return Places[static_cast<std::size_t>(position)];
}

std::string cellInWords(CellId cell) {
    return "hexagon " + std::to_string(cell.hexagon) + ", " +
           std::string(placeInWords(cell.position));
}

std::string entryInWords(const Board& board, CellId cell) {
    const std::string& entry = board.CellNum[cell];
    if (board.isBlank(cell.hexagon))
        return "withheld";
    if (entry.empty())
        return "empty";
    if (!isPlaced(entry))
        return "marks " + apart(digitsOf(entry));
    return (board.FixedCell[cell] ? "given " : "") + entry;
}

std::string neighbourInWords(const Board& board, CellId cell) {
    const CellId neighbour = SideLink[cell];
    if (!neighbour)
        return "at the edge";
    return "across: " + cellInWords(neighbour) + ", " + entryInWords(board, neighbour);
}

std::string hexagonInWords(const Board& board, int hexagon) {
    std::string text = "hexagon " + std::to_string(hexagon);
    for (int position = 1; position <= CellCount; ++position)
        text.append(position == 1 ? ": " : ", ")
            .append(placeInWords(position))
            .append(" ")
            .append(entryInWords(board, {hexagon, position}));
    return text;
}

std::string missingInWords(const Board& board, int hexagon) {
    const std::string missing = apart(Without("123456", board.PlacedNumbers(hexagon)));
    return "missing " + (missing.empty() ? "nothing" : missing);
}

std::string changesInWords(const Board& board, const std::vector<CellId>& changed, CellId at) {
    if (changed.size() > MostTold)
        return std::to_string(changed.size()) + " cells changed";
    std::string text;
    for (CellId cell : changed) {
        if (!text.empty())
            text += "; ";
        if (cell != at)
            text += cellInWords(cell) + ", ";
        text += entryInWords(board, cell);
    }
    return text;
}

} // namespace tessaly
