#include "core/play/board_input.h"

#include "core/play/assists.h"
#include "core/play/selection_walk.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessaly {
namespace {

namespace key {
constexpr int Backspace = 8;
constexpr int Escape = 27;
constexpr int Delete = 46;
constexpr int FirstDigit = '0';
constexpr int LastDigit = '6';
} // namespace key

/// The cells so near the bottom edge of the board that the pop-up opens upwards there.
constexpr std::array<CellId, 5> BottomCells{{{17, 4}, {19, 1}, {19, 2}, {19, 3}, {18, 6}}};

bool opensUpwards(CellId cell) {
    return std::find(BottomCells.begin(), BottomCells.end(), cell) != BottomCells.end();
}

bool isClearCode(int code) {
    return code == key::Backspace || code == key::Delete || code == key::Escape;
}

} // namespace

BoardInput::BoardInput(Game& game, const BusyState& busy, PlayCommands& commands, Display& display)
    : m_game(game)
    , m_busy(busy)
    , m_commands(commands)
    , m_display(display) {}

void BoardInput::select(CellId cell) {
    const CellId before = std::exchange(m_selection, m_game.isSelectable(cell) ? cell : CellId{});
    if (m_selection != before)
        m_display.showSelection(m_selection);
    if (m_selection)
        m_display.focusBoard();
}

void BoardInput::place(CellId cell, const std::string& entry) {
    const std::string before = m_game.board.CellNum[cell];
    m_game.place(cell, entry);
    showEntry(cell, before);
}

void BoardInput::showEntry(CellId cell, const std::string& before) {
    if (m_game.board.CellNum[cell] != before)
        m_display.DrawHexagon(cell.hexagon);
    hidePopup();
    m_display.focusBoard();
}

void BoardInput::hidePopup() {
    if (std::exchange(m_popupTarget, CellId{}))
        m_display.hidePopup();
}

void BoardInput::Picture2_MouseMove(Point point) {
    m_pointer = point;
    if (!m_busy.isBusy())
        select(cellAt(point));
}

void BoardInput::Picture2_MouseDown(PointerButton button, Point point) {
    if (m_busy.isBusy())
        return;
    if (button != PointerButton::Right || !m_selection) {
        hidePopup();
        return;
    }
    m_popupTarget = m_selection;
    m_display.showPopup(point, opensUpwards(m_selection));
    m_display.showMessage("");
    m_display.yield();
}

void BoardInput::Picture2_MouseUp(PointerButton button) {
    if (m_busy.isBusy())
        return;
    if (!m_selection) {
        hidePopup();
        return;
    }
    if (button == PointerButton::Right || m_paletteItem == NoPaletteItem)
        return;
    place(m_selection, m_paletteItem == PaletteEraser ? "" : NumText(m_paletteItem + 1));
}

void BoardInput::Picture2_KeyDown(int& keyCode) {
    if (keyCode != 0)
        Picture2_KeyPress(keyCode);
}

void BoardInput::Picture2_KeyPress(int& characterCode) {
    if (m_busy.isBusy())
        return;
    const int code = std::exchange(characterCode, 0);
    if (!m_selection)
        return;
    const std::string before = m_game.board.CellNum[m_selection];
    if (isClearCode(code))
        m_game.place(m_selection, "");
    else if (code >= key::FirstDigit && code <= key::LastDigit)
        m_game.typeDigit(m_selection, static_cast<char>(code));
    showEntry(m_selection, before);
}

void BoardInput::digt_MouseUp(int item, PointerButton button) {
    if (button == PointerButton::Right)
        m_paletteItem = NoPaletteItem;
    else if (button == PointerButton::Left)
        m_paletteItem = m_paletteItem == item ? NoPaletteItem : item;
    m_display.showPalette(m_paletteItem);
}

void BoardInput::Num16_Click(int button) {
    const CellId target = m_popupTarget;
    hidePopup();
    if (!target || button == PopupClose || m_busy.isBusy())
        return;
    switch (button) {
    case PopupSideCopy:
        m_commands.cmdsetpairs();
        return;
    case PopupSingle:
        if (const Single single = SingleCandidate(m_game.board, target.hexagon); single.cell)
            place(single.cell, single.number);
        return;
    default:
        place(target, button == PopupEraser ? "" : NumText(button + 1));
    }
}

void BoardInput::Celltags_MouseDown(int hexagon) {
    if (m_busy.isBusy() || !m_game.hasPuzzle())
        return;
    Celltags_MouseUp();
    m_peekedHexagon = hexagon;
    m_display.DrawPeek(withCandidates(m_game.board, m_game.TouchedCell, hexagon), hexagon);
}

void BoardInput::Celltags_MouseUp() {
    if (const int hexagon = std::exchange(m_peekedHexagon, 0); hexagon != 0)
        m_display.DrawHexagon(hexagon);
}

void BoardInput::Timer1_Timer() {
    hidePopup();
}

void BoardInput::moveSelection(int columns, int rows) {
    if (!m_busy.isBusy())
        select(cellBeside(m_game, m_selection, columns, rows));
}

void BoardInput::selectFirst() {
    if (!m_busy.isBusy())
        select(firstSelectable(m_game));
}

void BoardInput::selectLast() {
    if (!m_busy.isBusy())
        select(lastSelectable(m_game));
}

void BoardInput::openPopupAtSelection() {
    if (m_selection)
        Picture2_MouseDown(PointerButton::Right, numberCentre(m_selection));
}

void BoardInput::pointerLeft() {
    m_pointer.reset();
    if (!m_busy.isBusy())
        select({});
}

void BoardInput::forgetSelection() {
    m_peekedHexagon = 0;
    hidePopup();
    select(m_pointer ? cellAt(*m_pointer) : CellId{});
}

} // namespace tessaly
