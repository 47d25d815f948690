#pragma once

#include "core/options/appearance.h"
#include "core/play/board_input.h"

#include <QWidget>

#include <array>

namespace tessaly {

class BoxControl;
enum class Picture;

/// The palette beside the board (`digt`): the numbers 1 to 6 and the eraser, of which at most one
/// is pressed, and the pencil; beneath it the three assists. The buttons are squares, as large as
/// the height allows.
class PalettePanel : public QWidget {
    Q_OBJECT

public:
    static constexpr int ItemCount = 7;

    explicit PalettePanel(const Appearance& appearance, QWidget* parent = nullptr);

    /// Draws one item pressed, or none (-1).
    void showPalette(int pressedItem);
    /// Draws the pencil pressed while entries are marks.
    void showPencil(bool on);
    void applyAppearance();

    BoxControl* cmdpencil;
    BoxControl* cmdallpencil;
    BoxControl* cmdsetpairs;
    BoxControl* cmdset1s;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// How wide the palette is at a height: one button.
    static int widthForHeight(int height);

Q_SIGNALS:
    void itemReleased(int item, PointerButton button);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    BoxControl* makeItem(int index);
    BoxControl* makeAssist(Picture picture, const QString& toolTip, const QString& name);
    void placeButtons();
    void showPressed(BoxControl& button, bool pressed);

    const Appearance& m_appearance;
    std::array<BoxControl*, ItemCount> m_items{};
    int m_pressedItem = BoardInput::NoPaletteItem;
    bool m_pencilOn = false;
};

} // namespace tessaly
