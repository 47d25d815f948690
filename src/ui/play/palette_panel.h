#pragma once

#include "core/options/appearance.h"
#include "core/play/board_input.h"

#include <QWidget>

#include <array>

namespace tessaly {

class BoxControl;

/// The palette beside the board (`digt`): the numbers 1 to 6 and the eraser, of which at most one
/// is pressed, and the pencil, in two rows of four squares that fill its width.
class PalettePanel : public QWidget {
    Q_OBJECT

public:
    static constexpr int ItemCount = 7;
    static constexpr int Columns = 4;

    explicit PalettePanel(const Appearance& appearance, QWidget* parent = nullptr);

    /// Draws one item pressed, or none (-1).
    void showPalette(int pressedItem);
    /// Draws the pencil pressed while entries are marks.
    void showPencil(bool on);
    void applyAppearance();

    BoxControl* cmdpencil;

Q_SIGNALS:
    void itemReleased(int item, PointerButton button);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    BoxControl* makeItem(int index);
    void showPressed(BoxControl& button, bool pressed);

    const Appearance& m_appearance;
    std::array<BoxControl*, ItemCount> m_items{};
    int m_pressedItem = BoardInput::NoPaletteItem;
    bool m_pencilOn = false;
};

} // namespace tessaly
