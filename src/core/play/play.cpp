#include "core/play/play.h"

#include "core/play/pencil_marks.h"

#include <algorithm>
#include <charconv>
#include <sstream>

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
    return isEntry(entry);
}

bool isUndoRecord(const std::string& text, const Play& play) {
    constexpr std::size_t PlaceDigits = 4;
    if (text.find_first_not_of("0123456789") < PlaceDigits || text.size() < PlaceDigits)
        return false;
    const UndoRecord record = UndoRecord::of(text);
    return std::find(AllCells.begin(), AllCells.end(), record.cell) != AllCells.end() &&
           !play.board.FixedCell[record.cell] && isEntry(record.entryBefore);
}

bool isRedoStep(const std::string& text, Play& scratch) {
    std::istringstream lines(text);
    std::string line;
    bool sound = std::getline(lines, line) && readPosition(line, scratch);
    while (sound && std::getline(lines, line))
        sound = isUndoRecord(line, scratch);
    return sound;
}

template <class Test>
bool allOf(const TextStack& stack, Test test) {
    bool sound = true;
    for (std::size_t age = stack.size(); sound && age-- > 0;)
        sound = test(stack.text(age));
    return sound;
}

} // namespace

bool Play::isBegun() const {
    const bool entered = std::any_of(AllCells.begin(), AllCells.end(), [this](CellId cell) {
        return !board.FixedCell[cell] && !board.CellNum[cell].empty();
    });
    return entered || !undoList.empty() || !wideSteps.empty() || !redoSteps.empty();
}

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
    Play read;
    read.board = play.board;
    for (CellId cell : AllCells)
        if (!readCell(text, cell, read))
            return false;
    play.board = std::move(read.board);
    play.TouchedCell = read.TouchedCell;
    return text.empty();
}

bool isSound(const Play& play) {
    Play scratch;
    scratch.board = play.board;
    std::size_t beneath = 0;
    const auto isWideStep = [&](const std::string& text) {
        const std::size_t before = beneath;
        const char* end = text.data() + text.size();
        const auto [blank, error] = std::from_chars(text.data(), end, beneath);
        return error == std::errc() && blank != end && beneath >= before &&
               beneath <= play.undoList.size() && readPosition({blank + 1, end}, scratch);
    };
    return allOf(play.undoList, [&](const auto& text) { return isUndoRecord(text, play); }) &&
           allOf(play.wideSteps, isWideStep) &&
           allOf(play.redoSteps, [&](const auto& text) { return isRedoStep(text, scratch); });
}

} // namespace tessaly
