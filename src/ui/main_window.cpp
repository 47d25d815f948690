// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/main_window.h"

#include "board/data_files.h"
#include "board/session.h"
#include "board/session_memory.h"
#include "options/options_dialog.h"
#include "options/scheme_library.h"
#include "play/board_view.h"
#include "play/palette_panel.h"
#include "play/play_area.h"
#include "solver/developer_row.h"
#include "ui/about_box.h"
#include "ui/box_control.h"
#include "ui/file_drop.h"
#include "ui/file_name_picker.h"
#include "ui/help_window.h"
#include "ui/scheme_palette.h"
#include "ui/shortcuts.h"
#include "ui/status_line.h"
#include "ui/tool_row.h"
#include "ui/window_place.h"

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
    , m_puzzleFiles(*m_picker, session.ProgramFolder)
    , m_display(session, {m_menu, *m_tools, *m_board, *m_palette, *m_status})
    , m_play(session.game, session.busy, session.appearance, m_display, prompts)
    , m_input(session.game, session.busy, m_play, m_display, m_display, prompts)
    , m_library(session, m_display, m_display, prompts, m_puzzleFiles)
    , m_creation(session, m_library, m_display, m_display, prompts, Chance(Chance::freshSeed()))
    , m_creationDialog(session.appearance, fileDialogs, prompts, session.ProgramFolder, this)
    , m_multipleCreation(session, m_library,
                         {m_display, m_display, m_display, prompts, m_creationDialog},
                         Chance(Chance::freshSeed()))
    , m_developer(session, m_display, prompts)
    , m_maintenance(session, {m_display, m_display, m_display, prompts},
                    Chance(Chance::freshSeed()))
    , m_export(session, {this, m_display, prompts, *m_picker})
    , m_printDialog(session.appearance, printers, fileDialogs, prompts, session.ProgramFolder, this)
    , m_printProgress(session.appearance, this)
    , m_print(session, printers,
              {this, m_display, prompts, *m_picker, m_printDialog, m_printProgress}) {
    setObjectName(u"Form1"_s);
    setWindowTitle(u"Tessaly"_s);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_picker->setObjectName(u"gf1"_s);
    m_picker->hide();
    setCentralWidget(arrangeRegions());
    m_board->setInput(m_input);
    connectMenu();
    connectTools();
    connectPalette();
    connectStatusLine();
    connectCreation();
    connectDeveloperRow();
    connectOptions();
    connectFileDrop();
    giveShortcuts(*this);
    connectHelp();
    connectOutput();
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

void Form1::connectMenu() {
    connect(m_menu.mnuload, &QAction::triggered, this, [this] { m_library.mnuload(); });
    connect(m_menu.mnusavex, &QAction::triggered, this, [this] {
        m_input.Celltags_MouseUp();
        m_library.mnusavex();
    });
    connect(m_menu.mnusaveto, &QAction::triggered, this, [this] {
        m_input.Celltags_MouseUp();
        m_library.mnusaveto();
    });
    connect(m_menu.mnudelete, &QAction::triggered, this, [this] { m_library.mnudelete(); });
    connect(m_menu.cmdexit, &QAction::triggered, this, &Form1::cmdexit);
    for (int item = 0; item < MainMenu::RecentFileCount; ++item)
        connect(m_menu.oldfiles[static_cast<std::size_t>(item)], &QAction::triggered, this,
                [this, item] { m_library.oldfiles_Click(item); });
}

void Form1::connectTools() {
    connect(m_tools->cmdload, &BoxControl::clicked, this, [this] { m_library.mnuload(); });
    for (int item : {0, 1})
        connect(m_tools->cmdarrow[static_cast<std::size_t>(item)], &BoxControl::clicked, this,
                [this, item] { m_library.cmdarrow(item); });
    connect(m_tools, &ToolRow::numberEntered, this, [this](int number) {
        m_library.goTo(number);
        m_board->setFocus();
    });
    connect(m_tools->cmdundo, &BoxControl::clicked, this, [this] { m_play.cmdundo(); });
    connect(m_tools->cmdreset, &BoxControl::clicked, this, [this] { m_play.cmdreset(); });
    connect(m_tools->cmdshowsol, &BoxControl::pressed, this,
            [this] { m_play.cmdshowsolPressed(); });
    connect(m_tools->cmdshowsol, &BoxControl::released, this,
            [this] { m_play.cmdshowsolReleased(); });
}

void Form1::connectPalette() {
    connect(m_palette, &PalettePanel::itemReleased, this,
            [this](int item, PointerButton button) { m_input.digt_MouseUp(item, button); });
    connect(m_palette->cmdallpencil, &BoxControl::clicked, this, [this] { m_play.cmdallpencil(); });
    connect(m_palette->cmdallpencil, &BoxControl::alternateClicked, this,
            [this] { m_play.cmdallpencilClear(); });
    connect(m_palette->cmdsetpairs, &BoxControl::clicked, this, [this] { m_play.cmdsetpairs(); });
    connect(m_palette->cmdset1s, &BoxControl::clicked, this, [this] { m_play.cmdset1s(); });
}

void Form1::connectStatusLine() {
    connect(m_status->StatLab, &BoxControl::clicked, this, [this] { m_play.StatLab(); });
}

void Form1::connectCreation() {
    const auto createOne = [this] {
        m_input.Celltags_MouseUp();
        m_creation.cmdcreate();
        m_developerRow->showText(QString::fromStdString(developerText(m_session.game.board)));
    };
    connect(m_tools->DifLab, &BoxControl::clicked, this, [this] { m_creation.DifLab(); });
    connect(m_tools->cmdcreate, &BoxControl::clicked, this, createOne);
    connect(m_menu.createSingle, &QAction::triggered, this, createOne);
    connect(m_menu.createMultiple, &QAction::triggered, this, [this] { m_multipleCreation.run(); });
}

void Form1::connectDeveloperRow() {
    connect(m_developerRow->debugSolve, &BoxControl::clicked, this,
            [this] { m_developer.solveInSteps(m_developerRow->debugs()); });
    connect(m_developerRow->xcellRule, &BoxControl::clicked, this,
            [this] { m_developer.applyXcellRule(); });
    connect(m_developerRow->autoSolveHard, &BoxControl::clicked, this,
            [this] { m_developer.autoSolveHard(false); });
    connect(m_developerRow->autoSolveHard, &BoxControl::alternateClicked, this,
            [this] { m_developer.autoSolveHard(true); });
    connect(m_developerRow->solveLoop, &BoxControl::clicked, this,
            [this] { m_developer.checkCells(); });
    connect(m_developerRow->setValue, &BoxControl::clicked, this,
            [this] { m_developer.setManualValue(); });
    connect(m_developerRow->reread, &BoxControl::clicked, this,
            [this] { m_library.goTo(m_session.puzzle.PuzNum); });
    connect(m_developerRow->flipAndAdd, &BoxControl::clicked, this,
            [this] { m_maintenance.FlipandAdd(); });
    connect(m_developerRow->verify, &BoxControl::clicked, this, [this] { m_maintenance.Verify(); });
    connect(m_developerRow->randomize, &BoxControl::clicked, this,
            [this] { m_maintenance.Randomize(); });
}

void Form1::closeEvent(QCloseEvent* event) {
    m_multipleCreation.stop();
    m_maintenance.stop();
    m_print.stop();
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
            [this](const QString& path) { m_library.load(path.toStdString()); });
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

void Form1::connectOutput() {
    connect(m_menu.mnuclippuz, &QAction::triggered, this, [this] { m_export.CopyBoard(false); });
    connect(m_menu.mnuclipsol, &QAction::triggered, this, [this] { m_export.CopyBoard(true); });
    connect(m_menu.mnucapwin, &QAction::triggered, this, [this] { m_export.mnucapwin(); });
    connect(m_menu.printPuzzle, &QAction::triggered, this,
            [this] { m_print.printShown(true, false); });
    connect(m_menu.printSolution, &QAction::triggered, this,
            [this] { m_print.printShown(false, true); });
    connect(m_menu.printBoth, &QAction::triggered, this,
            [this] { m_print.printShown(true, true); });
    connect(m_menu.printMultiple, &QAction::triggered, this, [this] { m_print.printMultiple(); });
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
