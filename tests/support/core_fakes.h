#pragma once

#include "core/play/board_input.h"
#include "support/scripted_prompts.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tessaly {

/// A window that only remembers what it was asked to show.
struct RecordingDisplay : Display {
    void DrawHexagon(int hexagon) override { drawn.push_back(hexagon); }
    void DrawBoard() override { ++boardsDrawn; }
    void DrawSolution(Colour) override { ++solutionsDrawn; }
    void DrawPeek(const Board& other, int hexagon) override { peeked = other.CellNum[hexagon]; }
    void focusBoard() override { ++focused; }
    void showSelection(CellId cell) override { marker = cell; }
    void showPopup(Point corner, bool upwards) override {
        popupShown = true;
        popupCorner = corner;
        popupUpwards = upwards;
    }
    void hidePopup() override { popupShown = false; }
    void showPalette(int pressedItem) override { palette = pressedItem; }

    void showPuzzle(const CurrentPuzzle& shown) override {
        puzzle = shown.PuzNum > 0 ? shown : CurrentPuzzle();
    }
    void showDifficulty(DifficultyChoice shown) override { difficulty = shown; }
    void showSaveTarget(const std::filesystem::path& path) override { saveTarget = path; }
    void showRecentFiles(const std::vector<std::filesystem::path>& paths) override {
        recent = paths;
    }
    void showMessage(std::string_view text) override { message = text; }

    void showBusy(bool busy) override { busyDepth += busy ? 1 : -1; }
    void beginProgress(const std::filesystem::path& path) override { progressPath = path; }
    void showProgress(const RunProgress& shown) override {
        progress = shown;
        if (onProgress)
            onProgress();
    }
    void endProgress() override { progressEnded = true; }
    void yield() override {
        ++yields;
        if (onYield)
            onYield();
    }

    std::vector<int> drawn;
    int boardsDrawn = 0;
    int solutionsDrawn = 0;
    Grid<std::string>::Row peeked;
    int focused = 0;
    CellId marker;
    bool popupShown = false;
    bool popupUpwards = false;
    Point popupCorner;
    int palette = BoardInput::NoPaletteItem;

    CurrentPuzzle puzzle;
    DifficultyChoice difficulty;
    std::filesystem::path saveTarget;
    std::vector<std::filesystem::path> recent;
    std::string message;

    int busyDepth = 0;
    std::filesystem::path progressPath;
    RunProgress progress;
    bool progressEnded = false;
    int yields = 0;
    /// What happens while a command shows how far it is, or lets the window live.
    std::function<void()> onProgress;
    std::function<void()> onYield;
};

/// A game and its commands, with nobody but a test to see and to ask.
struct PlayScene {
    Game game;
    BusyState busy;
    Appearance appearance;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    PlayCommands commands{game, appearance, display, prompts};
    BoardInput input{game, busy, commands, display};
};

/// The file picker, answered by a test.
struct ScriptedFileChoice {
    FileChoice choice() {
        return [this](FileUse use, std::string_view title) {
            asked.push_back((use == FileUse::Save ? "SAVE: " : "OPEN: ") + std::string(title));
            return path;
        };
    }

    /// The file that the user chooses; empty cancels.
    std::filesystem::path path;
    std::vector<std::string> asked;
};

} // namespace tessaly
