#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"
#include "core/play/board_style.h"
#include "ui/drawing/numerals.h"

#include <QLineF>
#include <QList>

#include <string>

class QPainter;

namespace tessaly {

enum class Digits { AsOutlines, AsText };

/// Draws a board with a painter, in board units, under whatever transform the painter has: on a
/// picture, a printer page or a vector file. The background is the caller's. The board, the
/// appearance and the painter must outlive the renderer; the painter's state is left as it was.
/// Each drawing shows what the board holds by then.
class BoardRenderer {
public:
    /// With `Fit::ToPixels` lines are given whole widths in device pixels and the level ones lie on
    /// them, which needs a transform that brings the hexagons' corners onto pixels.
    BoardRenderer(QPainter& painter, const Board& board, const Appearance& appearance,
                  Fit lines = Fit::Exact);
    /// Draws in a style of its own; digits as text become characters of a document.
    BoardRenderer(QPainter& painter, const Board& board, const BoardStyle& style,
                  const std::string& font, Digits digits);
    BoardRenderer(const BoardRenderer&) = delete;
    BoardRenderer& operator=(const BoardRenderer&) = delete;

    /// Draws one hexagon with its border, its cells and what they hold; nothing when there is no
    /// such hexagon. The blank hexagon is solid.
    void DrawHexagon(int hexagon);

    /// Draws all hexagons. Each border that two hexagons share is drawn once.
    void DrawBoard();

    /// Writes the solution's numbers over the cells that are no givens, in place of what a drawing
    /// of the board left there.
    void DrawSolution(Colour colour);

private:
    BoardRenderer(QPainter& painter, const Board& board, const BoardStyle& style,
                  const std::string& font, Fit lines, Digits digits);
    void fillHexagon(int hexagon);
    void drawHatching(int hexagon);
    void drawCellLines(int hexagon);
    void drawSharedBorders();
    void drawBorders(const QList<QLineF>& lines, Qt::PenCapStyle cap);
    void drawEntries(int hexagon);
    void drawEntry(CellId cell);
    void eraseEntry(CellId cell);
    void addEntryAsText(CellId cell);
    void drawTexts();

    const Numerals& numeralsOf(CellId cell) const {
        return m_board.FixedCell[cell] ? m_boldNumerals : m_numerals;
    }
    /// Calls `draw(outline)` for each digit of an entry, the outline where it stands on the board.
    template <class Draw>
    void forEachDigit(CellId cell, Draw draw) const;

    QPainter& m_painter;
    const Board& m_board;
    BoardStyle m_style;
    Fit m_lines;
    Digits m_digits;
    DigitFace m_face;
    DigitFace m_boldFace;
    Numerals m_numerals;
    Numerals m_boldNumerals;
    DigitText m_givens;
    DigitText m_numbers;
    DigitText m_marks;
};

} // namespace tessaly
