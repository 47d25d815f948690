#include "ui/drawing/numerals.h"

#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tessaly {
namespace {

/// How far a point lies inside of the line from `a` to `b`, a triangle's side drawn clockwise.
double inside(QPointF p, Point a, Point b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    return (dx * (p.y() - a.y) - dy * (p.x() - a.x)) / std::hypot(dx, dy);
}

/// How near the ink comes to the lines about a cell; negative when it crosses them.
double clearance(const QPainterPath& ink, Point origin, QPointF pen, CellId cell) {
    const auto [tip, from, to] = cellTriangle(cell);
    EXPECT_FALSE(ink.isEmpty());
    double least = 1e9;
    for (QPointF p : ink.translated(pen + toQt(origin)).toFillPolygon())
        least = std::min({least, inside(p, tip, from), inside(p, from, to), inside(p, to, tip)});
    return least;
}

TEST(Numerals, StandClearOfTheLinesInEveryFont) {
    constexpr int Digits = 7;
    for (const char* font :
         {"Liberation Sans", "Liberation Mono", "DejaVu Serif", "a font that is not there"})
        for (const bool bold : {false, true}) {
            const DigitFace face(font, bold);
            const Numerals numerals(face, {}, Fit::Exact);
            for (int at = 0; at < CellCount * Digits; ++at) {
                const CellId cell{10, 1 + at / Digits};
                const int digit = at % Digits;
                SCOPED_TRACE(testing::Message() << font << ' ' << digit << ' ' << cell.position);
                EXPECT_GT(clearance(numerals.number(digit), numberCentre(cell),
                                    numerals.numberPen(), cell),
                          3);
                for (int place = 0; place < MarkPlaces && !bold; ++place)
                    EXPECT_GT(clearance(numerals.mark(digit), marksCentre(cell),
                                        numerals.markPen(place), cell),
                              1.5);
            }
        }
}

TEST(Numerals, MarksStandInColumns) {
    EXPECT_TRUE(hasDigits(QStringLiteral("Liberation Sans")));
    const DigitFace face("Liberation Sans");
    const Numerals numerals(face, {2.37, 2.41}, Fit::ToPixels);
    const double column = numerals.markPen(1).x() - numerals.markPen(0).x();
    EXPECT_GE(column, std::floor(face.columnWidth() * MarkSize * 2.37));
    EXPECT_EQ(column, std::round(column));
    for (int place = 0; place < MarksInARow; ++place) {
        EXPECT_EQ(numerals.markPen(place).x(), numerals.markPen(0).x() + place * column);
        EXPECT_EQ(numerals.markPen(place + MarksInARow).x(), numerals.markPen(place).x());
        EXPECT_GT(numerals.markPen(place + MarksInARow).y(), numerals.markPen(place).y());
    }
}

} // namespace
} // namespace tessaly
