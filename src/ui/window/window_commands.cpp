#include "ui/window/window_commands.h"

#include "core/session/session.h"
#include "ui/controls/box_control.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"
#include "ui/play/side_panel.h"
#include "ui/window/developer_row.h"
#include "ui/window/main_menu.h"
#include "ui/window/tool_row.h"

#include <QDate>

namespace tessaly {
namespace {

/// A command as a control starts it: only when nothing refuses it.
template <class Command>
auto guarded(WindowCommands& commands, Command command,
             std::string_view refusal = BusyState::Refusal) {
    return [&commands, command, refusal] {
        if (!commands.refuses(refusal))
            command();
    };
}

/// The day that the desktop's calendar shows.
std::chrono::year_month_day today() {
    const auto days = QDate(1970, 1, 1).daysTo(QDate::currentDate());
    return std::chrono::sys_days(std::chrono::days(days));
}

} // namespace

WindowCommands::WindowCommands(Session& session, const CommandWindow& window)
    : play(session.game, window.worn, window.display, window.prompts)
    , input(session.game, session.busy, play, window.display)
    , keeping(session, window.display, window.prompts)
    , files(session, keeping, input, window.display, window.prompts,
            [&session, &picker = window.picker](FileUse use, std::string_view title) {
                return choosePuzzleFile(picker, session.puzzleFolder(), use, title);
            })
    , m_session(session)
    , m_display(window.display)
    , m_prompts(window.prompts)
    , m_creationDialog(session.appearance, window.fileDialog, window.prompts, session.ProgramFolder,
                       window.widget)
    , m_printDialog(session.appearance, window.printers, window.fileDialog, window.prompts,
                    session.ProgramFolder, window.widget)
    , m_printProgress(session.appearance, window.widget)
    , m_toldOfMarks(session, "toldOfMarks")
    , m_playBook(session, keeping, files, window.display, window.prompts)
    , m_creation(session, files, window.display, Chance(Chance::freshSeed()))
    , m_multipleCreation(session, files, window.display, window.prompts, m_creationDialog,
                         Chance(Chance::freshSeed()))
    , m_developer(session, window.display, window.prompts)
    , m_maintenance(session, window.display, window.prompts, Chance(Chance::freshSeed()))
    , m_pictures(session, {window.widget, window.display, window.prompts, window.picker})
    , m_print(session, window.printers,
              {window.widget, window.display, window.prompts, m_printDialog, m_printProgress, files,
               m_multipleCreation}) {}

bool WindowCommands::refuses(std::string_view refusal) {
    if (!m_session.busy.refuses(m_prompts, refusal))
        return false;
    if (m_session.busy.creating)
        m_display.yield();
    return true;
}

void WindowCommands::stop() {
    m_multipleCreation.stop();
    m_maintenance.stop();
    m_print.stop();
}

template <class Command>
void WindowCommands::onChoice(QAction* item, Command command, std::string_view refusal) {
    QObject::connect(item, &QAction::triggered, item, guarded(*this, command, refusal));
}

void WindowCommands::remember(QAction* item, const std::string& setting) {
    if (!m_session.book)
        return;
    if (const std::string kept = m_session.book->setting(setting); !kept.empty())
        item->setChecked(kept == "on");
    QObject::connect(item, &QAction::toggled, item, [this, setting](bool on) {
        keeping.tell(m_session.book->set(setting, on ? "on" : "off"));
    });
}

void WindowCommands::connectSwitch(QAction& item, const PlaySwitch& which, BoardView& board) {
    bool& value = m_session.game.switches.*which.value;
    item.setChecked(value);
    QObject::connect(&item, &QAction::toggled, &board, [&value, &board](bool on) {
        value = on;
        board.applySwitches();
    });
    remember(&item, std::string(which.setting));
}

template <class Command>
void WindowCommands::onClick(BoxControl* button, Command command) {
    QObject::connect(button, &BoxControl::clicked, button, guarded(*this, command));
}

template <class Command>
void WindowCommands::onAlternateClick(BoxControl* button, Command command) {
    QObject::connect(button, &BoxControl::alternateClicked, button, guarded(*this, command));
}

void WindowCommands::connectTo(const WindowRegions& regions) {
    regions.board.setInput(input);
    input.marksTyped = [this] {
        if (m_toldOfMarks.isTold())
            return;
        m_display.showMessage("A second digit makes pencil marks");
        keeping.tell(m_toldOfMarks.remember());
    };
    connectMenu(regions.menu);
    connectTools(regions.tools, regions.board);
    connectPalette(*regions.side.palette);
    connectPlay(regions);
    if (regions.developerRow != nullptr)
        connectDeveloperRow(*regions.developerRow);
    connectCreation(regions.menu, regions.tools, regions.developerRow);
}

void WindowCommands::connectMenu(const MainMenu& menu) {
    onChoice(menu.mnuload, [this] { files.mnuload(); });
    onChoice(menu.mnusavex, [this] { files.mnusavex(); });
    onChoice(menu.mnusaveto, [this] { files.mnusaveto(); });
    onChoice(menu.mnudelete, [this] { files.mnudelete(); });
    for (int item = 0; item < MainMenu::RecentFileCount; ++item)
        onChoice(
            menu.oldfiles[static_cast<std::size_t>(item)],
            [this, item] { files.oldfiles_Click(item); }, "Cancel Puzzle Creation first");
    onChoice(menu.mnuclippuz, [this] { m_pictures.CopyBoard(false); });
    onChoice(menu.mnuclipsol, [this] { m_pictures.CopyBoard(true); });
    onChoice(menu.mnucapwin, [this] { m_pictures.mnucapwin(); });
    onChoice(menu.printPuzzle, [this] { m_print.printShown(true, false); });
    onChoice(menu.printSolution, [this] { m_print.printShown(false, true); });
    onChoice(menu.printBoth, [this] { m_print.printShown(true, true); });
    onChoice(menu.printMultiple, [this] { m_print.printMultiple(); });
}

void WindowCommands::connectTools(ToolRow& tools, BoardView& board) {
    onClick(tools.cmdload, [this] { files.mnuload(); });
    for (int item : {0, 1})
        onClick(tools.cmdarrow[static_cast<std::size_t>(item)],
                [this, item] { files.cmdarrow(item); });
    QObject::connect(&tools, &ToolRow::numberEntered, &tools, [this, &board](int number) {
        if (!refuses())
            files.goTo(number);
        board.setFocus();
    });
    // It touches neither the board nor a file, so it need not wait.
    QObject::connect(tools.DifLab, &BoxControl::clicked, &tools, [this] { m_creation.DifLab(); });
}

void WindowCommands::connectPalette(PalettePanel& palette) {
    QObject::connect(&palette, &PalettePanel::itemReleased, &palette,
                     [this](int item, PointerButton button) {
                         if (!refuses())
                             input.digt_MouseUp(item, button);
                     });
}

/// The menu "Play" and the buttons about the board do the same.
void WindowCommands::connectPlay(const WindowRegions& regions) {
    const MainMenu& menu = regions.menu;
    const SidePanel& side = regions.side;
    const auto onBoth = [this](QAction* item, BoxControl* button, auto command) {
        onChoice(item, command);
        onClick(button, command);
    };
    onBoth(menu.mnuundo, side.cmdundo, [this] { play.cmdundo(); });
    onBoth(menu.mnuredo, side.cmdredo, [this] { play.cmdredo(); });
    onBoth(menu.mnucheck, side.StatLab, [this] { play.StatLab(); });
    onBoth(menu.mnureset, side.cmdreset, [this] { play.cmdreset(); });
    onBoth(menu.mnuallpencil, side.cmdallpencil, [this] { play.cmdallpencil(); });
    onChoice(menu.mnuclearpencil, [this] { play.cmdallpencilClear(); });
    onAlternateClick(side.cmdallpencil, [this] { play.cmdallpencilClear(); });
    onBoth(menu.mnusetpairs, side.cmdsetpairs, [this] { play.cmdsetpairs(); });
    onBoth(menu.mnuset1s, side.cmdset1s, [this] { play.cmdset1s(); });
    QObject::connect(side.cmdshowsol, &BoxControl::pressed, side.cmdshowsol,
                     guarded(*this, [this] { play.cmdshowsolPressed(); }));
    QObject::connect(side.cmdshowsol, &BoxControl::released, side.cmdshowsol,
                     [this] { play.cmdshowsolReleased(); });
    onBoth(menu.mnuhint, side.cmdhint, [this] { play.cmdhint(); });
    QAction* makeMarks = menu.switches.back();
    QObject::connect(makeMarks, &QAction::toggled, side.palette, &PalettePanel::showPencil);
    QObject::connect(side.palette->cmdpencil, &BoxControl::clicked, makeMarks, &QAction::toggle);
    for (std::size_t i = 0; i < AllPlaySwitches.size(); ++i)
        connectSwitch(*menu.switches[i], AllPlaySwitches[i], regions.board);
    const auto nextUnsolved = [this] { m_playBook.mnunextunsolved(); };
    onChoice(menu.mnunextunsolved, nextUnsolved);
    QObject::connect(&regions.board, &BoardView::nextAsked, &regions.board,
                     guarded(*this, nextUnsolved));
    onChoice(menu.mnuforgetpuzzle, [this] { m_playBook.mnuforgetpuzzle(); });
    onChoice(menu.mnuforgetfile, [this] { m_playBook.mnuforgetfile(); });
    remember(menu.mnushowtime, "showTime");
}

void WindowCommands::connectDeveloperRow(const DeveloperRow& row) {
    onClick(row.debugSolve, [this, &row] { m_developer.solveInSteps(row.debugs()); });
    onClick(row.xcellRule, [this] { m_developer.applyXcellRule(); });
    onClick(row.autoSolveHard, [this] { m_developer.autoSolveHard(false); });
    onAlternateClick(row.autoSolveHard, [this] { m_developer.autoSolveHard(true); });
    onClick(row.solveLoop, [this] { m_developer.checkCells(); });
    onClick(row.setValue, [this] { m_developer.setManualValue(); });
    onClick(row.reread, [this] { files.goTo(m_session.puzzle.PuzNum); });
    onClick(row.flipAndAdd, [this] { m_maintenance.FlipandAdd(); });
    onClick(row.verify, [this] { m_maintenance.Verify(); });
    onClick(row.randomize, [this] { m_maintenance.Randomize(); });
}

/// The menu and the tools make a puzzle alike; the developer's row tells how it came out.
void WindowCommands::connectCreation(const MainMenu& menu, const ToolRow& tools,
                                     DeveloperRow* developerRow) {
    const auto createOne = [this, developerRow] {
        m_creation.cmdcreate();
        if (developerRow != nullptr)
            developerRow->showText(QString::fromStdString(developerText(m_session.game.board)));
    };
    onClick(tools.cmdcreate, createOne);
    onChoice(menu.createSingle, createOne);
    onChoice(menu.createMultiple, [this] { m_multipleCreation.run(); });
    onChoice(menu.mnutoday, [this] { m_creation.mnutoday(today()); });
}

} // namespace tessaly
