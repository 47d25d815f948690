#pragma once

#include <QRect>
#include <QSize>

namespace tessaly {

/// Square buttons in columns and rows, an eighth of a side apart. All lengths are logical pixels.
struct ButtonGrid {
    static constexpr int Parts = 8;

    int side = 0;

    int gap() const { return side / Parts; }
    int step() const { return side + gap(); }
    int width(int columns) const { return columns * step() - gap(); }
    /// The place of a button that may be several columns wide, `down` below the first row.
    QRect place(int column, int row, int columns = 1, int down = 0) const {
        return {column * step(), row * step() + down, width(columns), side};
    }
    /// The size of a picture on a button.
    QSize pictureSize() const { return QSize(side, side) * 0.55; }
    /// The largest that fits so many columns into a width.
    static ButtonGrid across(int width, int columns) {
        ButtonGrid grid{width * Parts / (columns * (Parts + 1) - 1) + 1};
        while (grid.width(columns) > width)
            --grid.side;
        return grid;
    }
};

} // namespace tessaly
