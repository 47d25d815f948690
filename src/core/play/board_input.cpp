#include "core/play/board_input.h"

#include "core/play/assists.h"
#include "core/play/cell_description.h"
#include "core/play/selection_walk.h"

#include <algorithm>
#include <array>
#include <cmath>
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

/// How far a pointer trembles that nobody means to move, in board units.
constexpr double Tremor = 6;

bool isTremor(Point from, Point to) {
    return std::hypot(to.x - from.x, to.y - from.y) < Tremor;
}

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

CellId BoardInput::selection() const {
    return m_game.isSelectable(m_cell) ? m_cell : CellId{};
}

void BoardInput::goTo(CellId cell) {
    if (std::exchange(m_cell, cell) != cell)
        m_display.showSelection(cell);
    if (cell)
        m_display.focusBoard();
}

void BoardInput::walkTo(CellId cell) {
    if (m_busy.isBusy() || !m_game.isReadable(cell))
        return;
    m_walked = true;
    goTo(cell);
}

void BoardInput::selectUnderPointer() {
    m_walked = false;
    const CellId under = m_pointer ? cellAt(*m_pointer) : CellId{};
    goTo(m_game.isSelectable(under) ? under : CellId{});
}

void BoardInput::enter(int number) {
    if (!m_busy.isBusy() && selection())
        place(selection(), number == 0 ? "" : NumText(number));
}

void BoardInput::place(CellId cell, const std::string& entry) {
    showEntry(m_game.place(cell, entry));
}

void BoardInput::turnMark(int number) {
    if (!m_busy.isBusy() && selection() && number != 0)
        turnMark(selection(), number);
}

void BoardInput::turnMark(CellId cell, int number) {
    showEntry(m_game.turnMark(cell, NumText(number).front()));
}

void BoardInput::enterItem(CellId cell, int number) {
    if (makesMarks() && number != 0)
        turnMark(cell, number);
    else
        place(cell, number == 0 ? "" : NumText(number));
}

void BoardInput::showEntry(const HexagonSet& changed) {
    m_display.DrawHexagons(changed);
    hidePopup();
    m_display.focusBoard();
}

void BoardInput::hidePopup() {
    if (std::exchange(m_popupTarget, CellId{}))
        m_display.hidePopup();
}

void BoardInput::Picture2_MouseMove(Point point) {
    // A pointer that is first seen now may have stood there all the time.
    const bool isMoved = m_pointer && !isTremor(*m_pointer, point);
    if (m_walked && !isMoved) {
        m_pointer = m_pointer.value_or(point);
        return;
    }
    m_pointer = point;
    if (!m_busy.isBusy())
        selectUnderPointer();
}

void BoardInput::Picture2_MouseDown(PointerButton button, Point point) {
    if (m_busy.isBusy())
        return;
    if (m_walked) { // away from where the pointer stands
        m_pointer = point;
        selectUnderPointer();
    }
    if (button == PointerButton::Right && selection())
        openPopup(point);
    else
        hidePopup();
}

void BoardInput::openPopup(Point corner) {
    m_popupTarget = selection();
    m_display.showPopup(corner, opensUpwards(m_popupTarget));
    m_display.showMessage("");
    m_display.yield();
}

void BoardInput::Picture2_MouseUp(PointerButton button) {
    if (m_busy.isBusy())
        return;
    if (!selection()) {
        hidePopup();
        return;
    }
    if (button != PointerButton::Right && m_paletteItem != NoPaletteItem)
        enterItem(selection(), m_paletteItem == PaletteEraser ? 0 : m_paletteItem + 1);
}

void BoardInput::Picture2_KeyDown(int& keyCode) {
    if (keyCode != 0)
        Picture2_KeyPress(keyCode);
}

void BoardInput::Picture2_KeyPress(int& characterCode) {
    if (m_busy.isBusy())
        return;
    const int code = std::exchange(characterCode, 0);
    const CellId cell = selection();
    if (!cell)
        return;
    const bool wasNumber = isPlaced(m_game.board.CellNum[cell]);
    HexagonSet changed;
    if (isClearCode(code))
        changed = m_game.place(cell, "");
    else if (code >= key::FirstDigit && code <= key::LastDigit)
        changed = m_game.typeDigit(cell, static_cast<char>(code));
    showEntry(changed);
    if (wasNumber && m_game.board.CellNum[cell].size() == 2 && marksTyped)
        marksTyped();
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
        enterItem(target, button == PopupEraser ? 0 : button + 1);
    }
}

void BoardInput::Celltags_MouseDown(int hexagon) {
    if (m_busy.isBusy() || !m_game.hasPuzzle())
        return;
    Celltags_MouseUp();
    m_peekedHexagon = hexagon;
    const Board candidates = withCandidates(m_game.board, m_game.TouchedCell, hexagon);
    m_display.DrawPeek(candidates, hexagon);
    m_display.announce(hexagonInWords(candidates, hexagon));
}

void BoardInput::Celltags_MouseUp() {
    if (const int hexagon = std::exchange(m_peekedHexagon, 0); hexagon != 0)
        m_display.DrawHexagon(hexagon);
}

void BoardInput::Timer1_Timer() {
    hidePopup();
}

void BoardInput::moveSelection(int columns, int rows) {
    walkTo(cellBeside(m_game, m_cell, columns, rows));
}

void BoardInput::selectFirst() {
    walkTo(firstSelectable(m_game));
}

void BoardInput::selectLast() {
    walkTo(lastSelectable(m_game));
}

void BoardInput::readHexagon() {
    if (m_cell)
        m_display.announce(hexagonInWords(m_game.board, m_cell.hexagon) + ", " +
                           missingInWords(m_game.board, m_cell.hexagon));
}

void BoardInput::openPopupAtSelection() {
    if (!m_busy.isBusy() && selection())
        openPopup(numberCentre(m_cell));
}

void BoardInput::pointerLeft() {
    if (m_walked)
        return;
    m_pointer.reset();
    if (!m_busy.isBusy())
        selectUnderPointer();
}

void BoardInput::forgetSelection() {
    m_peekedHexagon = 0;
    hidePopup();
    if (m_walked && m_game.isReadable(m_cell))
        m_display.showSelection(m_cell); // it may be a given now
    else
        selectUnderPointer();
}

} // namespace tessaly
