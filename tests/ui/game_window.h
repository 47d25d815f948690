#pragma once

#include "core/session/configuration.h"
#include "core/session/start_up.h"
#include "support/core_fakes.h"
#include "support/temporary_folder.h"
#include "support/window_fakes.h"
#include "ui/controls/box_control.h"
#include "ui/drawing/qt_values.h"
#include "ui/play/board_view.h"
#include "ui/window/main_window.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace tessaly {

using namespace Qt::StringLiterals;

/// A program folder of its own with the data files in it.
class DataFolder {
public:
    DataFolder() {
        for (const char* name : {"all.col", "hexabinx.txt"})
            std::filesystem::copy_file(TESSALY_DATA "/" + std::string(name), path() + name);
    }
    std::string path() const { return m_folder.path().string() + "/"; }

    /// A copy of one of the sample puzzle files.
    std::string puzzles(const std::string& name, const std::string& copyName = {}) const {
        std::string copy = path() + (copyName.empty() ? name : copyName);
        std::filesystem::copy_file(TESSALY_TEST_DATA "/puzzles/" + name, copy);
        return copy;
    }

private:
    TemporaryFolder m_folder;
};

/// Finds a control by its name.
template <class Widget = QWidget>
Widget& find(const QObject& in, const QString& name) {
    auto* found = in.findChild<Widget*>(name);
    if (found == nullptr)
        throw std::runtime_error("no such control: " + name.toStdString());
    return *found;
}

inline Colour groundOf(const QWidget& widget) {
    return toColour(widget.palette().window().color());
}

/// Does `what` in the dialog that waits for the user next, and closes it if it then still waits.
inline void inNextDialog(std::function<void(QDialog&)> what) {
    QTimer::singleShot(0, qApp, [what = std::move(what)] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog != nullptr && QTest::qWaitForWindowActive(dialog));
        what(*dialog);
        if (dialog->isVisible())
            dialog->close();
    });
}

/// The main window as a test uses it: shown offscreen, its questions answered by the test.
class GameWindow {
public:
    /// Opens it with a copy of one of the sample puzzle files, if one is named.
    explicit GameWindow(const std::string& puzzles = {}, int number = 1,
                        Printers* otherPrinters = nullptr, bool developer = false)
        : m_printers(otherPrinters != nullptr ? *otherPrinters : printers) {
        session.developer = developer;
        open();
        window->files().reopen({}, 1);
        if (!puzzles.empty())
            load(puzzles, number);
    }

    /// Starts the game anew in the same folder, as if the process had ended.
    void restart() {
        window.reset();
        session = Session();
        open();
        window->files().reopen(session.last.path, session.last.number);
    }

    template <class Widget = QWidget>
    Widget& find(const QString& name) {
        return tessaly::find<Widget>(*window, name);
    }
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&find(name), button);
    }
    void choose(const QString& item) { find<QAction>(item).trigger(); }
    /// Presses keys on whatever has the focus.
    void press(QKeyCombination keys) {
        QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
    }
    void resize(QSize size) {
        window->resize(size);
        QApplication::processEvents();
    }
    /// Loads a copy of one of the sample puzzle files; its path.
    std::string load(const std::string& name, int number = 1) {
        std::string path = folder.puzzles(name);
        window->files().load(path, number);
        return path;
    }

    QString text(const QString& label) { return find<QLabel>(label).text(); }
    QString message() { return text(u"MsgLab"_s); }
    /// What the box of the puzzle's number shows.
    QString number() { return find<QLineEdit>(u"PuzNumNow"_s).text(); }
    ScriptedPrompts::Message lastPrompt() {
        return prompts.shown.empty() ? ScriptedPrompts::Message() : prompts.shown.back();
    }
    BoardView& board() { return find<BoardView>(u"Picture2"_s); }
    QImage picture() { return board().grab().toImage(); }
    CellId selection() { return board().input().selection(); }

    /// Where a cell lies on the board's widget.
    QPoint pointOf(CellId cell) {
        return board().boardToWidget().map(toQt(numberCentre(cell))).toPoint();
    }
    void pointAt(CellId cell) {
        // A move is an event only when the pointer was elsewhere before.
        QTest::mouseMove(&board(), QPoint(1, 1));
        QTest::mouseMove(&board(), pointOf(cell));
    }

    /// Whether the next start opens the play book.
    bool hasBook = false;

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
        const Outcome book = hasBook ? openPlayBook(session) : Outcome::done();
        EXPECT_EQ(book.problem, "");
        window = std::make_unique<Form1>(session, prompts, fileDialogs.dialog(), m_printers);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    Printers& m_printers;
};

} // namespace tessaly
