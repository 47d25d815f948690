#include "ui/options/sample_board.h"

#include "core/board/puzzle_record.h"
#include "ui/drawing/hexagon_tag.h"

#include <QPainter>

#include <array>

namespace tessaly {
namespace {

/// A puzzle with some numbers and marks of a player's in it.
Board boardInPlay() {
    constexpr auto Record =
        "E0500VTR531VT12355VT321SV521TRSQUVT3RQU4623451652613TU1642S56413214SV25"
        "412653Q35624U234QV63451262QTU34526SQ523VQU4614RSU";
    constexpr std::array Marks{"12", "356", "46"};
    Board board;
    if (!readRecord(Record, board).ok())
        return board;
    std::size_t open = 0;
    for (CellId cell : AllCells) {
        if (board.FixedCell[cell])
            continue;
        if (open % 3 == 1)
            board.CellNum[cell] = board.SolNum[cell];
        else if (open % 7 == 0)
            board.CellNum[cell] = Marks[open / 7 % Marks.size()];
        ++open;
    }
    return board;
}

} // namespace

SampleBoard::SampleBoard(QWidget* parent)
    : QWidget(parent)
    , m_board(boardInPlay()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("How the board would look"));
}

void SampleBoard::showAppearance(const Appearance& appearance) {
    m_appearance = appearance;
    m_surface.setAppearance(appearance);
    update();
}

QSize SampleBoard::sizeHint() const {
    constexpr double SampleScale = 0.72;
    return (QSizeF(PictureWidth, PictureHeight) * SampleScale).toSize();
}

void SampleBoard::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    m_surface.setSize((QSizeF(size()) * ratio).toSize());
    m_surface.DrawBoard(m_board);
    QPainter painter(this);
    painter.drawImage(QRectF(rect()), m_surface.image());
    painter.scale(1 / ratio, 1 / ratio);
    drawTags(painter);
}

void SampleBoard::drawTags(QPainter& painter) const {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (m_board.isBlank(hexagon))
            continue;
        const Rect area = tagRectangle(hexagon);
        const QRectF onBoard(area.left, area.top, area.width(), area.height());
        drawTag(painter, m_surface.boardToDevice().mapRect(onBoard), hexagon, m_appearance);
    }
}

} // namespace tessaly
