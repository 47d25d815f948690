#include "ui/drawing/board_renderer.h"

#include "core/board/tables.h"
#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "ui/drawing/qt_values.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

QPolygonF outlineOf(int hexagon) {
    QPolygonF outline;
    for (Point corner : hexagonCorners(hexagon))
        outline << toQt(corner);
    return outline;
}

/// Keeps the painter's state and gives it back at the end of its life.
class PainterState {
public:
    explicit PainterState(QPainter& painter)
        : m_painter(painter) {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~PainterState() { m_painter.restore(); }
    PainterState(const PainterState&) = delete;
    PainterState& operator=(const PainterState&) = delete;

private:
    QPainter& m_painter;
};

/// A line's width in pixels. A wider border stays wider in the smallest picture.
double wholePixels(double width, double scale) {
    constexpr double ThinLine = 1;
    const double least = width > ThinLine ? 2 : 1;
    return std::max(least, std::round(width * scale));
}

/// Gives the painter a pen. A line of a whole number of pixels is sharp when its middle lies on a
/// pixel's edge (an even width) or in a pixel's middle (an odd one), so with `Fit::ToPixels` the
/// painter is moved by half a pixel for an odd width.
void takePen(QPainter& painter, Colour colour, double width, Fit fit, Qt::PenCapStyle cap) {
    if (fit == Fit::ToPixels) {
        const QTransform toDevice = painter.deviceTransform();
        const double pixels = wholePixels(width, toDevice.m22());
        width = pixels / toDevice.m22();
        if (std::fmod(pixels, 2) != 0)
            painter.translate(0.5 / toDevice.m11(), 0.5 / toDevice.m22());
    }
    painter.setPen(QPen(toQColor(colour), width, Qt::SolidLine, cap, Qt::RoundJoin));
}

} // namespace

BoardRenderer::BoardRenderer(QPainter& painter, const Board& board, const Appearance& appearance,
                             Fit lines)
    : BoardRenderer(painter, board, boardStyle(appearance), appearance.NumberFont, lines,
                    Digits::AsOutlines) {}

BoardRenderer::BoardRenderer(QPainter& painter, const Board& board, const BoardStyle& style,
                             const std::string& font, Digits digits)
    : BoardRenderer(painter, board, style, font, Fit::Exact, digits) {}

BoardRenderer::BoardRenderer(QPainter& painter, const Board& board, const BoardStyle& style,
                             const std::string& font, Fit lines, Digits digits)
    : m_painter(painter)
    , m_board(board)
    , m_style(style)
    , m_lines(lines)
    , m_digits(digits)
    , m_face(font)
    , m_boldFace(font, true)
    , m_numerals(m_face, {}, Fit::Exact, style.numberScale)
    , m_boldNumerals(m_boldFace, {}, Fit::Exact, style.numberScale)
    , m_givens(m_boldFace, m_boldNumerals.numberSize())
    , m_numbers(m_face, m_numerals.numberSize())
    , m_marks(m_face, m_numerals.markSize()) {}

void BoardRenderer::DrawHexagon(int hexagon) {
    if (!isHexagon(hexagon))
        return;
    const PainterState state(m_painter);
    fillHexagon(hexagon);
    drawCellLines(hexagon);
    {
        const PainterState border(m_painter);
        takePen(m_painter, m_style.border, m_style.borderWidth, m_lines, Qt::RoundCap);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolygon(outlineOf(hexagon));
    }
    drawEntries(hexagon);
    drawTexts();
}

void BoardRenderer::DrawBoard() {
    const PainterState state(m_painter);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        fillHexagon(hexagon);
        drawCellLines(hexagon);
    }
    drawSharedBorders();
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        drawEntries(hexagon);
    drawTexts();
}

void BoardRenderer::fillHexagon(int hexagon) {
    if (m_style.onPaper) {
        drawHatching(hexagon);
        return;
    }
    if (!m_style.isFilled && !m_board.isBlank(hexagon))
        return;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(toQColor(m_board.isBlank(hexagon) ? m_style.solid : m_style.fill));
    m_painter.drawPolygon(outlineOf(hexagon));
}

void BoardRenderer::drawHatching(int hexagon) {
    if (!m_board.isBlank(hexagon))
        return;
    constexpr double LineWidth = 1.2;
    takePen(m_painter, m_style.solid, LineWidth, Fit::Exact, Qt::FlatCap);
    for (const auto& [from, to] : hatchLines(hexagon))
        m_painter.drawLine(toQt(from), toQt(to));
}

