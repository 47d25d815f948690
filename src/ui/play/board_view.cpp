#include "ui/play/board_view.h"

#include "core/play/assists.h"
#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "core/play/cell_description.h"
#include "core/play/selection_walk.h"
#include "ui/drawing/qt_values.h"
#include "ui/play/board_accessible.h"
#include "ui/play/board_keys.h"

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr double SmallestScale = 0.6;
/// How far the frame of the focus reaches into the view.
constexpr int FocusInset = 3;
constexpr double FocusThickness = 2;
constexpr std::chrono::milliseconds RestTime{350};

PointerButton pointerButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return PointerButton::Left;
    case Qt::RightButton:
        return PointerButton::Right;
    default:
        return PointerButton::Other;
    }
}

} // namespace

SelectionMarker::SelectionMarker(QWidget* parent)
    : QWidget(parent) {
    setObjectName(u"Shape1"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void SelectionMarker::setColour(const QColor& colour) {
    m_colour = colour;
    update();
}

void SelectionMarker::setBroken(bool broken) {
    m_broken = broken;
    update();
}

void SelectionMarker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double thickness = std::max(1.5, width() / 14.0);
    const double inset = thickness / 2;
    const QRectF frame = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(m_colour, thickness, m_broken ? Qt::DotLine : Qt::SolidLine));
    painter.drawRoundedRect(frame, frame.width() / 4, frame.width() / 4);
}

