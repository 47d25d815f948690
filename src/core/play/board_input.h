#pragma once

#include "core/play/assists.h"
#include "core/play/board_geometry.h"
#include "core/play/busy.h"
#include "core/play/display.h"
#include "core/play/game.h"
#include "core/play/play_commands.h"

namespace tessaly {

enum class PointerButton { None, Left, Right, Other };

/// What the window does around the board at the player's pointer and keys.
class InputDisplay {
public:
    virtual ~InputDisplay() = default;

    /// Moves the selection marker to a cell; no cell hides it.
    virtual void showSelection(CellId cell) = 0;
    /// Shows the number pop-up with a corner at a point: its top left one, or, when `upwards`, its
    /// bottom left one. Starts the timer that closes it.
    virtual void showPopup(Point corner, bool upwards) = 0;
    virtual void hidePopup() = 0;
    /// Draws the palette with one item pressed (0..6), or with none (-1).
    virtual void showPalette(int pressedItem) = 0;
};

/// Pointer and key events of the board and of what stands around it: the palette (`digt`), the
/// number pop-up (`Picture1` with the buttons `Num16`) and the hexagons' tags (`Celltags`). Holds
/// the selection, which follows the pointer; all changes of cells go through the game.
class BoardInput {
public:
    static constexpr int PaletteEraser = 6;
    static constexpr int NoPaletteItem = -1;
    /// The buttons of the pop-up above the numbers 0..5.
    enum PopupButton { PopupEraser = 6, PopupSideCopy, PopupClose, PopupSingle };

    BoardInput(Game& game, const BusyState& busy, PlayCommands& commands, Display& display,
               InputDisplay& inputDisplay, Prompts& prompts);

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

    /// Moves the selection from cell to cell, as if the pointer had been moved there.
    void moveSelection(int columns, int rows);
    void selectFirst();
    void selectLast();
    /// Opens the pop-up at the selected cell, as a right press there would.
    void openPopupAtSelection();

    /// The pointer is no longer over the board.
    void pointerLeft();

    /// Another puzzle is on the board: nothing is selected any more.
    void forgetSelection();

    /// The selected cell; -1 and -1 when there is none.
    int SelHex() const { return m_selection ? m_selection.hexagon : -1; }
    int SelCell() const { return m_selection ? m_selection.position : -1; }
    CellId selection() const { return m_selection; }
    bool canSelect(CellId cell) const { return m_game.isSelectable(cell); }
    int pressedPaletteItem() const { return m_paletteItem; }

private:
    void select(CellId cell);
    void changed(int hexagon);
    void hidePopup();

    Game& m_game;
    const BusyState& m_busy;
    PlayCommands& m_commands;
    Display& m_display;
    InputDisplay& m_inputDisplay;
    Prompts& m_prompts;

    CellId m_selection;
    /// The cell that the pop-up was opened for; the pointer may have moved on since.
    CellId m_popupTarget;
    int m_paletteItem = NoPaletteItem;
    CandidatePeek m_peek;
};

} // namespace tessaly
