#include "manual/drawings.h"

#include "core/board/tables.h"
#include "core/play/board_geometry.h"
#include "manual/examples.h"
#include "ui/controls/icon_set.h"
#include "ui/drawing/board_renderer.h"
#include "ui/drawing/hexagon_tag.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace tessaly::manual {
namespace {

using namespace Qt::StringLiterals;

constexpr double Margin = 14;
const QColor Paper(246, 243, 235);
const QColor Reason(255, 226, 140);
const QColor Conclusion(150, 215, 160);
/// One for each of the three pairs of a corner.
const QColor PairTints[]{QColor(255, 226, 140), QColor(150, 215, 160), QColor(165, 205, 245)};

/// Cells to be tinted.
struct Tint {
    std::vector<CellId> cells;
    QColor colour;
};

Appearance appearance() {
    Appearance look;
    look.NumberFont = "Liberation Sans";
    look.HexaFillColour = RGB(255, 255, 255);
    look.SchemeColours[slot::Background] = RGB(Paper.red(), Paper.green(), Paper.blue());
    look.UserNumberColour = RGB(150, 30, 30);
    return look;
}

QRectF boundsOf(const std::vector<int>& hexagons) {
    QRectF bounds;
    for (int hexagon : hexagons) {
        const Rect one = hexagonBounds(hexagon);
        bounds |= QRectF(one.left, one.top, one.width(), one.height());
    }
    return bounds.adjusted(-Margin, -Margin, Margin, Margin);
}

void tintCells(QPainter& painter, const Tint& tint) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint.colour);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    for (CellId cell : tint.cells) {
        QPolygonF triangle;
        for (Point corner : cellTriangle(cell))
            triangle << QPointF(corner.x, corner.y);
        painter.drawPolygon(triangle);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

/// Draws some hexagons of a board as the game does, with their tags.
QImage drawHexagons(const Board& board, const std::vector<int>& hexagons,
                    const std::vector<Tint>& tints = {}) {
    const Appearance look = appearance();
    const QRectF bounds = boundsOf(hexagons);
    QImage picture((bounds.size() * DrawingScale).toSize(), QImage::Format_RGB32);
    picture.fill(Paper);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(DrawingScale, DrawingScale);
    painter.translate(-bounds.topLeft());
    BoardRenderer renderer(painter, board, look);
    for (int hexagon : hexagons)
        renderer.DrawHexagon(hexagon);
    for (const Tint& tint : tints)
        tintCells(painter, tint);
    for (int hexagon : hexagons) {
        const Rect tag = tagRectangle(hexagon);
        if (!board.isBlank(hexagon))
            drawTag(painter, {tag.left, tag.top, tag.width(), tag.height()}, hexagon, look);
    }
    return picture;
}

QImage drawBoard(const Board& board) {
    std::vector<int> hexagons(HexagonCount);
    std::iota(hexagons.begin(), hexagons.end(), 1);
    return drawHexagons(board, hexagons);
}

QImage drawExample(const Example& example) {
    return drawHexagons(example.board, example.hexagons,
                        {{example.reasons, Reason}, {example.settled, Conclusion}});
}

/// The three pairs of cells around the corner of three hexagons.
QImage drawCorner() {
    std::vector<Tint> pairs;
    for (CellId cell : std::vector<CellId>{{5, 5}, {5, 6}, {7, 4}})
        pairs.push_back({{cell, SideLink[cell]}, PairTints[pairs.size()]});
    return drawHexagons(solutionOf(CornerPuzzle), {5, 7, 10}, pairs);
}

QImage drawButton(Picture picture) {
    constexpr int Size = 32;
    constexpr int Inset = 4;
    QImage image(DrawingScale * QSize(Size, Size), QImage::Format_RGB32);
    image.fill(Paper);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(DrawingScale, DrawingScale);
    drawPicture(painter, QRectF(0, 0, Size, Size).adjusted(Inset, Inset, -Inset, -Inset), picture,
                Qt::black);
    return image;
}

std::vector<Drawing> drawButtons() {
    const std::pair<const char16_t*, Picture> buttons[]{
        {u"load", Picture::Load},
        {u"previous", Picture::Previous},
        {u"next", Picture::Next},
        {u"create", Picture::Create},
        {u"undo", Picture::Undo},
        {u"redo", Picture::Redo},
        {u"hint", Picture::Hint},
        {u"reset", Picture::Reset},
        {u"solution", Picture::ShowSolution},
        {u"marks", Picture::PencilMarks},
        {u"pairs", Picture::SetPairs},
        {u"singles", Picture::SetSingles},
        {u"eraser", Picture::Eraser},
        {u"pencil", Picture::Pencil},
        {u"copy-sides", Picture::CopySides},
        {u"candidate", Picture::SingleCandidate},
        {u"close", Picture::Close},
    };
    std::vector<Drawing> drawings;
    for (const auto& [name, picture] : buttons)
        drawings.push_back({u"button-"_s + QString::fromUtf16(name), drawButton(picture)});
    return drawings;
}

} // namespace

std::vector<Drawing> drawings() {
    const Board solved = solutionOf(FirstPuzzle);
    std::vector<Drawing> drawings = drawButtons();
    drawings.push_back({u"puzzle"_s, drawBoard(givensOf(FirstPuzzle))});
    drawings.push_back({u"solved"_s, drawBoard(solved)});
    drawings.push_back({u"hexagon"_s, drawHexagons(solved, {10})});
    drawings.push_back({u"side"_s, drawHexagons(solved, {5, 8}, {{{{5, 4}, {8, 1}}, Conclusion}})});
    drawings.push_back({u"corner"_s, drawCorner()});
    for (const Example& example : examples())
        drawings.push_back({u"rule-%1"_s.arg(example.rule), drawExample(example)});
    return drawings;
}

} // namespace tessaly::manual