BoardView::BoardView(const Board& board, const Appearance& appearance, const PlaySwitches& switches,
                     QWidget* parent)
    : QWidget(parent)
    , m_board(board)
    , m_appearance(appearance)
    , m_switches(switches)
    , m_overlay(board, appearance, switches, this)
    , m_wave(appearance, this)
    , m_marker(this)
    , m_popup(this)
    , m_told(board.CellNum) {
    BoardAccessible::install();
    setObjectName(u"Picture2"_s);
    setAccessibleName(tr("Board"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(static_cast<int>(std::ceil(SmallestScale * PictureWidth)),
                   static_cast<int>(std::ceil(SmallestScale * PictureHeight)));
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        m_tags[static_cast<std::size_t>(hexagon)] = new HexagonTagWidget(hexagon, appearance, this);
    stopAtTag(m_tagStop);
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestTime);
    connect(&m_rest, &QTimer::timeout, this, &BoardView::showLook);
    applyAppearance();
}

void BoardView::setInput(BoardInput& input) {
    m_input = &input;
    for (HexagonTagWidget* tag : m_tags) {
        if (tag == nullptr)
            continue;
        connect(tag, &HexagonTagWidget::pressed, this,
                [this](int hexagon) { m_input->Celltags_MouseDown(hexagon); });
        connect(tag, &HexagonTagWidget::released, this, [this] { m_input->Celltags_MouseUp(); });
        connect(tag, &HexagonTagWidget::walked, this, [this](int from, int columns, int rows) {
            stopAtTag(hexagonBeside(m_board, from, columns, rows));
            m_tags[static_cast<std::size_t>(m_tagStop)]->setFocus(Qt::TabFocusReason);
        });
    }
    connect(&m_popup, &NumberPopup::clicked, this,
            [this](int button) { m_input->Num16_Click(button); });
    connect(&m_popup, &NumberPopup::timedOut, this, [this] { m_input->Timer1_Timer(); });
}

QSize BoardView::sizeHint() const {
    return {static_cast<int>(PictureWidth), static_cast<int>(PictureHeight)};
}

void BoardView::DrawHexagon(int hexagon) {
    if (!isHexagon(hexagon))
        return;
    draw(m_board, hexagon);
    showTag(hexagon);
    tellChanges();
}

std::vector<CellId> BoardView::takeChanges() {
    std::vector<CellId> changed;
    for (CellId cell : AllCells)
        if (std::exchange(m_told[cell], m_board.CellNum[cell]) != m_board.CellNum[cell]) {
            BoardAccessible::tellEntry(*this, cell);
            changed.push_back(cell);
        }
    return changed;
}

void BoardView::tellChanges() {
    m_overlay.update();
    const std::vector<CellId> changed = takeChanges();
    if (changed.empty())
        return;
    m_overlay.showHint({});
    const bool isBroken = std::any_of(changed.begin(), changed.end(),
                                      [this](CellId cell) { return isSeenBroken(cell); });
    Q_EMIT entriesChanged(changesInWords(m_board, changed, m_input->cell()) +
                          (isBroken ? ", breaks a rule" : ""));
}

void BoardView::showPuzzle() {
    takeChanges();
    m_overlay.showHint({});
    m_wave.stop();
    DrawBoard();
}

void BoardView::DrawPeek(const Board& other, int hexagon) {
    draw(other, hexagon);
}

void BoardView::draw(const Board& board, int hexagon) {
    const QRect changed = m_surface.DrawHexagon(board, hexagon);
    const double ratio = devicePixelRatioF();
    update(QRectF(changed.x() / ratio, changed.y() / ratio, changed.width() / ratio,
                  changed.height() / ratio)
               .toAlignedRect());
}

void BoardView::DrawBoard() {
    m_solutionColour.reset();
    m_overlay.show();
    m_surface.DrawBoard(m_board);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        showTag(hexagon);
    if (m_board.isBlank(m_tagStop))
        stopAtTag(m_tagStop % HexagonCount + 1);
    update();
    tellChanges();
}

void BoardView::DrawSolution(Colour colour) {
    m_solutionColour = colour;
    m_overlay.hide(); // which speaks of what the player entered
    m_surface.DrawSolution(m_board, colour);
    update();
}

void BoardView::applyAppearance() {
    m_surface.setAppearance(m_appearance);
    m_marker.setColour(toQColor(markerColour(m_appearance)));
    DrawBoard();
}

void BoardView::showTag(int hexagon) {
    m_tags[static_cast<std::size_t>(hexagon)]->setVisible(!m_board.isBlank(hexagon));
}

void BoardView::stopAtTag(int hexagon) {
    m_tags[static_cast<std::size_t>(m_tagStop)]->setFocusPolicy(Qt::NoFocus);
    m_tagStop = hexagon;
    m_tags[static_cast<std::size_t>(m_tagStop)]->setFocusPolicy(Qt::TabFocus);
}

void BoardView::showPaletteDigit(char digit) {
    m_paletteDigit = digit;
    showLook();
}

CellId BoardView::lookedAt() const {
    return m_usedByKeys ? m_input->cell() : m_hovered;
}

void BoardView::showLook() {
    CellId cell = lookedAt();
    if (m_board.isBlank(cell.hexagon))
        cell = {}; // what it holds is withheld
    char digit = m_paletteDigit;
    if (digit == 0 && cell && !m_rest.isActive() && isPlaced(m_board.CellNum[cell]))
        digit = m_board.CellNum[cell].front();
    m_overlay.look(cell, digit);
}

void BoardView::showSelection() {
    placeMarker();
    showLook();
    update(QRegion(rect()) - rect().adjusted(FocusInset, FocusInset, -FocusInset, -FocusInset));
    BoardAccessible::tellFocus(*this);
}

void BoardView::placeMarker() {
    const CellId cell = m_input->cell();
    if (cell)
        m_marker.setGeometry(onWidget(markerRectangle(cell)));
    m_marker.setBroken(!m_input->selection());
    m_marker.setVisible(static_cast<bool>(cell));
}

QRect BoardView::rectangleOf(CellId cell) const {
    return onWidget(hitRectangle(cell));
}

CellId BoardView::cellUnder(QPoint point) const {
    return cellAt(onBoard(point));
}

void BoardView::showPopup(Point corner, bool upwards) {
    m_popup.setAccessibleName(
        tr("Entry for %1").arg(QString::fromStdString(cellInWords(m_input->selection()))));
    m_popup.open(boardToWidget().map(toQt(corner)).toPoint(), upwards);
}

void BoardView::enterPopup() {
    m_input->openPopupAtSelection();
    if (m_popup.isVisible())
        m_popup.setFocus();
}

void BoardView::hidePopup() {
    if (m_popup.isAncestorOf(QApplication::focusWidget()))
        setFocus(); // before the focus goes to whatever stands next
    m_popup.close();
}

QTransform BoardView::boardToWidget() const {
    const double ratio = devicePixelRatioF();
    return m_surface.boardToDevice() * QTransform::fromScale(1 / ratio, 1 / ratio);
}

QRect BoardView::onWidget(const Rect& rectangle) const {
    const QRectF onBoard(rectangle.left, rectangle.top, rectangle.width(), rectangle.height());
    return boardToWidget().mapRect(onBoard).toAlignedRect();
}

Point BoardView::onBoard(QPointF position) const {
    const QPointF point = boardToWidget().inverted().map(position);
    return {point.x(), point.y()};
}

void BoardView::updateSurface() {
    m_surface.setSize((QSizeF(size()) * devicePixelRatioF()).toSize());
    m_surface.DrawBoard(m_board);
    if (m_solutionColour)
        m_surface.DrawSolution(m_board, *m_solutionColour);
    placeChildren();
    update();
}

void BoardView::placeChildren() {
    m_overlay.setGeometry(rect());
    m_overlay.setTransform(boardToWidget());
    m_wave.setGeometry(rect());
    m_wave.setTransform(boardToWidget());
    for (HexagonTagWidget* tag : m_tags)
        if (tag != nullptr)
            tag->place(onWidget(tagRectangle(tag->hexagon())));
    placeMarker();
}

void BoardView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    const QRect target = event->rect();
    const QRectF source(target.x() * ratio, target.y() * ratio, target.width() * ratio,
                        target.height() * ratio);
    painter.drawImage(QRectF(target), m_surface.image(), source);
    if (hasFocus() && m_usedByKeys && !m_input->cell())
        drawFocus(painter);
}

