#pragma once

#include <QWidget>

namespace tessaly {

class BoardView;
class PalettePanel;

/// The middle of the main window: the board and, close at its right whatever the window's shape,
/// the palette. Takes both as its children.
class PlayArea : public QWidget {
    Q_OBJECT

public:
    PlayArea(BoardView* board, PalettePanel* palette, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    BoardView* m_board;
    PalettePanel* m_palette;
};

} // namespace tessaly