void BoardRenderer::drawCellLines(int hexagon) {
    if (m_board.isBlank(hexagon))
        return;
    const PainterState state(m_painter);
    takePen(m_painter, m_style.line, m_style.lineWidth, m_lines, Qt::FlatCap);
    const auto corners = hexagonCorners(hexagon);
    for (std::size_t i = 0; i < corners.size() / 2; ++i)
        m_painter.drawLine(toQt(corners[i]), toQt(corners[i + corners.size() / 2]));
}

void BoardRenderer::drawSharedBorders() {
    QList<QLineF> shared;
    QList<QLineF> rim;
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (across && across.hexagon < cell.hexagon)
            continue;
        const auto triangle = cellTriangle(cell);
        (across ? shared : rim) << QLineF(toQt(triangle[1]), toQt(triangle[2]));
    }
    // Round ends cost many times as much, and those of shared borders lie under other borders. So
    // does drawing the lines as one path.
    drawBorders(shared, Qt::SquareCap);
    drawBorders(rim, Qt::RoundCap);
}

void BoardRenderer::drawBorders(const QList<QLineF>& lines, Qt::PenCapStyle cap) {
    const PainterState state(m_painter);
    takePen(m_painter, m_style.border, m_style.borderWidth, m_lines, cap);
    m_painter.drawLines(lines);
}

void BoardRenderer::drawEntries(int hexagon) {
    if (m_board.isBlank(hexagon))
        return;
    for (int position = 1; position <= CellCount; ++position)
        drawEntry({hexagon, position});
}

template <class Draw>
void BoardRenderer::forEachDigit(CellId cell, Draw draw) const {
    const Numerals& numerals = numeralsOf(cell);
    layOutEntry(
        m_board.CellNum[cell],
        [&](int digit) {
            const QPointF pen = toQt(numberCentre(cell)) + numerals.numberPen();
            draw(numerals.number(digit).translated(pen));
        },
        [&](int digit, int place) {
            const QPointF pen = toQt(marksCentre(cell)) + numerals.markPen(place);
            draw(numerals.mark(digit).translated(pen));
        });
}

void BoardRenderer::drawEntry(CellId cell) {
    if (m_digits == Digits::AsText) {
        addEntryAsText(cell);
        return;
    }
    const Colour colour = m_board.FixedCell[cell] ? m_style.fixedNumber : m_style.userNumber;
    forEachDigit(cell,
                 [&](const QPainterPath& digit) { m_painter.fillPath(digit, toQColor(colour)); });
}

void BoardRenderer::addEntryAsText(CellId cell) {
    const Numerals& numerals = numeralsOf(cell);
    DigitText& text = m_board.FixedCell[cell] ? m_givens : m_numbers;
    layOutEntry(
        m_board.CellNum[cell],
        [&](int digit) {
            text.add(digit,
                     toQt(numberCentre(cell)) + numerals.numberPen() + numerals.numberStart(digit));
        },
        [&](int digit, int place) {
            m_marks.add(digit, toQt(marksCentre(cell)) + m_numerals.markPen(place) +
                                   m_numerals.markStart(digit));
        });
}

void BoardRenderer::drawTexts() {
    m_givens.draw(m_painter, toQColor(m_style.fixedNumber));
    m_numbers.draw(m_painter, toQColor(m_style.userNumber));
    m_marks.draw(m_painter, toQColor(m_style.userNumber));
}

void BoardRenderer::eraseEntry(CellId cell) {
    constexpr double Rim = 1; // where smoothed edges fade out
    forEachDigit(cell, [&](const QPainterPath& digit) {
        m_painter.fillRect(digit.boundingRect().adjusted(-Rim, -Rim, Rim, Rim),
                           toQColor(m_style.fill));
    });
}

void BoardRenderer::DrawSolution(Colour colour) {
    const PainterState state(m_painter);
    for (CellId cell : AllCells) {
        if (m_board.isBlank(cell.hexagon) || m_board.FixedCell[cell])
            continue;
        eraseEntry(cell);
        const auto write = [&](int digit) {
            const QPointF pen = toQt(numberCentre(cell)) + m_boldNumerals.numberPen();
            m_painter.fillPath(m_boldNumerals.number(digit).translated(pen), toQColor(colour));
        };
        layOutEntry(m_board.SolNum[cell], write, [](int, int) {});
    }
}

} // namespace tessaly
