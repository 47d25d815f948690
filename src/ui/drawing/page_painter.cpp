#include "ui/drawing/page_painter.h"

#include "core/base/product.h"
#include "core/board/tables.h"
#include "ui/drawing/qt_values.h"
#include "ui/drawing/star_drawing.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

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

/// The six places in a corner of a cell at its level side: one in the corner, and beside it towards
/// the slanted side two and three. It is the outer corner, for in the middle is the hexagon's
/// number.
std::array<Point, MarkPlaces> markCornerOf(CellId cell) {
    constexpr double First = 0.085;
    constexpr double Step = 0.105;
    const auto [centre, second, third] = cellTriangle(cell);
    const Point left = second.x < third.x ? second : third;
    const Point right = second.x < third.x ? third : second;
    // The side opposite the centre is level in the middle cells, else one that leads there.
    const bool isMiddle = left.y == right.y;
    const Point corner = isMiddle || left.y == centre.y ? left : right;
    const Point along = isMiddle ? right : centre;
    const Point tip = isMiddle ? centre : corner == left ? right : left;
    std::array<Point, MarkPlaces> places;
    std::size_t place = 0;
    for (int row = 0; row < MarksInARow; ++row)
        for (int i = 0; i <= row; ++i) {
            const double level = First + (row - i) * Step;
            const double up = First + i * Step;
            places[place++] = {corner.x + level * (along.x - corner.x) + up * (tip.x - corner.x),
                               corner.y + level * (along.y - corner.y) + up * (tip.y - corner.y)};
        }
    return places;
}

} // namespace

void drawText(QPainter& painter, QPointF point, const QString& text, const PageText& style,
              TextAnchor anchor, double widest) {
    QFont font(style.family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.size * Finer))));
    font.setWeight(style.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    constexpr double MostCondensed = 0.7;
    const QFontMetricsF metrics(font, painter.device());
    const QString shown = metrics.elidedText(text, Qt::ElideMiddle, widest * Finer / MostCondensed);
    const double width = metrics.horizontalAdvance(shown) / Finer;
    const double condensed = width > widest ? widest / width : 1;
    painter.save();
    painter.setFont(font);
    painter.translate(point.x() - shareBefore(anchor) * width * condensed, point.y());
    painter.scale(condensed / Finer, condensed / Finer);
    if (isVectorPicture(painter)) {
        QPainterPath outline;
        outline.addText(QPointF(), font, shown);
        painter.fillPath(outline, painter.pen().color());
    } else {
        painter.drawText(QPointF(), shown);
    }
    painter.restore();
}

PagePainter::PagePainter(QPainter& painter, const Appearance& appearance, const PrintJob& job)
    : m_painter(painter)
    , m_job(job)
    , m_namesFiles(job.hasManyFiles())
    , m_family(QGuiApplication::font().family())
    , m_renderer(painter, m_board, paperStyle(appearance, job.design.large), appearance.NumberFont,
                 Digits::AsText) {}

void PagePainter::draw(const BookletPage& page, int number, int pageCount) {
    if (!m_job.design.title.empty())
        drawTitle(page.layout.title());
    if (m_job.design.nameAndDate && !page.solutions)
        drawNameLine(page.layout.nameLine());
    for (int place = 0; place < page.count; ++place)
        drawBoard(page.first + place, page.solutions, page.boardArea(place));
    if (m_job.design.solutions == SolutionsAt::Foot)
        drawFoot(page);
    drawFooter(page.layout.footer(), QString::fromStdString(m_job.filesOf(page)), number,
               pageCount);
}

void PagePainter::drawTitle(const Rect& area) {
    constexpr double OfHeight = 0.5;
    const double size = OfHeight * area.height();
    m_painter.setPen(Qt::black);
    drawText(m_painter, {area.centre().x, area.top + size},
             QString::fromStdString(m_job.design.title), {m_family, size, QFont::Bold},
             TextAnchor::Middle, area.width());
}

void PagePainter::drawNameLine(const Rect& area) {
    constexpr double NameShare = 0.64;
    const double size = area.height() / 3;
    const double baseline = area.bottom - size;
    const double middle = area.left + NameShare * area.width();
    for (const auto& [from, to, word] : {std::tuple(area.left, middle - 2 * size, u"Name"_s),
                                         std::tuple(middle, area.right, u"Date"_s)}) {
        m_painter.setPen(Qt::black);
        const double widest = (to - from) / 3;
        drawText(m_painter, {from, baseline}, word, {m_family, size}, TextAnchor::Left, widest);
        m_painter.setPen(QPen(Qt::black, 0.5));
        m_painter.drawLine(QPointF(from + 3.2 * size, baseline + 1.5), QPointF(to, baseline + 1.5));
    }
}

