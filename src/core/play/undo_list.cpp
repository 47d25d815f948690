#include "core/play/undo_list.h"

namespace tessaly {
namespace {

constexpr char GroupMark = '*';
constexpr std::size_t HexagonDigits = 2;
constexpr std::size_t PlaceDigits = 4;

std::string twoDigits(int number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

} // namespace

void UndoList::push(CellId cell, bool grouped, std::string_view entryBefore) {
    std::string text = twoDigits(cell.hexagon) + twoDigits(cell.position);
    if (grouped)
        text += GroupMark;
    text += entryBefore;
    m_records.push_back(std::move(text));
}

UndoRecord UndoList::newest() const {
    const std::string& text = m_records.back();
    UndoRecord record;
    record.cell = {std::stoi(text.substr(0, HexagonDigits)),
                   std::stoi(text.substr(HexagonDigits, PlaceDigits - HexagonDigits))};
    record.entryBefore = text.substr(PlaceDigits);
    record.grouped = !record.entryBefore.empty() && record.entryBefore.front() == GroupMark;
    if (record.grouped)
        record.entryBefore.erase(0, 1);
    return record;
}

} // namespace tessaly
