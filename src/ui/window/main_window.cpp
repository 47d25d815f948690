#include "ui/window/main_window.h"

#include "core/options/scheme_library.h"
#include "core/play/cell_description.h"
#include "core/session/configuration.h"
#include "core/session/program_folder.h"
#include "core/session/session.h"
#include "ui/controls/announcer.h"
#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/file_name_picker.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/drawing/qt_values.h"
#include "ui/help/about_box.h"
#include "ui/help/help_window.h"
#include "ui/help/rules_strip.h"
#include "ui/options/options_dialog.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"
#include "ui/play/side_panel.h"
#include "ui/play/statistics_form.h"
#include "ui/window/developer_row.h"
#include "ui/window/file_drop.h"
#include "ui/window/shortcuts.h"
#include "ui/window/star_row.h"
#include "ui/window/status_line.h"
#include "ui/window/tool_row.h"
#include "ui/window/window_body.h"
#include "ui/window/window_place.h"

#include <QApplication>
#include <QLineEdit>
#include <QProgressDialog>
#include <QShortcut>
#include <QTimer>
#include <QToolTip>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize FirstSize(860, 680);

/// Attempts something every now and then, as long as `goOn` says so, while the windows live.
bool attemptInTurns(const std::function<bool()>& attempt, const std::function<bool()>& goOn) {
    QTimer turns;
    turns.start(Turn);
    bool taken = false;
    for (; !taken && goOn(); taken = attempt())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return taken;
}

/// Waits where a box hides the message line and must not be used meanwhile.
bool waitOver(QWidget& box, const std::string& text, const std::function<bool()>& attempt) {
    QProgressDialog dialog(QString::fromStdString(text), u"Give Up"_s, 0, 0, &box);
    dialog.setWindowTitle(u"Tessaly"_s);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    return attemptInTurns(attempt, [&] { return !dialog.wasCanceled(); });
}

} // namespace

Form1::Form1(Session& session, Prompts& prompts, const FileDialog& fileDialog, Printers& printers)
    : m_session(session)
    , m_prompts(prompts)
    , m_worn(session.appearance)
    , m_menu(*menuBar())
    , m_tools(new ToolRow)
    , m_board(new BoardView(session.game.board, m_worn, session.game.switches))
    , m_side(new SidePanel(m_worn))
    , m_status(new StatusLine)
    , m_announcer(new Announcer(this))
    , m_developerRow(session.developer ? new DeveloperRow : nullptr)
    , m_toldOfRules(session, "toldOfRules")
    , m_rules(session.book && !m_toldOfRules.isTold() ? new RulesStrip(m_worn) : nullptr)
    , m_picker(new FNDialog(fileDialog, prompts, this))
    , m_options(new Form2x(session.appearance, session.ProgramFolder, prompts, this, waiting()))
    , m_help(new Form4(session.appearance, this))
    , m_about(new AboutForm(session.appearance, this))
    , m_statistics(new StatisticsForm(session, prompts, this))
    , m_seconds(new QTimer(this))
    , m_commands(session, {this, m_worn, *this, prompts, fileDialog, *m_picker, printers}) {
    setObjectName(u"Form1"_s);
    setWindowTitle(u"Tessaly"_s);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_picker->setObjectName(u"gf1"_s);
    m_picker->hide();
    setCentralWidget(arrangeRegions());
    connectPlay();
    m_commands.connectTo({m_menu, *m_tools, *m_board, *m_side, m_developerRow});
    connect(m_board, &BoardView::entriesChanged, this, &Form1::announce);
    connect(m_menu.cmdexit, &QAction::triggered, this, &Form1::cmdexit);
    connectOptions();
    connectFileDrop();
    giveShortcuts(*this);
    connectHelp();
    if (m_rules != nullptr)
        connectRules();
    Form1::showPuzzle(session.puzzle);
    applyAppearance();
    resizeOnScreen(*this, FirstSize);
    restoreWindowPlace(*this, session.ProgramFolder);
}

QWidget* Form1::arrangeRegions() {
    QList<QWidget*> rows{m_tools};
    for (QWidget* row : QList<QWidget*>{m_developerRow, m_rules})
        if (row != nullptr)
            rows << row;
    return new WindowBody(rows, m_board, m_side, m_status);
}

void Form1::applyAppearance() {
    m_worn = m_session.appearance;
    const QPalette palette = schemePalette(m_worn);
    setPalette(palette);
    QApplication::setPalette(palette); // of the toolkit's own dialogs as well
    QToolTip::setPalette(palette);
    SetMenuColour();
    m_side->palette->applyAppearance();
    m_board->applyAppearance();
}

void Form1::SetMenuColour() {
    menuBar()->setStyleSheet(menuStyleSheet(m_worn));
}