/// The marker shows where the focus is as long as a cell is selected; otherwise the board wears a
/// frame, but not for a pointer, for which it would come and go between the cells.
void BoardView::drawFocus(QPainter& painter) const {
    const QColor ground = toQColor(m_appearance.SchemeColours[slot::Background]);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(readableOn(ground), FocusThickness));
    constexpr double Inset = FocusThickness / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset), 4, 4);
}

void BoardView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    hidePopup();
    updateSurface();
}

bool BoardView::event(QEvent* event) {
    if (event->type() == QEvent::ScreenChangeInternal)
        updateSurface();
    // The pointer may stand on a cell that it did not move to, as a box has closed over it.
    if (const QPoint pointer = mapFromGlobal(QCursor::pos());
        event->type() == QEvent::WindowUnblocked && rect().contains(pointer))
        m_input->Picture2_MouseMove(onBoard(pointer));
    return QWidget::event(event);
}

void BoardView::focusInEvent(QFocusEvent* event) {
    switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        m_usedByKeys = true;
        break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        break; // it comes back to whoever had it
    default:
        m_usedByKeys = false;
    }
    QWidget::focusInEvent(event);
    // After the toolkit has told of the board itself.
    QMetaObject::invokeMethod(
        this, [this] { BoardAccessible::tellFocus(*this); }, Qt::QueuedConnection);
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
    if (std::exchange(m_usedByKeys, false))
        update(); // without the frame
    if (const CellId cell = cellUnder(event->position().toPoint());
        std::exchange(m_hovered, cell) != cell) {
        m_rest.start();
        showLook();
    }
    m_input->Picture2_MouseMove(onBoard(event->position()));
}

void BoardView::mousePressEvent(QMouseEvent* event) {
    m_input->Picture2_MouseDown(pointerButton(event->button()), onBoard(event->position()));
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
    m_input->Picture2_MouseUp(pointerButton(event->button()));
}

void BoardView::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    m_hovered = {};
    m_input->pointerLeft();
    showLook();
}

void BoardView::keyPressEvent(QKeyEvent* event) {
    m_usedByKeys = true;
    m_popup.restartTimer();
    if (m_popup.isVisible() && event->key() == Qt::Key_Escape) {
        m_input->Num16_Click(BoardInput::PopupClose);
        return;
    }
    if (asksForMenu(*event))
        enterPopup();
    else if (isEnter(*event) && isSolved(m_board))
        Q_EMIT nextAsked();
    else if (!moveSelection(*m_input, *event) && !readsOrClicks(*m_input, *event) &&
             !turnsMark(*m_input, *event))
        pressKey(*m_input, *event);
}

} // namespace tessaly
