#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"

#include <QImage>

class QPainter;

namespace tessaly {

/// A picture of the board for other programs and for files.
struct BoardPicture {
    /// `Game` is the board as the window shows it. `Copy` is plain: black on white, the hexagons'
    /// numbers, the product's name above, and the difficulty on the blank hexagon.
    enum class Look { Copy, Game };

    const Board& board;
    const Appearance& appearance;
    bool solution = false;
    Look look = Look::Copy;
    /// Whether the hexagons' numbers and, in a copy, the difficulty and the product's name are
    /// drawn.
    bool hasLabels = true;
    /// Whether nothing is painted under the lines and numbers.
    bool isTransparent = false;
    /// Whether all is black.
    bool isOneInk = false;
};

/// The colours and settings that a picture is drawn with. What the player has written keeps its
/// colour in a copy, unless it would not be seen on white.
Appearance appearanceOf(const BoardPicture& picture);

/// A picture of `scale` pixels a board unit that is sharp down to the pixel.
QImage drawImage(const BoardPicture& picture, double scale);

/// Draws a picture in board units, the background included, with a painter of any device.
void paintPicture(QPainter& painter, const BoardPicture& picture);

} // namespace tessaly
