#include "ui/window/command_connections.h"

#include "core/session/session.h"
#include "ui/controls/box_control.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"
#include "ui/window/developer_row.h"
#include "ui/window/main_menu.h"
#include "ui/window/status_line.h"
#include "ui/window/tool_row.h"
#include "ui/window/window_commands.h"

namespace tessaly {
namespace {

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

} // namespace

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

} // namespace tessaly
