#include "ui/drawing/board_surface.h"

#include "ui/drawing/board_renderer.h"
#include "ui/drawing/qt_values.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

namespace tessaly {
namespace {

/// A hexagon with six neighbours, which lies in the very middle.
constexpr int MiddleHexagon = 10;

/// Below a quarter of the natural size there is nothing left to see, nor room for whole pixels.
constexpr QSize SmallestSize(127, 119);

/// The whole number of pixels, over the board units, that comes nearest to a scale.
double onWholePixels(double units, double scale) {
    return std::max(1.0, std::round(units * scale)) / units;
}

} // namespace

DigitSprites::DigitSprites(const Numerals& numerals, Colour colour)
    : m_numberPen(numerals.numberPen().toPoint()) {
    for (int digit = 0; digit < DigitCount; ++digit) {
        const auto index = static_cast<std::size_t>(digit);
        m_numbers[index] = makeSprite(numerals.number(digit), colour);
        m_marks[index] = makeSprite(numerals.mark(digit), colour);
    }
    for (int place = 0; place < MarkPlaces; ++place)
        m_markPens[static_cast<std::size_t>(place)] = numerals.markPen(place).toPoint();
}

DigitSprites::Sprite DigitSprites::makeSprite(const QPainterPath& outline, Colour colour) {
    const QRect area = outline.boundingRect().toAlignedRect();
    Sprite sprite{QImage(area.size(), QImage::Format_ARGB32_Premultiplied), area.topLeft()};
    sprite.picture.fill(Qt::transparent);
    QPainter painter(&sprite.picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    painter.fillPath(outline, toQColor(colour));
    return sprite;
}

void DigitSprites::draw(QPainter& painter, std::string_view entry, QPoint numberCentre,
                        QPoint marksCentre) const {
    const auto put = [&](const Sprite& sprite, QPoint pen) {
        painter.drawImage(pen + sprite.fromPen, sprite.picture);
    };
    layOutEntry(
        entry,
        [&](int digit) {
            put(m_numbers[static_cast<std::size_t>(digit)], numberCentre + m_numberPen);
        },
        [&](int digit, int place) {
            put(m_marks[static_cast<std::size_t>(digit)],
                marksCentre + m_markPens[static_cast<std::size_t>(place)]);
        });
}

void BoardSurface::setSize(QSize devicePixels) {
    m_size = devicePixels.expandedTo(SmallestSize);
    m_stale = true;
}

void BoardSurface::setAppearance(const Appearance& appearance) {
    m_appearance = appearance;
    m_stale = true;
}

Scale BoardSurface::scale() const {
    const double largest = std::min(m_size.width() / PictureWidth, m_size.height() / PictureHeight);
    return {onWholePixels(HexagonSide / 2, largest), onWholePixels(HalfHeight, largest)};
}

QTransform BoardSurface::boardToDevice() const {
    const auto [x, y] = scale();
    const Point middle = hexagonCentre(MiddleHexagon);
    const QPoint pixel(m_size.width() / 2, m_size.height() / 2);
    return QTransform(x, 0, 0, y, pixel.x() - middle.x * x, pixel.y() - middle.y * y);
}

QPoint BoardSurface::toPixels(Point point) const {
    return boardToDevice().map(toQt(point)).toPoint();
}

QRect BoardSurface::pixelBounds(int hexagon) const {
    const Rect bounds = hexagonBounds(hexagon);
    const QPoint topLeft = toPixels({bounds.left, bounds.top});
    const QPoint pastEnd = toPixels({bounds.right, bounds.bottom});
    return {topLeft, pastEnd - QPoint(1, 1)};
}

void BoardSurface::prepare() {
    if (!m_stale)
        return;
    makeEmptyForms();
    makeSpans();
    makeSprites();
    m_stale = false;
}

void BoardSurface::makeEmptyForms() {
    const QRect middle = pixelBounds(MiddleHexagon);
    const auto draw = [this](QImage& image, QPoint origin, const Board& board, auto what) {
        image.fill(toQColor(m_appearance.SchemeColours[slot::Background]));
        QPainter painter(&image);
        painter.translate(-origin);
        painter.setTransform(boardToDevice(), true);
        BoardRenderer renderer(painter, board, m_appearance, Fit::ToPixels);
        what(renderer);
    };
    Board board;
    m_image = QImage(m_size, QImage::Format_RGB32);
    if (m_image.isNull() && !m_size.isEmpty())
        throw std::bad_alloc();
    draw(m_image, {}, board, [](BoardRenderer& renderer) { renderer.DrawBoard(); });
    m_openForm = m_image.copy(middle);

    board.BlankHex = MiddleHexagon;
    m_solidForm = QImage(middle.size(), QImage::Format_RGB32);
    draw(m_solidForm, middle.topLeft(), board,
         [](BoardRenderer& renderer) { renderer.DrawHexagon(MiddleHexagon); });
}

/// A pixel is the hexagon's when its middle lies between the sides; a quarter of the width slants
/// away at either end over each half of the height.
void BoardSurface::makeSpans() {
    const double width = m_openForm.width();
    const double height = m_openForm.height();
    m_spans.clear();
    for (int row = 0; row < m_openForm.height(); ++row) {
        const double fromWaist = std::abs((row + 0.5) / (height / 2) - 1);
        const int left = static_cast<int>(std::ceil(width / 4 * fromWaist - 0.5));
        m_spans.push_back({left, m_openForm.width() - 2 * left});
    }
}

void BoardSurface::makeSprites() {
    const auto sprites = [this](bool bold, Colour colour) {
        const DigitFace face(m_appearance.NumberFont, bold);
        return DigitSprites(Numerals(face, scale(), Fit::ToPixels), colour);
    };
    m_given = sprites(true, m_appearance.FixedNumberColour);
    m_user = sprites(false, m_appearance.UserNumberColour);
}

void BoardSurface::drawForm(const Board& board, int hexagon) {
    const QImage& form = board.isBlank(hexagon) ? m_solidForm : m_openForm;
    const QPoint to = pixelBounds(hexagon).topLeft();
    constexpr qsizetype PixelSize = sizeof(QRgb);
    uchar* target = m_image.bits() + to.y() * m_image.bytesPerLine() + to.x() * PixelSize;
    for (int row = 0; row < form.height(); ++row) {
        const auto [left, count] = m_spans[static_cast<std::size_t>(row)];
        std::memcpy(target + left * PixelSize, form.constScanLine(row) + left * PixelSize,
                    static_cast<std::size_t>(count * PixelSize));
        target += m_image.bytesPerLine();
    }
}

void BoardSurface::drawEntries(QPainter& painter, const Board& board, int hexagon) const {
    if (board.isBlank(hexagon))
        return;
    for (int position = 1; position <= CellCount; ++position) {
        const CellId cell{hexagon, position};
        const DigitSprites& sprites = board.FixedCell[cell] ? *m_given : *m_user;
        sprites.draw(painter, board.CellNum[cell], toPixels(numberCentre(cell)),
                     toPixels(marksCentre(cell)));
    }
}

QRect BoardSurface::DrawHexagon(const Board& board, int hexagon) {
    if (!isHexagon(hexagon))
        return {};
    if (m_stale) {
        DrawBoard(board);
        return m_image.rect();
    }
    drawForm(board, hexagon);
    QPainter painter(&m_image);
    drawEntries(painter, board, hexagon);
    return pixelBounds(hexagon);
}

void BoardSurface::DrawBoard(const Board& board) {
    prepare();
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        drawForm(board, hexagon);
    QPainter painter(&m_image);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        drawEntries(painter, board, hexagon);
}

void BoardSurface::DrawSolution(const Board& board, Colour colour) {
    Board givens = board;
    for (CellId cell : AllCells)
        if (!board.FixedCell[cell])
            givens.CellNum[cell].clear();
    DrawBoard(givens);

    const DigitFace bold(m_appearance.NumberFont, true);
    const DigitSprites sprites(Numerals(bold, scale(), Fit::ToPixels), colour);
    QPainter painter(&m_image);
    for (CellId cell : AllCells)
        if (!board.isBlank(cell.hexagon) && !board.FixedCell[cell])
            sprites.draw(painter, board.SolNum[cell], toPixels(numberCentre(cell)),
                         toPixels(marksCentre(cell)));
}

} // namespace tessaly
