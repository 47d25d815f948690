#include "ui/window/main_menu.h"

#include "core/play/game.h"
#include "ui/drawing/qt_values.h"

#include <QFontMetrics>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

QMenu* addMenu(auto& parent, const QString& caption, const QString& name) {
    QMenu* menu = parent.addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction* addCommand(QMenu& menu, const QString& caption, const QString& name) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(name);
    return action;
}

/// An item that is on or off.
QAction* addSwitch(QMenu& menu, const QString& caption, const QString& name) {
    QAction* action = addCommand(menu, caption, name);
    action->setCheckable(true);
    return action;
}

/// An item of an array of like items, by its index; separators count.
QAction* addItem(QMenu& menu, const QString& caption, const QString& array, int index) {
    return addCommand(menu, caption, array + u'_' + QString::number(index));
}

/// Ends a submenu; the item only closes it. Both are the next items of `array`, if it is one.
void addCancel(QMenu& menu, const QString& array = {}, int next = 0) {
    QAction* separator = menu.addSeparator();
    QAction* cancel = menu.addAction(u"Cancel"_s);
    if (array.isEmpty())
        return;
    separator->setObjectName(array + u'_' + QString::number(next));
    cancel->setObjectName(array + u'_' + QString::number(next + 1));
}

/// Shows a path on one line, without mnemonics, and cut in the middle when it is very long.
void showPath(QAction& action, const std::filesystem::path& path, const QMenu& menu) {
    constexpr int WidestPath = 640;
    QString text = menu.fontMetrics().elidedText(pathText(path), Qt::ElideMiddle, WidestPath);
    text.replace(u'\n', u' ').replace(u'\t', u' ');
    action.setText(text.replace(u'&', u"&&"_s));
}

} // namespace

MainMenu::MainMenu(QMenuBar& bar) {
    buildFileMenu(*addMenu(bar, u"&File"_s, u"mnumain"_s));
    buildCreateMenu(*addMenu(bar, u"&Create"_s, u"mnupuzzles"_s));
    buildSaveMenu(*addMenu(bar, u"&Save"_s, u"mnusavey"_s));
    buildPrintMenu(*addMenu(bar, u"&Print"_s, u"mnuprintxx"_s));
    buildPlayMenu(*addMenu(bar, u"P&lay"_s, u"mnuplay"_s));
    buildHelpMenu(*addMenu(bar, u"&Help"_s, u"mnuhelps"_s));
    showRecentFiles({});
    showCurrentFile({});
}

void MainMenu::buildFileMenu(QMenu& menu) {
    mnuload = addCommand(menu, u"&Load"_s, u"mnuload"_s);
    mnucopyclip = addMenu(menu, u"&Copy to Clipboard"_s, u"mnucopyclip"_s);
    mnuclippuz = addCommand(*mnucopyclip, u"&Puzzle"_s, u"mnuclippuz"_s);
    mnuclipsol = addCommand(*mnucopyclip, u"&Solution"_s, u"mnuclipsol"_s);
    addCancel(*mnucopyclip);
    menu.addSeparator();
    mnuopts = addCommand(menu, u"&Options"_s, u"mnuopts"_s);
    menu.addSeparator();
    mnuhelp = addCommand(menu, u"&Help"_s, u"mnuhelp"_s);
    mnuabout = addCommand(menu, u"&About"_s, u"mnuabout"_s);
    menu.addSeparator();
    for (int i = 0; i < RecentFileCount; ++i)
        oldfiles[static_cast<std::size_t>(i)] = addItem(menu, u"OldFiles"_s, u"oldfiles"_s, i);
    oldfiles.back() = menu.addSeparator();
    oldfiles.back()->setObjectName(u"oldfiles_5"_s);
    cmdexit = addCommand(menu, u"E&xit"_s, u"cmdexit"_s);
}

void MainMenu::buildCreateMenu(QMenu& menu) {
    createSingle = addItem(menu, u"&Single Puzzle"_s, u"mnucreaten"_s, 0);
    createMultiple = addItem(menu, u"&Multiple Puzzles"_s, u"mnucreaten"_s, 1);
    mnutoday = addCommand(menu, u"&Today's Puzzle"_s, u"mnutoday"_s);
    addCancel(menu, u"mnucreaten"_s, 2);
}

void MainMenu::buildSaveMenu(QMenu& menu) {
    mnusavez = addMenu(menu, u"&Save to"_s, u"mnusavez"_s);
    mnusavex = addCommand(*mnusavez, u"&New File"_s, u"mnusavex"_s);
    mnusaveto = addCommand(*mnusavez, {}, u"mnusaveto"_s);
    addCancel(*mnusavez);
    mnucapwin = addCommand(menu, u"&Entire Window"_s, u"mnucapwin"_s);
    menu.addSeparator();
    mnudelete = addCommand(menu, u"&Delete"_s, u"mnudelete"_s);
    addCancel(menu);
}

