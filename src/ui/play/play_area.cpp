#include "ui/play/play_area.h"

#include "core/play/board_geometry.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr int Spacing = 12;

QSize sideBySide(QSize board, QSize palette) {
    return {board.width() + Spacing + palette.width(), std::max(board.height(), palette.height())};
}

} // namespace

PlayArea::PlayArea(BoardView* board, PalettePanel* palette, QWidget* parent)
    : QWidget(parent)
    , m_board(board)
    , m_palette(palette) {
    board->setParent(this);
    palette->setParent(this);
    QWidget::setTabOrder(board, palette);
}

QSize PlayArea::sizeHint() const {
    return sideBySide(m_board->sizeHint(), m_palette->sizeHint());
}

QSize PlayArea::minimumSizeHint() const {
    return sideBySide(m_board->minimumSize(), m_palette->minimumSizeHint());
}

void PlayArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int side = PalettePanel::widthForHeight(height());
    const int widestBoard = static_cast<int>(std::ceil(height() * PictureWidth / PictureHeight));
    const int boardWidth = std::min(width() - Spacing - side, widestBoard);
    const int left = (width() - boardWidth - Spacing - side) / 2;
    m_board->setGeometry(left, 0, boardWidth, height());
    m_palette->setGeometry(left + boardWidth + Spacing, 0, side, height());
}

} // namespace tessaly
