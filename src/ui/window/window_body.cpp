#include "ui/window/window_body.h"

#include "core/play/board_geometry.h"
#include "ui/play/board_view.h"
#include "ui/play/side_panel.h"

#include <QEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaly {
namespace {

constexpr int BodyMargin = 10;
constexpr int BodySpacing = 8;
/// Between the board's picture, which has a rim of its own, and the panel.
constexpr int BesideBoard = 2;
/// The most that the panel takes of a width that has no room for the largest board beside it.
constexpr double LargestPart = 0.36;

QSize sideBySide(QSize board, QSize panel) {
    return {board.width() + BesideBoard + panel.width(), std::max(board.height(), panel.height())};
}

} // namespace

WindowBody::WindowBody(QList<QWidget*> rows, BoardView* board, SidePanel* side, QWidget* status)
    : m_rows(std::move(rows))
    , m_board(board)
    , m_side(side)
    , m_status(status) {
    for (QWidget* part : m_rows + QList<QWidget*>{board, side, status})
        part->setParent(this); // in the order of the Tab key
}

int WindowBody::heightOfRows() const {
    int height = 0;
    for (const QWidget* row : m_rows)
        if (!row->isHidden())
            height += row->sizeHint().height() + BodySpacing;
    return height;
}

QSize WindowBody::sizeAround(QSize middle) const {
    int width = middle.width();
    for (const QWidget* row : m_rows)
        if (!row->isHidden())
            width = std::max(width, row->minimumSizeHint().width());
    return {width + 2 * BodyMargin, heightOfRows() + middle.height() + BodySpacing +
                                        m_status->sizeHint().height() + 2 * BodyMargin};
}

QSize WindowBody::sizeHint() const {
    return sizeAround(sideBySide(m_board->sizeHint(), m_side->sizeHint()));
}

QSize WindowBody::minimumSizeHint() const {
    return sizeAround(sideBySide(m_board->minimumSize(), m_side->minimumSizeHint()));
}

void WindowBody::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

bool WindowBody::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        arrange();
    }
    return QWidget::event(event);
}

/// What the board leaves, but the usual size where that is not too much.
int WindowBody::widestPanel(int width, int widestBoard) const {
    return std::max(width - BesideBoard - widestBoard,
                    std::min(m_side->sizeHint().width(), static_cast<int>(width * LargestPart)));
}

void WindowBody::arrange() {
    const QRect room = rect().adjusted(BodyMargin, BodyMargin, -BodyMargin, -BodyMargin);
    const int highest =
        room.height() - heightOfRows() - BodySpacing - m_status->sizeHint().height();
    const int widestBoard = static_cast<int>(std::ceil(highest * PictureWidth / PictureHeight));
    const QSize panel = SidePanel::sizeWithin({widestPanel(room.width(), widestBoard), highest});
    const int boardWidth = std::min(widestBoard, room.width() - BesideBoard - panel.width());
    const int boardHeight =
        std::min(static_cast<int>(std::ceil(boardWidth * PictureHeight / PictureWidth)), highest);
    const QSize both = sideBySide({boardWidth, boardHeight}, panel);
    QRect middle(room.left() + (room.width() - both.width()) / 2, room.top() + heightOfRows(),
                 both.width(), both.height());
    m_board->setGeometry(middle.left(), middle.top() + (both.height() - boardHeight) / 2,
                         boardWidth, boardHeight);
    m_side->setGeometry(middle.right() + 1 - panel.width(),
                        middle.top() + (both.height() - panel.height()) / 2, panel.width(),
                        panel.height());
    int top = room.top();
    for (QWidget* row : m_rows)
        if (!row->isHidden())
            top = placeRow(*row, top, middle) + BodySpacing;
    placeRow(*m_status, middle.bottom() + 1 + BodySpacing, middle);
}

int WindowBody::placeRow(QWidget& row, int top, const QRect& middle) const {
    const QSize wanted = row.sizeHint();
    const int width =
        std::min(std::max(middle.width(), wanted.width()), rect().width() - 2 * BodyMargin);
    row.setGeometry(middle.center().x() - width / 2, top, width, wanted.height());
    return top + wanted.height();
}

} // namespace tessaly
