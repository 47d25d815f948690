#include "core/play/undo_list.h"

namespace tessaly {
namespace {

constexpr char GroupMark = '*';
constexpr std::size_t PlaceDigits = 4;

std::string twoDigits(int number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

int numberAt(std::string_view text, std::size_t at) {
    return 10 * (text[at] - '0') + text[at + 1] - '0';
}

} // namespace

UndoRecord UndoRecord::of(std::string_view text) {
    UndoRecord record;
    record.cell = {numberAt(text, 0), numberAt(text, 2)};
    text.remove_prefix(PlaceDigits);
    record.grouped = text.starts_with(GroupMark);
    record.entryBefore = text.substr(record.grouped ? 1 : 0);
    return record;
}

void UndoList::push(CellId cell, bool grouped, std::string_view entryBefore) {
    std::string text = twoDigits(cell.hexagon) + twoDigits(cell.position);
    if (grouped)
        text += GroupMark;
    text += entryBefore;
    push(std::move(text));
}

} // namespace tessaly
