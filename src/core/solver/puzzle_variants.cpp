#include "core/solver/puzzle_variants.h"

namespace tessaly {
namespace {

// The places in a record, counted from 0; puzzle_record.h draws them.
constexpr std::size_t BlankPlace = 1;
constexpr std::size_t HintPlace = 3;
constexpr std::size_t CellsPlace = 5;
constexpr std::size_t ProgressPlace = 120;

/// What stands in the header: 0 in an easy puzzle's hint, 99 for no blank hexagon.
struct Header {
    int blank;
    int hint;
};

Header headerOf(std::string_view record) {
    const auto digit = [record](std::size_t place) { return record[place] - '0'; };
    return {10 * digit(BlankPlace) + digit(BlankPlace + 1), digit(HintPlace)};
}

void setHeader(std::string& record, const Header& header) {
    record[BlankPlace] = static_cast<char>('0' + header.blank / 10);
    record[BlankPlace + 1] = static_cast<char>('0' + header.blank % 10);
    record[HintPlace] = static_cast<char>('0' + header.hint);
}

bool isPosition(int hint) {
    return hint >= 1 && hint <= CellCount;
}

/// Moves one character for each cell.
void moveCells(std::string_view from, std::string& to, std::size_t place,
               const Symmetry& symmetry) {
    for (std::size_t i = 0; i < AllCells.size(); ++i) {
        const CellId image = symmetry.cell(AllCells[i]);
        const auto at =
            static_cast<std::size_t>((image.hexagon - 1) * CellCount + image.position - 1);
        to[place + at] = from[place + i];
    }
}

} // namespace

std::string transformed(std::string_view record, const Symmetry& symmetry) {
    std::string result(record);
    Header header = headerOf(record);
    if (isHexagon(header.blank))
        header.blank = symmetry.hexagon(header.blank);
    if (isPosition(header.hint))
        header.hint = symmetry.position(header.hint);
    setHeader(result, header);
    moveCells(record, result, CellsPlace, symmetry);
    if (record.size() > ProgressPlace)
        moveCells(record, result, ProgressPlace, symmetry);
    return result;
}

std::string mirroredTopBottom(std::string_view record, TopBottomHeader header) {
    std::string result = transformed(record, symmetry::TopBottom);
    if (header == TopBottomHeader::Follows)
        return result;
    Header changed = headerOf(record);
    if (isHexagon(changed.blank))
        changed.blank = HexagonCount + 1 - changed.blank;
    if (isPosition(changed.hint))
        changed.hint = CellCount + 1 - changed.hint;
    setHeader(result, changed);
    return result;
}

PuzzleVariants variantsOf(const std::string& record, TopBottomHeader header) {
    const std::string once = transformed(record, symmetry::Turn);
    const std::string twice = transformed(once, symmetry::Turn);
    return {record,
            transformed(record, symmetry::LeftRight),
            mirroredTopBottom(record, header),
            transformed(record, symmetry::Rising),
            transformed(record, symmetry::Falling),
            once,
            twice,
            transformed(twice, symmetry::Turn)};
}

} // namespace tessaly
