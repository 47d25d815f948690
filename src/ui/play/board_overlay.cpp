#include "ui/play/board_overlay.h"

#include "core/board/tables.h"
#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "ui/drawing/numerals.h"
#include "ui/drawing/qt_values.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <utility>

namespace tessaly {
namespace {

// How much of the colour is laid over what is there.
constexpr double LookedStrength = 0.13;
constexpr double EqualStrength = 0.30;
constexpr double ProofStrength = 0.30;
constexpr double FadedStrength = 0.72;

// In board units.
constexpr double OutlineWidth = 3;
constexpr double OutlineRim = 2;
constexpr double BrokenSideWidth = 5;
constexpr double UnderlineWidth = 2.6;
constexpr double UnderlineLength = 15;
constexpr double UnderlineDrop = 12;

QColor veil(const QColor& colour, double strength) {
    QColor thin = colour;
    thin.setAlphaF(static_cast<float>(strength));
    return thin;
}

/// The closed path through points of the board.
template <std::size_t Count>
QPainterPath pathThrough(const std::array<Point, Count>& points) {
    QPolygonF polygon;
    for (Point point : points)
        polygon << toQt(point);
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

QPainterPath triangleOf(CellId cell) {
    return pathThrough(cellTriangle(cell));
}

QPainterPath outlineOfCorner(int xcell) {
    QPainterPath path;
    for (CellId cell : XcellTable[static_cast<std::size_t>(xcell)])
        path = path.united(triangleOf(cell));
    return path;
}

} // namespace

BoardOverlay::BoardOverlay(const Board& board, const Appearance& appearance,
                           const PlaySwitches& switches, QWidget* parent)
    : QWidget(parent)
    , m_board(board)
    , m_appearance(appearance)
    , m_switches(switches) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void BoardOverlay::setTransform(const QTransform& boardToWidget) {
    m_boardToWidget = boardToWidget;
    update();
}

void BoardOverlay::look(CellId cell, char digit) {
    if (cell == m_looked && digit == m_digit)
        return;
    m_looked = cell;
    m_digit = digit;
    update();
}

void BoardOverlay::showHint(const Hint& hint) {
    m_hint = hint;
    update();
}

void BoardOverlay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(m_boardToWidget, true);
    const Highlights found = highlightsOf(m_board, m_switches, m_looked, m_digit);
    paintImpossible(painter, found);
    paintLooked(painter, found);
    paintBroken(painter, found);
    paintHint(painter);
}

void BoardOverlay::paintLooked(QPainter& painter, const Highlights& found) const {
    const QColor ink = readableOn(toQColor(m_appearance.HexaFillColour));
    for (CellId cell : found.looked)
        painter.fillPath(triangleOf(cell), veil(ink, LookedStrength));
    if (showsHint())
        return; // which marks cells in the same colour
    const QColor signal = toQColor(solutionColour(m_appearance));
    for (CellId cell : found.equal)
        painter.fillPath(triangleOf(cell), veil(signal, EqualStrength));
}

/// A veil in the colour of the ground over the place of each mark.
void BoardOverlay::paintImpossible(QPainter& painter, const Highlights& found) const {
    if (found.impossible.empty())
        return;
    const DigitFace face(m_appearance.NumberFont);
    const Numerals numerals(face, {}, Fit::Exact);
    const QColor cover = veil(toQColor(m_appearance.HexaFillColour), FadedStrength);
    for (const auto& [cell, faded] : found.impossible) {
        const auto coverMark = [&, at = cell, wanted = faded - '0'](int digit, int place) {
            if (digit == wanted)
                painter.fillRect(numerals.mark(digit).boundingRect().translated(
                                     toQt(marksCentre(at)) + numerals.markPen(place)),
                                 cover);
        };
        layOutEntry(
            m_board.CellNum[cell], [](int) {}, coverMark);
    }
}

void BoardOverlay::paintBroken(QPainter& painter, const Highlights& found) const {
    const QColor signal = toQColor(markerColour(m_appearance));
    QPen side(signal, BrokenSideWidth, Qt::DashLine, Qt::FlatCap);
    side.setDashPattern({1.3, 0.9});
    for (CellId cell : found.differing) {
        const auto corners = cellTriangle(cell);
        painter.setPen(QPen(toQColor(m_appearance.HexaFillColour), BrokenSideWidth));
        painter.drawLine(toQt(corners[1]), toQt(corners[2]));
        painter.setPen(side);
        painter.drawLine(toQt(corners[1]), toQt(corners[2]));
    }
    painter.setPen(QPen(signal, UnderlineWidth, Qt::SolidLine, Qt::RoundCap));
    for (CellId cell : found.repeated) {
        const QPointF middle = toQt(numberCentre(cell)) + QPointF(0, UnderlineDrop);
        const QPointF half(UnderlineLength / 2, 0);
        painter.drawLine(middle - half, middle + half);
    }
}

void BoardOverlay::paintHint(QPainter& painter) const {
    if (!showsHint())
        return;
    const QColor signal = toQColor(solutionColour(m_appearance));
    for (CellId cell : m_hint.proof)
        painter.fillPath(triangleOf(cell), veil(signal, ProofStrength));
    QPainterPath outline;
    if (m_hint.hexagon != 0 && !m_hint.cell)
        outline.addPath(pathThrough(hexagonCorners(m_hint.hexagon)));
    if (m_hint.xcell != 0)
        outline.addPath(outlineOfCorner(m_hint.xcell));
    if (m_hint.cell)
        outline.addPath(triangleOf(m_hint.cell));
    // With a rim in the colour of the hexagons, for its own may be as dark as the lines about it.
    for (const auto& [colour, width] :
         {std::pair(toQColor(m_appearance.HexaFillColour), OutlineWidth + 2 * OutlineRim),
          {signal, OutlineWidth}})
        painter.strokePath(outline,
                           QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
}

} // namespace tessaly