void MainMenu::buildPrintMenu(QMenu& menu) {
    printPuzzle = addItem(menu, u"&Puzzle"_s, u"mnuprintx"_s, 0);
    printSolution = addItem(menu, u"&Solution"_s, u"mnuprintx"_s, 1);
    printBoth = addItem(menu, u"Puzzle &and Solution"_s, u"mnuprintx"_s, 2);
    menu.addSeparator()->setObjectName(u"mnuprintx_3"_s);
    printMultiple = addItem(menu, u"&Multiple Puzzles"_s, u"mnuprintx"_s, 4);
    addCancel(menu, u"mnuprintx"_s, 5);
}

void MainMenu::buildPlayMenu(QMenu& menu) {
    mnuundo = addCommand(menu, u"&Undo"_s, u"mnuundo"_s);
    mnuredo = addCommand(menu, u"&Redo"_s, u"mnuredo"_s);
    menu.addSeparator();
    mnucheck = addCommand(menu, u"&Check Solution"_s, u"mnucheck"_s);
    mnureset = addCommand(menu, u"R&eset Puzzle"_s, u"mnureset"_s);
    menu.addSeparator();
    mnuallpencil = addCommand(menu, u"Display All &Pencilmarks"_s, u"mnuallpencil"_s);
    mnuclearpencil = addCommand(menu, u"C&lear All Pencilmarks"_s, u"mnuclearpencil"_s);
    mnusetpairs = addCommand(menu, u"Fill P&aired Cells"_s, u"mnusetpairs"_s);
    mnuset1s = addCommand(menu, u"&Set Singles"_s, u"mnuset1s"_s);
    mnuhint = addCommand(menu, u"&Hint"_s, u"mnuhint"_s);
    QAction* makeMarks = addSwitch(menu, u"&Make Pencilmarks"_s, u"mnumakemarks"_s);
    menu.addSeparator();
    mnunextunsolved = addCommand(menu, u"&Next Unsolved"_s, u"mnunextunsolved"_s);
    mnustatistics = addCommand(menu, u"S&tatistics"_s, u"mnustatistics"_s);
    menu.addSeparator();
    switches = {addSwitch(menu, u"Show &Broken Rules"_s, u"mnubroken"_s),
                addSwitch(menu, u"Show E&qual Numbers"_s, u"mnuequal"_s),
                addSwitch(menu, u"Fa&de Impossible Marks"_s, u"mnufade"_s),
                addSwitch(menu, u"Fill Both Sides of a Pair"_s, u"mnufillboth"_s),
                addSwitch(menu, u"Stri&ke Marks"_s, u"mnustrike"_s),
                makeMarks};
    mnushowtime = addSwitch(menu, u"Show T&ime"_s, u"mnushowtime"_s);
    menu.addSeparator();
    mnuforgetpuzzle = addCommand(menu, u"&Forget this Puzzle's Play"_s, u"mnuforgetpuzzle"_s);
    mnuforgetfile = addCommand(menu, u"F&orget All Play of this File"_s, u"mnuforgetfile"_s);
    addCancel(menu);
}

/// What stands in "File" too, where everybody looks for it.
void MainMenu::buildHelpMenu(QMenu& menu) {
    menu.addAction(mnuhelp);
    menu.addAction(mnuabout);
    addCancel(menu);
}

void MainMenu::showRecentFiles(const std::vector<std::filesystem::path>& paths) {
    for (std::size_t i = 0; i < RecentFileCount; ++i) {
        const bool shown = i < paths.size();
        oldfiles[i]->setVisible(shown);
        if (shown)
            showPath(*oldfiles[i], paths[i], *mnucopyclip);
    }
    oldfiles.back()->setVisible(!paths.empty());
}

void MainMenu::showCurrentFile(const std::filesystem::path& path) {
    showPath(*mnusaveto, path, *mnusavez);
    mnusaveto->setVisible(!path.empty());
}

void MainMenu::offer(const Game& game, bool inFile, bool hasBook) {
    for (QAction* item :
         {mnuclippuz, mnuclipsol, mnusavex, mnusaveto, printPuzzle, printSolution, printBoth,
          mnucheck, mnureset, mnuallpencil, mnuclearpencil, mnusetpairs, mnuset1s, mnuhint})
        item->setEnabled(game.hasPuzzle());
    mnuundo->setEnabled(game.canUndo());
    mnuredo->setEnabled(game.canRedo());
    for (QAction* item : {mnudelete, mnunextunsolved})
        item->setEnabled(inFile);
    mnustatistics->setEnabled(hasBook);
    mnuforgetpuzzle->setEnabled(hasBook && game.hasPuzzle());
    mnuforgetfile->setEnabled(hasBook && inFile);
}

} // namespace tessaly