void Form1::offerCommands() {
    const Game& game = m_session.game;
    const bool inFile = m_session.puzzle.PuzNum > 0;
    const QWidget* focused = QApplication::focusWidget();
    m_menu.offer(game, inFile, m_session.book != nullptr);
    m_tools->offerOthers(inFile);
    m_side->cmdundo->setEnabled(game.canUndo());
    m_side->cmdredo->setEnabled(game.canRedo());
    for (QWidget* control :
         {m_side->cmdhint, m_side->cmdreset, m_side->cmdshowsol, m_side->cmdallpencil,
          m_side->cmdsetpairs, m_side->cmdset1s, m_side->StatLab})
        control->setEnabled(game.hasPuzzle());
    if (focused != nullptr && focused->window() == this && !focused->isEnabled())
        m_board->setFocus(Qt::TabFocusReason);
}

void Form1::DrawHexagon(int hexagon) {
    m_board->DrawHexagon(hexagon);
    offerCommands();
}

void Form1::DrawBoard() {
    m_board->DrawBoard();
    offerCommands();
}

void Form1::DrawSolution(Colour colour) {
    m_board->DrawSolution(colour);
    Board solved = m_board->board();
    solved.CellNum = solved.SolNum;
    if (const CellId cell = m_board->input().cell())
        announce("solution of " + hexagonInWords(solved, cell.hexagon));
}

void Form1::DrawPeek(const Board& other, int hexagon) {
    m_board->DrawPeek(other, hexagon);
}

void Form1::showHint(const Hint& hint) {
    m_board->showHint(hint);
}

void Form1::focusBoard() {
    // A pointer that only crosses the board does not take the focus from what is being typed.
    const auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (field == nullptr || !field->isModified())
        m_board->setFocus();
}

void Form1::showSelection(CellId) {
    m_board->showSelection();
}

void Form1::showPopup(Point corner, bool upwards) {
    m_board->showPopup(corner, upwards);
}

void Form1::hidePopup() {
    m_board->hidePopup();
}

void Form1::showPalette(int pressedItem) {
    m_side->palette->showPalette(pressedItem);
    const bool isDigit = pressedItem >= 0 && pressedItem < BoardInput::PaletteEraser;
    m_board->showPaletteDigit(isDigit ? static_cast<char>('1' + pressedItem) : '\0');
}

void Form1::showPuzzle(const CurrentPuzzle& puzzle) {
    const bool isInFile = puzzle.PuzNum > 0;
    m_tools->showPuzzleNumber(puzzle.PuzNum, isInFile ? puzzle.PuzCount : 0);
    m_tools->showDifficulty(m_session.difficulty);
    const Game& game = m_session.game;
    m_tools->stars->showRating(game.hasPuzzle() ? ratePuzzle(game.board) : std::nullopt);
    if (isInFile)
        m_tools->showFile(puzzle.PuzPath);
    else
        m_tools->showFileText(u"Create a New Puzzle"_s);
    m_board->showPuzzle();
    Form1::showPlay();
    if (isInFile)
        m_announcer->say(tr("Puzzle %1 of %2").arg(puzzle.PuzNum).arg(puzzle.PuzCount));
}

void Form1::showPlay() {
    const Game& game = m_session.game;
    offerCommands();
    m_tools->showPlayMark(game.wasSolved   ? Picture::Solved
                          : game.isBegun() ? Picture::Begun
                                           : Picture::None);
    showTime();
}

void Form1::showTime() {
    if (!m_seconds->isActive()) {
        m_status->showTime({});
        return;
    }
    m_commands.keeping.countTime();
    m_status->showTime(playTimeText(m_session.game.seconds));
}

void Form1::showSolved(CellId last) {
    std::string text = "Solved";
    if (m_seconds->isActive())
        text += " in " + playTimeText(m_session.game.seconds).toStdString();
    if (m_session.puzzle.PuzNum > 0)
        text += " (Enter goes on)";
    m_board->showSolved(last);
    showMessage(text);
}

void Form1::showDifficulty(DifficultyChoice difficulty) {
    m_tools->showDifficulty(difficulty);
    announce(nameOf(difficulty));
}

void Form1::showSaveTarget(const std::filesystem::path& path) {
    m_menu.showCurrentFile(path);
}

void Form1::showRecentFiles(const std::vector<std::filesystem::path>& paths) {
    m_menu.showRecentFiles(paths);
}

void Form1::showMessage(std::string_view text) {
    m_status->showMessage(text);
    announce(text);
}

void Form1::announce(std::string_view text) {
    m_announcer->say(QString::fromUtf8(text));
}

void Form1::showBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QApplication::restoreOverrideCursor();
}

void Form1::beginProgress(const std::filesystem::path& path) {
    m_tools->showFile(path);
    m_tools->showPuzzleNumber(0, 0);
    m_tools->progress->begin();
}

