#pragma once

#include "core/session/configuration.h"
#include "support/scripted_file_dialogs.h"
#include "support/scripted_printers.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "ui/play/board_view.h"
#include "ui/window/main_window.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <filesystem>
#include <memory>

namespace tessaly {

/// A program folder of its own with the data files in it.
class DataFolder {
public:
    DataFolder() {
        for (const char* name : {"all.col", "hexabinx.txt"})
            std::filesystem::copy_file(std::filesystem::path(TESSALY_DATA) / name, path() + name);
    }
    std::string path() const { return m_folder.path().string() + "/"; }

    /// A copy of one of the sample puzzle files.
    std::string puzzles(const std::string& name) const {
        std::string copy = path() + name;
        std::filesystem::copy_file(std::filesystem::path(TESSALY_TEST_DATA) / "puzzles" / name,
                                   copy);
        return copy;
    }

private:
    test::TemporaryFolder m_folder;
};

/// The main window as a test uses it: shown offscreen, its questions answered by the test.
class GameWindow {
public:
    explicit GameWindow(Prompts* otherPrompts = nullptr, Printers* otherPrinters = nullptr)
        : m_prompts(otherPrompts != nullptr ? *otherPrompts : prompts)
        , m_printers(otherPrinters != nullptr ? *otherPrinters : printers) {
        open();
        window->files().reopen({}, 1);
    }

    /// Starts the game anew in the same folder, as if the process had ended.
    void restart() {
        window.reset();
        session = Session();
        open();
        window->files().reopen(session.last.path, session.last.number);
    }

    /// Finds a control by its name.
    template <class Widget = QWidget>
    Widget& find(const QString& name) {
        auto* found = window->findChild<Widget*>(name);
        if (found == nullptr)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }

    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&find(name), button);
    }
    void choose(const QString& item) { find<QAction>(item).trigger(); }
    /// Loads a copy of one of the sample puzzle files; its path.
    std::string load(const std::string& name, int number = 1) {
        std::string path = folder.puzzles(name);
        window->files().load(path, number);
        return path;
    }

    QString text(const QString& label) { return find<QLabel>(label).text(); }
    QString message() { return text(QStringLiteral("MsgLab")); }
    /// What the box of the puzzle's number shows.
    QString number() { return find<QLineEdit>(QStringLiteral("PuzNumNow")).text(); }
    const ScriptedPrompts::Message& lastPrompt() { return prompts.shown.back(); }
    BoardView& board() { return find<BoardView>(QStringLiteral("Picture2")); }

    /// Where a cell lies on the board's widget.
    QPoint pointOf(CellId cell) {
        const Point centre = numberCentre(cell);
        return board().boardToWidget().map(QPointF(centre.x, centre.y)).toPoint();
    }

    void pointAt(CellId cell) {
        // A move is an event only when the pointer was elsewhere before.
        QTest::mouseMove(&board(), QPoint(1, 1));
        QTest::mouseMove(&board(), pointOf(cell));
    }

    DataFolder folder;
    Session session;
    ScriptedPrompts prompts;
    ScriptedFileDialogs fileDialogs;
    ScriptedPrinters printers;
    std::unique_ptr<Form1> window;

private:
    void open() {
        session.ProgramFolder = folder.path();
        const LoadedSession loaded = loadSession(session);
        EXPECT_TRUE(loaded.outcome.ok()) << loaded.outcome.problem;
        window = std::make_unique<Form1>(session, m_prompts, fileDialogs.dialog(), m_printers);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    Prompts& m_prompts;
    Printers& m_printers;
};

} // namespace tessaly
