#include "ui/options/option_samples.h"

#include "core/board/puzzle_record.h"
#include "core/play/board_geometry.h"
#include "ui/drawing/hexagon_tag.h"
#include "ui/drawing/qt_values.h"

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

void LineSample::setLine(const QColor& colour, int width) {
    m_colour = colour;
    m_width = width;
    update();
}

void LineSample::paintEvent(QPaintEvent*) {
    constexpr int Inset = 8;
    QPainter painter(this);
    painter.fillRect(Inset, (height() - m_width) / 2, width() - 2 * Inset, m_width, m_colour);
}

void FillSample::setFill(const QColor& fill) {
    m_fill = fill;
    update();
}

void FillSample::paintEvent(QPaintEvent*) {
    const double scale = (height() - 2) / (2 * HalfHeight);
    const double side = HexagonSide * scale;
    const double half = HalfHeight * scale;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().toRectF().center());
    // Its edge shows where the shape is, the fill being the background's colour for a start.
    painter.setPen(blended(m_fill, readableOn(palette().color(QPalette::Window)), 0.35));
    painter.setBrush(m_fill);
    painter.drawPolygon(QPolygonF({{-side, 0},
                                   {-side / 2, -half},
                                   {side / 2, -half},
                                   {side, 0},
                                   {side / 2, half},
                                   {-side / 2, half}}));
}

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
    constexpr double UsualScale = 0.6;
    return (QSizeF(PictureWidth, PictureHeight) * UsualScale).toSize();
}

QSize SampleBoard::minimumSizeHint() const {
    constexpr double SmallestScale = 0.36;
    return (QSizeF(PictureWidth, PictureHeight) * SmallestScale).toSize();
}

void SampleBoard::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    m_surface.setSize((QSizeF(size()) * ratio).toSize());
    m_surface.DrawBoard(m_board);
    QPainter painter(this);
    painter.drawImage(QRectF(rect()), m_surface.image());
    painter.scale(1 / ratio, 1 / ratio);
    painter.setTransform(m_surface.boardToDevice(), true);
    drawTags(painter, m_board, m_appearance);
}

} // namespace tessaly