void Form1::showProgress(const RunProgress& progress) {
    m_tools->showPuzzleNumber(progress.made, progress.count);
    m_tools->progress->show(progress);
}

void Form1::endProgress() {
    m_tools->progress->end();
}

void Form1::yield() {
    QCoreApplication::processEvents();
}

void Form1::afterwards(std::chrono::milliseconds delay, std::function<void()> what) {
    QTimer::singleShot(delay, this, std::move(what));
}

bool Form1::waitFor(const std::filesystem::path& path, const std::function<bool()>& attempt) {
    if (attempt())
        return true;
    const std::string waiting = "Waiting for " + path.filename().native();
    if (QWidget* box = QApplication::activeModalWidget())
        return waitOver(*box, waiting, attempt);
    bool givenUp = false;
    const QShortcut escape(Qt::Key_Escape, this, [&givenUp] { givenUp = true; });
    showMessage(waiting + " (Escape gives up)");
    const bool taken = attemptInTurns(attempt, [&] { return !givenUp && isVisible(); });
    showMessage({});
    return taken;
}

void Form1::closeEvent(QCloseEvent* event) {
    m_commands.stop();
    m_commands.keeping.leave();
    if (m_rules != nullptr)
        m_commands.keeping.tell(m_toldOfRules.remember());
    rememberWindowPlace(*this, m_session.ProgramFolder);
    QMainWindow::closeEvent(event);
}

void Form1::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange)
        m_commands.keeping.setPresent(isActiveWindow());
    QMainWindow::changeEvent(event);
}

void Form1::connectOptions() {
    auto* redraw = new BoxControl(this);
    redraw->setObjectName(u"Command2x"_s);
    redraw->hide();
    connect(redraw, &BoxControl::clicked, this, &Form1::ApplyScheme);
    connect(m_options, &Form2x::applied, redraw, &BoxControl::click);
    connect(m_menu.mnuopts, &QAction::triggered, this, [this] {
        if (!m_commands.refuses())
            m_options->showOptions();
    });
}

void Form1::connectFileDrop() {
    auto* drop = new FileDrop(*this);
    connect(drop, &FileDrop::dropped, this, [this](const std::filesystem::path& path) {
        if (!m_commands.refuses())
            m_commands.files.load(path);
    });
}

void Form1::connectHelp() {
    connect(m_menu.mnuhelp, &QAction::triggered, this, [this] {
        m_help->setTag(m_session.ProgramFolder / HelpPageFile);
        m_help->show();
    });
    connect(m_menu.mnuabout, &QAction::triggered, m_about, &QDialog::show);
}

void Form1::connectRules() {
    connect(m_rules, &RulesStrip::closeAsked, this, &Form1::closeRules);
    connect(m_rules, &RulesStrip::showMeAsked, this, [this] {
        if (m_commands.refuses())
            return;
        m_commands.files.load(m_session.ProgramFolder / EasyLibraryFile, ManualPuzzle);
        showMessage("Point at a triangle and press 1 to 6; the bulb (F4) says what comes next");
        m_board->setFocus();
    });
    m_announcer->say(RulesStrip::inWords());
}

void Form1::closeRules() {
    m_rules->hide();
    m_commands.keeping.tell(m_toldOfRules.remember());
    m_board->setFocus();
}

void Form1::connectPlay() {
    m_tools->setSolvedText(
        [this] { return QString::fromStdString(m_commands.keeping.solvedInWords()); });
    m_seconds->setInterval(std::chrono::seconds(1));
    connect(m_seconds, &QTimer::timeout, this, &Form1::showTime);
    connect(m_menu.mnushowtime, &QAction::toggled, this, [this](bool on) {
        on ? m_seconds->start() : m_seconds->stop();
        showTime();
    });
    connect(m_menu.mnustatistics, &QAction::triggered, m_statistics,
            &StatisticsForm::showStatistics);
}

void Form1::ApplyScheme() {
    const std::string scheme = m_session.appearance.ActiveScheme;
    const Outcome loaded =
        SchemeLibrary(m_session.ProgramFolder).LoadScheme(scheme, m_session.appearance);
    applyAppearance();
    m_options->showSchemeInForce();
    if (!loaded.ok())
        m_prompts.message(loaded.problem, style::Critical);
}

void Form1::cmdexit() {
    if (m_prompts.message("Exit?", "vbYesNo+vbquestion") != answer::Yes)
        return;
    const WhileSet saving(m_session.busy.commandRunning);
    if (const Outcome saved = SavecfgFile(m_session, waiting()); !saved.ok())
        m_prompts.message(saved.problem, style::Critical);
    QApplication::closeAllWindows();
    QApplication::quit();
}

} // namespace tessaly