/// Whoever solves the puzzles turns the sheet about to compare.
void PagePainter::drawFoot(const BookletPage& page) {
    m_painter.save();
    const Point middle = page.layout.foot().area().centre();
    m_painter.translate(2 * middle.x, 2 * middle.y);
    m_painter.rotate(180);
    for (int place = 0; place < page.count; ++place)
        drawBoard(page.first + place, true, page.footArea(place));
    m_painter.restore();
}

void PagePainter::drawFooter(const Rect& area, const QString& files, int number, int pageCount) {
    const PageText style{m_family, 8.5 * std::min(1.0, area.height() / 26)};
    const double baseline = area.bottom;
    const double widest = 0.36 * area.width();
    m_painter.setPen(QPen(Qt::black, 0.4));
    m_painter.drawLine(QPointF(area.left, baseline - 1.6 * style.size),
                       QPointF(area.right, baseline - 1.6 * style.size));
    drawText(m_painter, {area.left, baseline}, files, style, TextAnchor::Left, widest);
    drawText(m_painter, {area.centre().x, baseline}, u"%1 / %2"_s.arg(number).arg(pageCount), style,
             TextAnchor::Middle, area.width() / 4);
    const QString product = QString::fromLatin1(Product::Name) + u" \u00B7 "_s +
                            QString::fromLatin1(Product::WebAddress);
    drawText(m_painter, {area.right, baseline}, product, style, TextAnchor::Right, widest);
}

void PagePainter::drawBoard(int index, bool solution, const Rect& area) {
    const double scale = area.width() / BoardExtent.width();
    m_board = m_job.board(index);
    if (solution)
        m_board = solved(m_board);
    m_painter.save();
    m_painter.translate(area.left - BoardExtent.left * scale, area.top - BoardExtent.top * scale);
    m_painter.scale(scale, scale);
    m_renderer.DrawBoard();
    if (m_job.design.hexagonNumbers)
        drawHexagonNumbers();
    if (m_job.design.markGrid && !solution)
        drawMarkGrid();
    m_painter.restore();
    drawCaptions(m_job.puzzle(index), solution, area);
}

void PagePainter::drawHexagonNumbers() {
    constexpr double Radius = 9;
    constexpr double Size = 10;
    constexpr double DigitHeight = 0.72;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (m_board.isBlank(hexagon))
            continue;
        const QPointF centre = toQt(hexagonCentre(hexagon));
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(Qt::white);
        m_painter.drawEllipse(centre, Radius, Radius);
        m_painter.setPen(Qt::black);
        drawText(m_painter, centre + QPointF(0, DigitHeight * Size / 2), QString::number(hexagon),
                 {m_family, Size}, TextAnchor::Middle, 2 * Radius);
    }
}

void PagePainter::drawMarkGrid() {
    constexpr double Radius = 2.2;
    m_painter.setPen(QPen(Qt::black, 0.35));
    m_painter.setBrush(Qt::NoBrush);
    for (CellId cell : AllCells)
        if (!m_board.isBlank(cell.hexagon) && !m_board.FixedCell[cell])
            for (const Point& place : markCornerOf(cell))
                m_painter.drawEllipse(toQt(place), Radius, Radius);
}

void PagePainter::drawCaptions(const PrintedPuzzle& puzzle, bool solution, const Rect& area) {
    constexpr double SecondLine = 1.35;
    const Rect first = captionArea(area);
    const double largest = m_job.design.large ? 18 : 13;
    const double size = std::clamp(27 * area.width() / BoardExtent.width(), 7.5, largest);
    const double baseline = area.top + size * 0.74;
    // The board comes nearer there.
    const double narrow = 0.6 * first.width();
    m_painter.setPen(Qt::black);
    drawText(m_painter, {area.left, baseline}, captionOf(puzzle.number, solution),
             {m_family, size, QFont::Bold}, TextAnchor::Left, first.width());
    drawText(m_painter, {area.right, baseline}, QString::fromUtf8(m_board.DifName()),
             {m_family, size}, TextAnchor::Right, first.width());
    if (m_namesFiles)
        drawText(m_painter, {area.left, baseline + SecondLine * size},
                 QString::fromStdString(puzzle.file), {m_family, 0.8 * size}, TextAnchor::Left,
                 narrow);
    if (m_job.design.stars && puzzle.stars > 0) {
        const QSizeF extent(0.62 * size * MostStars, 0.62 * size);
        m_painter.setPen(QPen(Qt::black, 0.05 * extent.height()));
        drawStars(m_painter, puzzle.stars,
                  {QPointF(area.right - extent.width(), baseline + 0.49 * size), extent});
    }
}

} // namespace tessaly
