#pragma once

#include "core/base/prompts.h"
#include "core/options/appearance.h"
#include "core/play/display.h"
#include "core/play/game.h"
#include "core/play/hint_guide.h"

namespace tessaly {

/// The play commands of the main window, by the names of the controls that start them.
class PlayCommands {
public:
    PlayCommands(Game& game, const Appearance& appearance, Display& display, Prompts& prompts);

    void cmdundo();
    void cmdredo();
    /// Pencil marks into all cells, after a question.
    void cmdallpencil();
    /// Takes all pencil marks away, after a question.
    void cmdallpencilClear();
    /// Copies placed numbers across the sides.
    void cmdsetpairs();
    /// Sets the last missing number of every hexagon that lacks one.
    void cmdset1s();
    /// Gives a hint in three: where, why, and then the number itself.
    void cmdhint();
    /// Judges the board: names the first wrong hexagon, or says that all is done.
    void StatLab();
    /// Shows the solution from the press of the button to its release.
    void cmdshowsolPressed();
    void cmdshowsolReleased();
    void cmdreset();

private:
    bool confirmed(std::string_view question);
    /// For a minute what was reset can be brought back.
    void offerBack();
    void reportCount(int count, std::string_view done, std::string_view none);

    Game& m_game;
    const Appearance& m_appearance;
    Display& m_display;
    Prompts& m_prompts;
    int m_offers = 0;
    HintGuide m_guide;
};

} // namespace tessaly
