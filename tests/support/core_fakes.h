#pragma once

#include "core/base/prompts.h"
#include "core/files/file_access.h"
#include "core/session/puzzle_file_commands.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

/// Message boxes that a test answers: each text and style is remembered. A question that no answer
/// was queued for fails the test, and so does an answer that nobody asked for. Boxes that only tell
/// ("vbok") need no answer.
struct ScriptedPrompts : Prompts {
    struct Message {
        std::string text;
        std::string style;
        friend bool operator==(const Message&, const Message&) = default;
    };

    ScriptedPrompts(std::initializer_list<int> firstAnswers = {})
        : answers(firstAnswers) {}
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;
    ~ScriptedPrompts() override {
        EXPECT_TRUE(answers.empty() && lines.empty()) << "not every answer was used";
    }

    int message(std::string_view text, std::string_view style) override {
        shown.push_back({std::string(text), std::string(style)});
        if (answers.empty()) {
            EXPECT_NE(style.find("ok"), std::string_view::npos) << "unexpected question: " << text;
            return answer::Ok;
        }
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::string ask(std::string_view question) override {
        asked.emplace_back(question);
        if (lines.empty()) {
            ADD_FAILURE() << "unexpected question: " << question;
            return {};
        }
        std::string line = lines.front();
        lines.pop_front();
        return line;
    }

    /// What was shown since the last call: "|text [style]" for each box.
    std::string told() {
        std::string all;
        for (const auto& [text, style] : std::exchange(shown, {}))
            all.append("|").append(text).append(" [").append(style).append("]");
        return all;
    }

    std::deque<int> answers;
    /// What the player writes when asked for a line of text.
    std::deque<std::string> lines;
    std::vector<std::string> asked;
    std::vector<Message> shown;
};

/// A window that only remembers what it was asked to show.
struct RecordingDisplay : Display {
    void DrawHexagon(int hexagon) override { drawn.push_back(hexagon); }
    void DrawBoard() override { ++boardsDrawn; }
    void DrawSolution(Colour) override {}
    void DrawPeek(const Board& other, int hexagon) override { peeked = other.CellNum[hexagon]; }
    void showHint(const Hint& shown) override { hint = shown; }
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
    void showPlay() override { ++playsShown; }
    void showSolved(CellId last) override { solved = last; }
    void showDifficulty(DifficultyChoice shown) override { difficulty = shown; }
    void showSaveTarget(const std::filesystem::path& path) override { saveTarget = path; }
    void showRecentFiles(const std::vector<std::filesystem::path>& paths) override {
        recent = paths;
    }
    void showMessage(std::string_view text) override { message = text; }
    void announce(std::string_view text) override { announced = text; }

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

    void afterwards(std::chrono::milliseconds, std::function<void()> what) override {
        later = std::move(what);
    }
    bool waitFor(const std::filesystem::path&, const std::function<bool()>& attempt) override {
        return attempt();
    }

    std::vector<int> drawn;
    int boardsDrawn = 0;
    Grid<std::string>::Row peeked;
    Hint hint;
    int focused = 0;
    CellId marker;
    bool popupShown = false;
    bool popupUpwards = false;
    Point popupCorner;
    int palette = BoardInput::NoPaletteItem;

    CurrentPuzzle puzzle;
    int playsShown = 0;
    CellId solved;
    /// What is to be done after a while.
    std::function<void()> later;
    DifficultyChoice difficulty;
    std::filesystem::path saveTarget;
    std::vector<std::filesystem::path> recent;
    std::string message;
    std::string announced;

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

/// A session in a program folder of its own, with its commands on puzzle files.
struct SessionScene {
    SessionScene() { session.ProgramFolder = folder.path() / ""; }

    std::filesystem::path fileOf(const std::string& name, const std::string& content) const {
        std::filesystem::path path = session.ProgramFolder / name;
        EXPECT_TRUE(replaceFile(path, content).ok());
        return path;
    }
    /// A file of the first `count` easy puzzles.
    std::filesystem::path fileOfPuzzles(const std::string& name, std::size_t count) const {
        std::string content;
        for (std::size_t i = 0; i < count; ++i)
            content += records[i] + "\r\n";
        return fileOf(name, content);
    }
    /// What is seen now, as in "2/3 a.txt: the message|a new box [its style]". Paths begin in the
    /// program folder.
    std::string seen() {
        const auto& [path, number, count, record] = display.puzzle;
        std::string text = std::to_string(number) + "/" + std::to_string(count) + " " +
                           path.native() + ": " + display.message + prompts.told();
        const std::string home = session.ProgramFolder;
        for (std::size_t at = 0; (at = text.find(home)) != std::string::npos;)
            text.erase(at, home.size());
        return text;
    }

    const std::vector<std::string> records = sampleRecords("easy.txt");
    TemporaryFolder folder;
    Session session;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    /// What the player chooses in a file dialog, empty for nothing, and what was asked.
    std::filesystem::path chosen;
    std::vector<std::string> asked;

    PlayCommands play{session.game, session.appearance, display, prompts};
    BoardInput input{session.game, session.busy, play, display};
    PlayKeeping keeping{session, display, prompts};
    PuzzleFileCommands files{
        session, keeping, input, display, prompts, [this](FileUse use, std::string_view title) {
            asked.push_back((use == FileUse::Save ? "SAVE: " : "OPEN: ") + std::string(title));
            return chosen;
        }};
};

} // namespace tessaly
