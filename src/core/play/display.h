#pragma once

#include "core/options/colour.h"

#include <string_view>

namespace tessaly {

/// What the commands need of the window that shows the board. The board itself they change
/// directly.
class Display {
public:
    virtual ~Display() = default;

    virtual void DrawHexagon(int hexagon) = 0;
    virtual void DrawBoard() = 0;
    /// Writes the solution over every cell that is no given; drawing the board takes it away again.
    virtual void DrawSolution(Colour colour) = 0;
    /// Shows a text on the message line; an empty one clears it.
    virtual void showMessage(std::string_view text) = 0;
    virtual void focusBoard() = 0;
    /// Lets the window handle what has come in meanwhile.
    virtual void yield() = 0;
};

} // namespace tessaly
