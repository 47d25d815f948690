#include "ui/window/main_window.h"

#include "core/base/data_files.h"
#include "core/options/scheme_library.h"
#include "core/session/session.h"
#include "core/session/session_memory.h"
#include "ui/controls/box_control.h"
#include "ui/controls/file_name_picker.h"
#include "ui/controls/scheme_palette.h"
#include "ui/help/about_box.h"
#include "ui/help/help_window.h"
#include "ui/options/options_dialog.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"
#include "ui/play/play_area.h"
#include "ui/window/command_connections.h"
#include "ui/window/developer_row.h"
#include "ui/window/file_drop.h"
#include "ui/window/shortcuts.h"
#include "ui/window/status_line.h"
#include "ui/window/tool_row.h"
#include "ui/window/window_place.h"

#include <QApplication>
#include <QVBoxLayout>

namespace tessaly {
namespace {

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
            [this](const QString& path) { m_commands.library.load(path.toStdString()); });
    connect(drop, &FileDrop::refused, this, [this](const QString& reason) {
        m_prompts.message(reason.toStdString(), "vbok+vbcritical");
    });
}

void Form1::connectHelp() {
    connect(m_menu.mnuhelp, &QAction::triggered, this, [this] {
        m_help->setTag(m_session.ProgramFolder + HelpPageFile);
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
