#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"
#include "core/options/colour.h"
#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "ui/drawing/numerals.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QTransform>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

class QPainter;

namespace tessaly {

/// Ready pictures of the digits in one colour, as numbers and as pencil marks: smoothing an outline
/// anew for each cell would take many times as long.
class DigitSprites {
public:
    /// The numerals must be fitted to pixels.
    DigitSprites(const Numerals& numerals, Colour colour);

    /// Puts what an entry shows into the cell with these centres, given in device pixels.
    void draw(QPainter& painter, std::string_view entry, QPoint numberCentre,
              QPoint marksCentre) const;

private:
    struct Sprite {
        QImage picture;
        QPoint fromPen;
    };
    static Sprite makeSprite(const QPainterPath& outline, Colour colour);

    std::array<Sprite, DigitCount> m_numbers;
    std::array<Sprite, DigitCount> m_marks;
    QPoint m_numberPen;
    std::array<QPoint, MarkPlaces> m_markPens;
};

/// The board as a picture of device pixels, for a window to show. One hexagon is redrawn by copying
/// its empty form, made once for each size and appearance, and the pictures of its digits over it:
/// so it comes out pixel for pixel the same however often and in whatever order it is drawn.
class BoardSurface {
public:
    /// The picture's size in device pixels. After this or `setAppearance` the board is to be drawn
    /// again.
    void setSize(QSize devicePixels);
    void setAppearance(const Appearance& appearance);

    /// Draws one hexagon and returns what changed in device pixels: nothing when there is no such
    /// hexagon, the whole picture when all of the board had to be drawn again.
    QRect DrawHexagon(const Board& board, int hexagon);
    void DrawBoard(const Board& board);
    /// Draws the board with the solution's numbers in the cells that are no givens.
    void DrawSolution(const Board& board, Colour colour);

    /// The picture; null before the first drawing.
    const QImage& image() const { return m_image; }

    /// Takes board units to device pixels: the board in the middle, as large as fits, and every
    /// hexagon's corners on whole pixels, for which the two directions may differ by half a pixel
    /// a hexagon side.
    QTransform boardToDevice() const;

private:
    struct Span {
        int left;
        int count;
    };

    void prepare();
    void makeEmptyForms();
    void makeSpans();
    void makeSprites();
    Scale scale() const;
    QPoint toPixels(Point point) const;
    QRect pixelBounds(int hexagon) const;
    void drawForm(const Board& board, int hexagon);
    void drawEntries(QPainter& painter, const Board& board, int hexagon) const;

    QSize m_size{static_cast<int>(PictureWidth), static_cast<int>(PictureHeight)};
    Appearance m_appearance;
    bool m_stale = true;

    QImage m_image;
    /// A hexagon of empty cells and a solid one, and in each of their rows the pixels between the
    /// middles of the border lines, which are the hexagon's own.
    QImage m_openForm;
    QImage m_solidForm;
    std::vector<Span> m_spans;
    std::optional<DigitSprites> m_given;
    std::optional<DigitSprites> m_user;
};

} // namespace tessaly
