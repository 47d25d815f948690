#pragma once

#include "core/play/board_input.h"
#include "core/play/display.h"

#include <functional>
#include <string>
#include <vector>

namespace tessaly {

/// A window that only remembers what it was asked to show.
struct RecordingDisplay : Display, InputDisplay {
    void DrawHexagon(int hexagon) override { drawn.push_back(hexagon); }
    void DrawBoard() override { ++boardsDrawn; }
    void DrawSolution(Colour) override { ++solutionsDrawn; }
    void showMessage(std::string_view text) override { message = text; }
    void focusBoard() override { ++focused; }
    void yield() override {
        ++yields;
        if (onYield)
            onYield();
    }

    void showSelection(CellId cell) override { marker = cell; }
    void showPopup(Point corner, bool upwards) override {
        popupShown = true;
        popupCorner = corner;
        popupUpwards = upwards;
    }
    void hidePopup() override { popupShown = false; }
    void showPalette(int pressedItem) override { palette = pressedItem; }

    std::vector<int> drawn;
    int boardsDrawn = 0;
    int solutionsDrawn = 0;
    int focused = 0;
    int yields = 0;
    /// What happens while a command lets the window live.
    std::function<void()> onYield;
    std::string message;
    CellId marker;
    bool popupShown = false;
    bool popupUpwards = false;
    Point popupCorner;
    int palette = BoardInput::NoPaletteItem;
};

} // namespace tessaly
