#pragma once

#include "core/play/busy.h"
#include "core/play/display.h"
#include "core/play/game.h"
#include "core/play/play_commands.h"

#include <functional>
#include <optional>

namespace tessaly {

enum class PointerButton { None, Left, Right, Other };

/// Pointer and key events of the board and of what stands around it: the palette (`digt`), the
/// number pop-up (`Picture1` with the buttons `Num16`) and the hexagons' tags (`Celltags`). Holds
/// the selection, which follows the pointer, or the keys as soon as they walk: the pointer has it
/// back only when it is meant to, not by a tremble or when a window comes over it. All changes of
/// cells go through the game. Whatever arrives while a command is under way is ignored.
class BoardInput {
public:
    static constexpr int PaletteEraser = 6;
    static constexpr int NoPaletteItem = -1;
    /// The buttons of the pop-up above the numbers 0..5.
    enum PopupButton { PopupEraser = 6, PopupSideCopy, PopupClose, PopupSingle };

    BoardInput(Game& game, const BusyState& busy, PlayCommands& commands, Display& display);

    /// Called when a second digit has turned a number into pencil marks; may be empty.
    std::function<void()> marksTyped;

    void Picture2_MouseMove(Point point);
    void Picture2_MouseDown(PointerButton button, Point point);
    void Picture2_MouseUp(PointerButton button);
    /// Key and character codes are the classic ones: 8 backspace, 27 escape, 46 delete, 48..54
    /// digits. A key that is also a character comes twice, once through each; the code is set to 0
    /// when it was consumed.
    void Picture2_KeyDown(int& keyCode);
    void Picture2_KeyPress(int& characterCode);
    void digt_MouseUp(int item, PointerButton button);
    void Num16_Click(int button);
    void Celltags_MouseDown(int hexagon);
    void Celltags_MouseUp();
    void Timer1_Timer();

    /// Walk from cell to cell, givens among them, which are not selected.
    void moveSelection(int columns, int rows);
    void walkTo(CellId cell);
    /// To the first and the last cell that may be filled.
    void selectFirst();
    void selectLast();
    /// Says what stands in the hexagon of the cell that the keys are at, and what is missing.
    void readHexagon();
    /// Puts a number into the selected cell in the place of all that stands there; 0 empties it.
    void enter(int number);
    /// Makes a pencil mark in the selected cell, or takes one that is there.
    void turnMark(int number);
    /// Whether digits are pencil marks now.
    bool makesMarks() const { return m_game.switches.makeMarks; }
    /// Opens the pop-up at the selected cell, as a right press there would.
    void openPopupAtSelection();

    /// The pointer is no longer over the board.
    void pointerLeft();

    /// Another puzzle is on the board: only what is under the pointer is selected any more.
    void forgetSelection();

    /// The selected cell; -1 and -1 when there is none.
    int SelHex() const { return selection() ? m_cell.hexagon : -1; }
    int SelCell() const { return selection() ? m_cell.position : -1; }
    CellId selection() const;
    /// The cell that the keys are at: the selected one, or a given that is only read.
    CellId cell() const { return m_cell; }
    bool canSelect(CellId cell) const { return m_game.isSelectable(cell); }
    bool canRead(CellId cell) const { return m_game.isReadable(cell); }

private:
    void goTo(CellId cell);
    void selectUnderPointer();
    void openPopup(Point corner);
    void hidePopup();
    void place(CellId cell, const std::string& entry);
    /// Enters what a button stands for: a number or its mark, or 0, which empties the cell.
    void enterItem(CellId cell, int number);
    void turnMark(CellId cell, int number);
    /// Draws what an entry has changed. The pop-up has been answered, by whatever way.
    void showEntry(const HexagonSet& changed);

    Game& m_game;
    const BusyState& m_busy;
    PlayCommands& m_commands;
    Display& m_display;

    CellId m_cell;
    /// Whether the keys walked there.
    bool m_walked = false;
    /// Where the pointer is, while it is over the board; since the keys walk, where it was then.
    std::optional<Point> m_pointer;
    /// The cell that the pop-up is open for; the pointer may have moved on since.
    CellId m_popupTarget;
    int m_paletteItem = NoPaletteItem;
    /// The hexagon that shows its candidates; 0 for none.
    int m_peekedHexagon = 0;
};

} // namespace tessaly
