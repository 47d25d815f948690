#include "core/play/play.h"

namespace tessaly {
namespace {

constexpr char TouchedMark = '!';
constexpr char CellEnd = ',';

/// Takes the text of one cell off the front of a position.
bool readCell(std::string_view& text, CellId cell, Play& play) {
    const std::size_t end = text.find(CellEnd);
    if (end == std::string_view::npos)
        return false;
    std::string_view entry = text.substr(0, end);
    text.remove_prefix(end + 1);
    play.TouchedCell[cell] = entry.ends_with(TouchedMark);
    if (play.TouchedCell[cell])
        entry.remove_suffix(1);
    if (!play.board.FixedCell[cell])
        play.board.CellNum[cell] = entry;
    return entry.size() <= Play::LongestEntry &&
           entry.find_first_not_of("0123456") == std::string_view::npos;
}

} // namespace

std::string positionText(const Play& play) {
    std::string text;
    for (CellId cell : AllCells) {
        if (!play.board.FixedCell[cell])
            text += play.board.CellNum[cell];
        if (play.TouchedCell[cell])
            text += TouchedMark;
        text += CellEnd;
    }
    return text;
}

bool readPosition(std::string_view text, Play& play) {
    Play read{play.board, {}, {}, {}, {}};
    for (CellId cell : AllCells)
        if (!readCell(text, cell, read))
            return false;
    play.board = std::move(read.board);
    play.TouchedCell = read.TouchedCell;
    return text.empty();
}

} // namespace tessaly
