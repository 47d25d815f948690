#include "ui/play/number_popup.h"

#include "ui/controls/box_control.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>

#include <algorithm>
#include <chrono>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr std::chrono::seconds OpenTime{6};
constexpr int PopupButtonSize = 44;
constexpr int PopupMargin = 4;
constexpr int PopupSpacing = 3;
constexpr int PopupDigitSize = 19;
constexpr int Columns = 5;

/// The buttons as they stand in the panel: the numbers left, the pictured ones right.
constexpr std::array<std::array<int, Columns>, 2> Places{{
    {0, 1, 2, BoardInput::PopupEraser, BoardInput::PopupClose},
    {3, 4, 5, BoardInput::PopupSideCopy, BoardInput::PopupSingle},
}};

BoxControl* makeButton(int index, QWidget* parent) {
    switch (index) {
    case BoardInput::PopupEraser:
        return new BoxControl(Picture::Eraser, NumberPopup::tr("Erase"), parent);
    case BoardInput::PopupSideCopy:
        return new BoxControl(Picture::CopySides, NumberPopup::tr("Copy numbers across sides"),
                              parent);
    case BoardInput::PopupClose:
        return new BoxControl(Picture::Close, NumberPopup::tr("Close"), parent);
    case BoardInput::PopupSingle:
        return new BoxControl(Picture::SingleCandidate,
                              NumberPopup::tr("Set the last missing number of this hexagon"),
                              parent);
    default:
        return new BoxControl(QString::number(index + 1), parent);
    }
}

} // namespace

NumberPopup::NumberPopup(QWidget* parent)
    : QFrame(parent)
    , m_timer(new QTimer(this)) {
    setObjectName(u"Picture1"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_NoMousePropagation); // a press between the buttons is none on the board
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(PopupMargin, PopupMargin, PopupMargin, PopupMargin);
    grid->setSpacing(PopupSpacing);
    for (int row = 0; row < static_cast<int>(Places.size()); ++row)
        for (int column = 0; column < Columns; ++column) {
            const int index =
                Places[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            addButton(index, makeButton(index, this), row, column);
        }
    setFocusProxy(m_buttons.front());
    m_timer->setObjectName(u"Timer1"_s);
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &NumberPopup::timedOut);
    hide();
}

void NumberPopup::addButton(int index, BoxControl* button, int row, int column) {
    button->setObjectName(u"Num16_%1"_s.arg(index));
    button->setFixedSize(PopupButtonSize, PopupButtonSize);
    QFont digits = button->font();
    digits.setPixelSize(PopupDigitSize);
    button->setFont(digits);
    connect(button, &BoxControl::clicked, this, [this, index] { Q_EMIT clicked(index); });
    static_cast<QGridLayout*>(layout())->addWidget(button, row, column);
    m_buttons[static_cast<std::size_t>(index)] = button;
}

void NumberPopup::open(QPoint corner, bool upwards) {
    const QSize size = sizeHint();
    const QSize room = parentWidget()->size();
    const int top = upwards ? corner.y() - size.height() : corner.y();
    setGeometry(std::clamp(corner.x(), 0, std::max(0, room.width() - size.width())),
                std::clamp(top, 0, std::max(0, room.height() - size.height())), size.width(),
                size.height());
    raise();
    show();
    QCoreApplication::instance()->installEventFilter(this);
    restartTimer();
}

void NumberPopup::close() {
    QCoreApplication::instance()->removeEventFilter(this);
    m_timer->stop();
    hide();
}

void NumberPopup::restartTimer() {
    m_timer->stop();
    if (isVisible() && !underMouse() && !isAncestorOf(QApplication::focusWidget()))
        m_timer->start(OpenTime);
}

void NumberPopup::enterEvent(QEnterEvent* event) {
    QFrame::enterEvent(event);
    restartTimer();
}

void NumberPopup::leaveEvent(QEvent* event) {
    QFrame::leaveEvent(event);
    restartTimer();
}

bool NumberPopup::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr)
        return false;
    if (isAncestorOf(widget))
        return takes(*event);
    // What a press on the board means is for the board to say.
    if (event->type() == QEvent::MouseButtonPress && widget != this && widget != parentWidget() &&
        widget->window() == window())
        Q_EMIT clicked(BoardInput::PopupClose);
    return false;
}

/// What happens to one of the buttons, before it hears of it.
bool NumberPopup::takes(const QEvent& event) {
    if (event.type() == QEvent::FocusIn || event.type() == QEvent::FocusOut)
        restartTimer();
    return event.type() == QEvent::KeyPress && takesKey(static_cast<const QKeyEvent&>(event).key());
}

bool NumberPopup::takesKey(int key) {
    switch (key) {
    case Qt::Key_Escape:
        Q_EMIT clicked(BoardInput::PopupClose);
        return true;
    case Qt::Key_Left:
        moveFocus(-1, 0);
        return true;
    case Qt::Key_Right:
        moveFocus(1, 0);
        return true;
    case Qt::Key_Up:
        moveFocus(0, -1);
        return true;
    case Qt::Key_Down:
        moveFocus(0, 1);
        return true;
    default:
        return false;
    }
}

void NumberPopup::moveFocus(int columns, int rows) {
    auto* grid = static_cast<QGridLayout*>(layout());
    for (int row = 0; row < grid->rowCount(); ++row)
        for (int column = 0; column < Columns; ++column) {
            if (!grid->itemAtPosition(row, column)->widget()->hasFocus())
                continue;
            const int newRow = std::clamp(row + rows, 0, grid->rowCount() - 1);
            const int newColumn = std::clamp(column + columns, 0, Columns - 1);
            grid->itemAtPosition(newRow, newColumn)->widget()->setFocus(Qt::TabFocusReason);
            return;
        }
}

} // namespace tessaly
