#include "ui/drawing/page_painter.h"

#include "core/base/product.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

/// Text is set this much larger and scaled down: sizes of fonts are whole pixels, and so are the
/// widths of letters.
constexpr double Finer = 32;

double shareBefore(TextAnchor anchor) {
    switch (anchor) {
    case TextAnchor::Left:
        return 0;
    case TextAnchor::Middle:
        return 0.5;
    case TextAnchor::Right:
        break;
    }
    return 1;
}

/// Such a picture holds no fonts, and the one meant may be missing where it is shown.
bool isVectorPicture(const QPainter& painter) {
    return painter.paintEngine()->type() == QPaintEngine::SVG;
}

using namespace Qt::StringLiterals;

/// The board with everything in its place.
Board solved(Board board) {
    for (CellId cell : AllCells)
        board.CellNum[cell] = board.SolNum[cell];
    return board;
}

QString captionOf(int number, bool solution) {
    return (solution ? u"Sol# "_s : u"Puz# "_s) + QString::number(number);
}

} // namespace

void drawText(QPainter& painter, QPointF point, const QString& text, const PageText& style,
              TextAnchor anchor, double widest) {
    QFont font(style.family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.size * Finer))));
    font.setWeight(style.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(text) / Finer;
    const double condensed = width > widest ? widest / width : 1;
    painter.save();
    painter.setFont(font);
    painter.translate(point.x() - shareBefore(anchor) * width * condensed, point.y());
    painter.scale(condensed / Finer, condensed / Finer);
    if (isVectorPicture(painter)) {
        QPainterPath outline;
        outline.addText(QPointF(), font, text);
        painter.fillPath(outline, painter.pen().color());
    } else {
        painter.drawText(QPointF(), text);
    }
    painter.restore();
}

PagePainter::PagePainter(QPainter& painter, const Appearance& appearance)
    : m_painter(painter)
    , m_family(QGuiApplication::font().family())
    , m_renderer(painter, m_board, paperStyle(appearance), appearance.NumberFont, Digits::AsText) {}

void PagePainter::drawBoard(const Board& board, int number, bool solution, const Rect& area) {
    const double scale = area.width() / BoardExtent.width();
    m_board = solution ? solved(board) : board;
    m_painter.save();
    m_painter.translate(area.left - BoardExtent.left * scale, area.top - BoardExtent.top * scale);
    m_painter.scale(scale, scale);
    m_renderer.DrawBoard();
    m_painter.restore();

    // Between the page's edge and the uppermost hexagon, above the ones beneath it.
    const double room = 0.33 * area.width();
    const double size = std::clamp(27 * scale, 7.5, 13.0);
    const double baseline = area.top + size * 0.74;
    m_painter.setPen(Qt::black);
    drawText(m_painter, {area.left, baseline}, captionOf(number, solution),
             {m_family, size, QFont::Bold}, TextAnchor::Left, room);
    drawText(m_painter, {area.right, baseline}, QString::fromUtf8(board.DifName()),
             {m_family, size}, TextAnchor::Right, room);
}

void PagePainter::drawFooter(const Rect& area, int page, int pageCount) {
    const PageText style{m_family, 8.5 * std::min(1.0, area.height() / 28)};
    const double baseline = area.bottom;
    const double widest = area.width() / 3;
    m_painter.setPen(QPen(Qt::black, 0.4));
    m_painter.drawLine(QPointF(area.left, baseline - 1.6 * style.size),
                       QPointF(area.right, baseline - 1.6 * style.size));
    drawText(m_painter, {area.left, baseline}, QString::fromLatin1(Product::Name), style,
             TextAnchor::Left, widest);
    drawText(m_painter, {area.centre().x, baseline}, u"%1 / %2"_s.arg(page).arg(pageCount), style,
             TextAnchor::Middle, widest);
    drawText(m_painter, {area.right, baseline}, QString::fromLatin1(Product::WebAddress), style,
             TextAnchor::Right, widest);
}

} // namespace tessaly
