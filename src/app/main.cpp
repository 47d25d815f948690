#include "core/base/command_line.h"
#include "core/base/product.h"
#include "core/files/file_access.h"
#include "core/session/game_options.h"
#include "core/session/start_up.h"
#include "ui/controls/file_name_picker.h"
#include "ui/controls/icon_set.h"
#include "ui/controls/message_box.h"
#include "ui/drawing/picture_document.h"
#include "ui/drawing/qt_values.h"
#include "ui/output/printers.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QTimer>

#include <filesystem>
#include <iostream>

namespace {

using namespace tessaly;

/// Says on standard error what a message box would say, and waits for nobody.
class PrintedPrompts : public Prompts {
public:
    int message(std::string_view text, std::string_view) override {
        std::string line(text);
        std::erase(line, '\r');
        sayProblem(std::cerr, "tessaly", line);
        m_saidAnything = true;
        return 0;
    }
    std::string ask(std::string_view) override { return {}; }
    bool saidAnything() const { return m_saidAnything; }

private:
    bool m_saidAnything = false;
};

/// Writes the picture of a window to a PNG file.
Outcome writeScreenshot(QWidget& window, const std::filesystem::path& path) {
    QApplication::processEvents();
    return writePicture(path, window.grab().toImage(), PictureFormat::Png);
}

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// A picture is made without a display, so that it is the same on every machine.
bool choosePlatform(const GameOptions& options) {
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    if (!options.screenshot.empty())
        return qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!hasDisplay())
        std::cerr << "tessaly: there is no display to open a window on\n";
    return hasDisplay();
}

void openPuzzle(const GameOptions& options, const LastPuzzle& last, PuzzleFileCommands& files) {
    if (options.file.empty()) {
        files.reopen(last.path, options.puzzle > 0 ? options.puzzle : last.number);
        return;
    }
    files.reopen({}, 1);
    std::error_code noFolder;
    const std::filesystem::path file = std::filesystem::absolute(options.file, noFolder);
    files.load(noFolder ? options.file : file);
    if (options.puzzle > 1)
        files.goTo(options.puzzle);
}

int run(const GameOptions& options) {
    Session session;
    MsgForm messageBox(session.appearance);
    PrintedPrompts printed;
    const bool toPicture = !options.screenshot.empty();
    Prompts& prompts = toPicture ? static_cast<Prompts&>(printed) : messageBox;

    session.developer = options.developer;
    auto sources = ProgramFolderSources::ofThisProcess();
    sources.given = options.folder;
    const LoadedSession loaded =
        startSession(session, sources, schemeLikeDesktop(QApplication::palette()), prompts);
    if (!loaded.outcome.ok())
        return EXIT_FAILURE;
    const Outcome book = options.noBook ? Outcome::done() : openPlayBook(session);
    SystemPrinters printers;
    Form1 window(session, prompts, askPlatform, printers);
    if (!toPicture)
        window.show();
    for (const std::string& notice : {loaded.notice, book.problem})
        if (!notice.empty())
            prompts.message(notice, style::Critical);
    const auto open = [&] { openPuzzle(options, session.last, window.files()); };
    if (!toPicture) {
        // Within the event loop, which ends when the window is closed while a large file is read.
        QTimer::singleShot(0, &window, open);
        return QApplication::exec();
    }
    open();
    const Outcome written = writeScreenshot(window, options.screenshot);
    if (!written.ok())
        prompts.message(written.problem, style::Critical);
    return printed.saidAnything() ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    const GameCommandLine line = parseGameOptions(argc, argv, std::cout, std::cerr);
    if (line.exitStatus)
        return *line.exitStatus;
    if (!choosePlatform(line.options))
        return EXIT_FAILURE;
    surviveFileSizeLimit();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QString::fromLatin1(Product::Name));
    QApplication::setApplicationVersion(QString::fromLatin1(Product::Version));
    QApplication::setDesktopFileName(QString::fromLatin1(Product::DesktopName));
    QApplication::setWindowIcon(productIcon());
    return run(line.options);
}
