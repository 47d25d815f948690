#include "ui/window/main_window.h"

#include "core/base/data_files.h"
#include "core/files/file_access.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/session/session.h"
#include "ui/controls/box_control.h"
#include "ui/controls/file_name_picker.h"
#include "ui/drawing/qt_values.h"
#include "ui/help/about_box.h"
#include "ui/help/help_window.h"
#include "ui/options/options_dialog.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"
#include "ui/window/developer_row.h"
#include "ui/window/file_drop.h"
#include "ui/window/shortcuts.h"
#include "ui/window/status_line.h"
#include "ui/window/tool_row.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

#include <string>

class QWidget;

namespace tessaly {
namespace {

/// Where a window stood on the screen and how large it was, in the file "window.cfg" of the
/// program's folder. Nobody is told when it cannot be written or read: the window then opens where
/// the desktop puts it, in its own size, and never outside the screens that there are.
void rememberWindowPlace(const QWidget& window, const std::filesystem::path& programFolder);
void restoreWindowPlace(QWidget& window, const std::filesystem::path& programFolder);

constexpr std::size_t LargestFile = 4096;

void rememberWindowPlace(const QWidget& window, const std::filesystem::path& programFolder) {
    const std::string content = window.saveGeometry().toBase64().toStdString() + "\r\n";
    static_cast<void>(replaceFile(programFolder / WindowPlaceFile, content));
}

void restoreWindowPlace(QWidget& window, const std::filesystem::path& programFolder) {
    std::string content;
    if (!readSmallFile(programFolder / WindowPlaceFile, LargestFile, content).ok())
        return;
    const auto place = QByteArray::fromBase64(QByteArray::fromStdString(content));
    // Qt takes a place that was cut short for a window of no size.
    if (place.size() == window.saveGeometry().size())
        window.restoreGeometry(place);
}

// Which control of the main window gives which command, region by region. What is handed over must
// live as long as the controls can be used.

void connectMenu(const MainMenu& menu, WindowCommands& commands);
void connectTools(ToolRow& tools, WindowCommands& commands, BoardView& board);
void connectPalette(PalettePanel& palette, WindowCommands& commands);
void connectStatusLine(const StatusLine& status, WindowCommands& commands);
void connectDeveloperRow(const DeveloperRow& row, WindowCommands& commands, const Session& session);
/// The menu and the tools make a puzzle alike; the developer's row tells how it came out.
void connectCreation(const MainMenu& menu, const ToolRow& tools, DeveloperRow& developerRow,
                     WindowCommands& commands, const Session& session);

template <class Command>
void onChoice(QAction* item, Command command) {
    QObject::connect(item, &QAction::triggered, item, command);
}

template <class Command>
void onClick(BoxControl* button, Command command) {
    QObject::connect(button, &BoxControl::clicked, button, command);
}

template <class Command>
void onAlternateClick(BoxControl* button, Command command) {
    QObject::connect(button, &BoxControl::alternateClicked, button, command);
}

void connectFileItems(const MainMenu& menu, WindowCommands& commands) {
    onChoice(menu.mnuload, [&] { commands.library.mnuload(); });
    onChoice(menu.mnusavex, [&] {
        commands.input.Celltags_MouseUp();
        commands.library.mnusavex();
    });
    onChoice(menu.mnusaveto, [&] {
        commands.input.Celltags_MouseUp();
        commands.library.mnusaveto();
    });
    onChoice(menu.mnudelete, [&] { commands.library.mnudelete(); });
    for (int item = 0; item < MainMenu::RecentFileCount; ++item)
        onChoice(menu.oldfiles[static_cast<std::size_t>(item)],
                 [&commands, item] { commands.library.oldfiles_Click(item); });
}

void connectOutputItems(const MainMenu& menu, WindowCommands& commands) {
    onChoice(menu.mnuclippuz, [&] { commands.pictures.CopyBoard(false); });
    onChoice(menu.mnuclipsol, [&] { commands.pictures.CopyBoard(true); });
    onChoice(menu.mnucapwin, [&] { commands.pictures.mnucapwin(); });
    onChoice(menu.printPuzzle, [&] { commands.print.printShown(true, false); });
    onChoice(menu.printSolution, [&] { commands.print.printShown(false, true); });
    onChoice(menu.printBoth, [&] { commands.print.printShown(true, true); });
    onChoice(menu.printMultiple, [&] { commands.print.printMultiple(); });
}

void connectMenu(const MainMenu& menu, WindowCommands& commands) {
    connectFileItems(menu, commands);
    connectOutputItems(menu, commands);
}

void connectTools(ToolRow& tools, WindowCommands& commands, BoardView& board) {
    onClick(tools.cmdload, [&] { commands.library.mnuload(); });
    for (int item : {0, 1})
        onClick(tools.cmdarrow[static_cast<std::size_t>(item)],
                [&commands, item] { commands.library.cmdarrow(item); });
    QObject::connect(&tools, &ToolRow::numberEntered, &tools, [&](int number) {
        commands.library.goTo(number);
        board.setFocus();
    });
    onClick(tools.DifLab, [&] { commands.creation.DifLab(); });
    onClick(tools.cmdundo, [&] { commands.play.cmdundo(); });
    onClick(tools.cmdreset, [&] { commands.play.cmdreset(); });
    QObject::connect(tools.cmdshowsol, &BoxControl::pressed, &tools,
                     [&] { commands.play.cmdshowsolPressed(); });
    QObject::connect(tools.cmdshowsol, &BoxControl::released, &tools,
                     [&] { commands.play.cmdshowsolReleased(); });
}

void connectPalette(PalettePanel& palette, WindowCommands& commands) {
    QObject::connect(
        &palette, &PalettePanel::itemReleased, &palette,
        [&](int item, PointerButton button) { commands.input.digt_MouseUp(item, button); });
    onClick(palette.cmdallpencil, [&] { commands.play.cmdallpencil(); });
    onAlternateClick(palette.cmdallpencil, [&] { commands.play.cmdallpencilClear(); });
    onClick(palette.cmdsetpairs, [&] { commands.play.cmdsetpairs(); });
    onClick(palette.cmdset1s, [&] { commands.play.cmdset1s(); });
}

void connectStatusLine(const StatusLine& status, WindowCommands& commands) {
    onClick(status.StatLab, [&] { commands.play.StatLab(); });
}

void connectDeveloperRow(const DeveloperRow& row, WindowCommands& commands,
                         const Session& session) {
    onClick(row.debugSolve, [&] { commands.developer.solveInSteps(row.debugs()); });
    onClick(row.xcellRule, [&] { commands.developer.applyXcellRule(); });
    onClick(row.autoSolveHard, [&] { commands.developer.autoSolveHard(false); });
    onAlternateClick(row.autoSolveHard, [&] { commands.developer.autoSolveHard(true); });
    onClick(row.solveLoop, [&] { commands.developer.checkCells(); });
    onClick(row.setValue, [&] { commands.developer.setManualValue(); });
    onClick(row.reread, [&] { commands.library.goTo(session.puzzle.PuzNum); });
    onClick(row.flipAndAdd, [&] { commands.maintenance.FlipandAdd(); });
    onClick(row.verify, [&] { commands.maintenance.Verify(); });
    onClick(row.randomize, [&] { commands.maintenance.Randomize(); });
}

void connectCreation(const MainMenu& menu, const ToolRow& tools, DeveloperRow& developerRow,
                     WindowCommands& commands, const Session& session) {
    const auto createOne = [&] {
        commands.input.Celltags_MouseUp();
        commands.creation.cmdcreate();
        developerRow.showText(QString::fromStdString(developerText(session.game.board)));
    };
    onClick(tools.cmdcreate, createOne);
    onChoice(menu.createSingle, createOne);
    onChoice(menu.createMultiple, [&] { commands.multipleCreation.run(); });
}

using namespace Qt::StringLiterals;

constexpr int Margin = 12;
constexpr int Spacing = 12;
constexpr QSize FirstSize(690, 690);

} // namespace

Form1::Form1(Session& session, Prompts& prompts, FileDialogs& fileDialogs, Printers& printers)
    : m_session(session)
    , m_prompts(prompts)
    , m_worn(session.appearance)
    , m_menu(*menuBar())
    , m_tools(new ToolRow)
    , m_board(new BoardView(session.game.board, m_worn))
    , m_palette(new PalettePanel(m_worn))
    , m_status(new StatusLine)
    , m_developerRow(new DeveloperRow)
    , m_picker(new FNDialog(fileDialogs, prompts, this))
    , m_options(new Form2x(session.appearance, session.ProgramFolder, prompts, this))
    , m_help(new Form4(session.appearance, this))
    , m_about(new AboutForm(session.appearance, this))
    , m_display(session, {m_menu, *m_tools, *m_board, *m_palette, *m_status})
    , m_commands(session, {this, m_display, prompts, fileDialogs, *m_picker, printers}) {
    setObjectName(u"Form1"_s);
    setWindowTitle(u"Tessaly"_s);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_picker->setObjectName(u"gf1"_s);
    m_picker->hide();
    setCentralWidget(arrangeRegions());
    connectCommands();
    connectOptions();
    connectFileDrop();
    giveShortcuts(*this);
    connectHelp();
    applyAppearance();
    resize(FirstSize);
    restoreWindowPlace(*this, session.ProgramFolder);
}

QWidget* Form1::arrangeRegions() {
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    rows->addWidget(m_tools);
    rows->addWidget(m_developerRow);
    m_developerRow->setVisible(m_session.developer);
    rows->addWidget(new PlayArea(m_board, m_palette), 1);
    rows->addWidget(m_status);
    return centre;
}

void Form1::applyAppearance() {
    m_worn = m_session.appearance;
    setPalette(schemePalette(m_worn));
    SetMenuColour();
    m_palette->applyAppearance();
    m_board->applyAppearance();
}

void Form1::SetMenuColour() {
    menuBar()->setStyleSheet(menuStyleSheet(m_worn));
}

void Form1::connectCommands() {
    m_board->setInput(m_commands.input);
    connectMenu(m_menu, m_commands);
    connectTools(*m_tools, m_commands, *m_board);
    connectPalette(*m_palette, m_commands);
    connectStatusLine(*m_status, m_commands);
    connectDeveloperRow(*m_developerRow, m_commands, m_session);
    connectCreation(m_menu, *m_tools, *m_developerRow, m_commands, m_session);
    connect(m_menu.cmdexit, &QAction::triggered, this, &Form1::cmdexit);
}

void Form1::closeEvent(QCloseEvent* event) {
    m_commands.stop();
    rememberWindowPlace(*this, m_session.ProgramFolder);
    QMainWindow::closeEvent(event);
}

void Form1::connectOptions() {
    auto* redraw = new BoxControl(this);
    redraw->setObjectName(u"Command2x"_s);
    redraw->hide();
    connect(redraw, &BoxControl::clicked, this, &Form1::ApplyScheme);
    connect(m_options, &Form2x::applied, redraw, &BoxControl::click);
    connect(m_menu.mnuopts, &QAction::triggered, this, [this] {
        if (!m_session.busy.refuses(m_prompts))
            m_options->showOptions();
    });
}

void Form1::connectFileDrop() {
    auto* drop = new FileDrop(*this);
    connect(drop, &FileDrop::dropped, this,
            [this](const QString& path) { m_commands.library.load(pathOf(path)); });
    connect(drop, &FileDrop::refused, this, [this](const QString& reason) {
        m_prompts.message(reason.toStdString(), "vbok+vbcritical");
    });
}

void Form1::connectHelp() {
    connect(m_menu.mnuhelp, &QAction::triggered, this, [this] {
        m_help->setTag(m_session.ProgramFolder / HelpPageFile);
        m_help->show();
    });
    connect(m_menu.mnuabout, &QAction::triggered, m_about, &QDialog::show);
}

void Form1::ApplyScheme() {
    const std::string scheme = m_session.appearance.ActiveScheme;
    const Outcome loaded =
        SchemeLibrary(m_session.ProgramFolder).LoadScheme(scheme, m_session.appearance);
    applyAppearance();
    m_options->showSchemeInForce();
    if (!loaded.ok())
        m_prompts.message(loaded.problem, "vbok+vbcritical");
}

void Form1::cmdexit() {
    if (m_prompts.message("Exit?", "vbYesNo+vbquestion") != answer::Yes)
        return;
    SavecfgFile(m_session);
    QApplication::closeAllWindows();
    QApplication::quit();
}

} // namespace tessaly
