#include "core/play/play_commands.h"

#include "core/play/assists.h"
#include "core/play/board_style.h"

#include <chrono>
#include <string>

namespace tessaly {
namespace {

/// A number as the message line writes it, with a blank where a sign would stand.
std::string signedText(int number) {
    return " " + std::to_string(number);
}

} // namespace

PlayCommands::PlayCommands(Game& game, const Appearance& appearance, Display& display,
                           Prompts& prompts)
    : m_game(game)
    , m_appearance(appearance)
    , m_display(display)
    , m_prompts(prompts) {}

bool PlayCommands::confirmed(std::string_view question) {
    return m_prompts.message(question, "vbyesno+vbquestion+vbdefaultbutton2") == answer::Yes;
}

void PlayCommands::cmdundo() {
    if (!m_game.canUndo())
        return;
    m_display.showMessage("");
    m_display.DrawHexagons(m_game.undo());
    m_display.focusBoard();
}

void PlayCommands::cmdredo() {
    if (!m_game.canRedo())
        return;
    m_display.showMessage("");
    m_game.redo();
    m_display.DrawBoard();
    m_display.focusBoard();
}

void PlayCommands::cmdallpencil() {
    if (!confirmed("Existing Pencilmarks will be overwitten, Proceed?"))
        return;
    m_game.fillMarks();
    m_display.DrawBoard();
    m_display.showMessage("Pencilmarks updated");
    m_display.focusBoard();
}

void PlayCommands::cmdallpencilClear() {
    if (!confirmed("Existing Pencilmarks will be cleared, Proceed?"))
        return;
    m_game.clearMarks();
    m_display.DrawBoard();
    m_display.showMessage("Pencilmarks cleared");
    m_display.focusBoard();
}

void PlayCommands::reportCount(int count, std::string_view done, std::string_view none) {
    if (count < 1) {
        m_display.showMessage(none);
    } else {
        m_display.DrawBoard();
        m_display.showMessage(signedText(count).append(done));
    }
    m_display.focusBoard();
}

void PlayCommands::cmdsetpairs() {
    int count = 0;
    m_game.CopyAcrossSides(count);
    reportCount(count, " Cells Fixed", "None Fixed");
}

void PlayCommands::cmdset1s() {
    reportCount(m_game.setSingles(), " Cells Set", "None Set");
}

void PlayCommands::cmdhint() {
    if (!m_game.hasPuzzle())
        return;
    if (m_guide.entersNext(m_game.board)) {
        const Step& step = m_guide.step();
        m_game.takeHint();
        m_display.DrawHexagons(m_game.place(step.cell, NumText(step.digit)));
        m_display.showMessage(NumText(step.digit) + " entered");
    } else {
        const Hint hint = m_guide.next(m_game.board);
        m_display.showHint(hint);
        m_display.showMessage(hint.sentence);
    }
    m_display.focusBoard();
}

void PlayCommands::StatLab() {
    if (const int wrong = firstWrongHexagon(m_game.board); wrong != 0) {
        m_display.showMessage("Cell" + signedText(wrong) + " has incorrect numbers");
        return;
    }
    if (isSolved(m_game.board)) {
        m_prompts.message("All Done!", "vbok+vbhappy");
        m_display.yield();
    }
    // Said after a finished board too: the praise was in the box.
    m_display.showMessage("Not done yet ...");
}

void PlayCommands::cmdshowsolPressed() {
    m_game.takeHint();
    m_display.DrawSolution(solutionColour(m_appearance));
}

void PlayCommands::cmdshowsolReleased() {
    m_display.DrawBoard();
}

void PlayCommands::cmdreset() {
    if (!confirmed("Clear ALL user entries?"))
        return;
    m_game.reset();
    m_display.DrawBoard();
    m_display.showMessage("");
    if (m_game.canUndo())
        offerBack();
    m_display.focusBoard();
}

void PlayCommands::offerBack() {
    m_display.showMessage("All entries cleared; Undo brings them back");
    m_display.afterwards(std::chrono::minutes(1), [this, offer = ++m_offers] {
        if (offer != m_offers || !m_game.forgetReset())
            return;
        m_display.showMessage("");
        m_display.showPlay();
    });
}

} // namespace tessaly
