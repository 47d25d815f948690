// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/board.h"
#include "options/appearance.h"
#include "play/board_style.h"
#include "play/numerals.h"

#include <QLineF>
#include <QList>

#include <string>

class QPainter;

namespace tessaly {

/// Draws a board with a painter, in board units, under whatever transform the painter has: on a
/// picture, a printer page or a vector file. The background is the caller's. The board, the
/// appearance and the painter must outlive the renderer; the painter's state is left as it was.
class BoardRenderer {
public:
    /// With `Fit::ToPixels` lines are given whole widths in device pixels and the level ones lie on
    /// them, which needs a transform that brings the hexagons' corners onto pixels.
    BoardRenderer(QPainter& painter, const Board& board, const Appearance& appearance,
                  Fit lines = Fit::Exact);
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
    void fillHexagon(int hexagon);
    void drawCellLines(int hexagon);
    void drawSharedBorders();
    void drawBorders(const QList<QLineF>& lines, Qt::PenCapStyle cap);
    void drawEntries(int hexagon);
    void drawEntry(CellId cell);
    void eraseEntry(CellId cell);

    /// Calls `draw(outline)` for each digit of an entry, the outline where it stands on the board.
    template <class Draw>
    void forEachDigit(CellId cell, Draw draw) const;

    QPainter& m_painter;
    const Board& m_board;
    BoardStyle m_style;
    Fit m_lines;
    std::string m_font;
    DigitFace m_face;
    Numerals m_numerals;
};

} // namespace tessaly
