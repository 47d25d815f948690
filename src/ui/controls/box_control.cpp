#include "ui/controls/box_control.h"

#include "ui/controls/box_face.h"
#include "ui/controls/key_hold.h"
#include "ui/drawing/qt_colour.h"

#include <QContextMenuEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QShortcutEvent>
#include <QToolTip>

namespace tessaly {
namespace {

constexpr int PictureSize = 24;

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

BoxControl::BoxControl(QWidget* parent)
    : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    // A click leaves the focus where it is: on the board, mostly.
    setFocusPolicy(Qt::TabFocus);
    setIconSize({PictureSize, PictureSize});
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

BoxControl::BoxControl(const QString& caption, QWidget* parent)
    : BoxControl(parent) {
    setText(caption);
}

BoxControl::BoxControl(Picture picture, const QString& toolTip, QWidget* parent)
    : BoxControl(parent) {
    setPicture(picture);
    setToolTip(toolTip);
}

void BoxControl::setPicture(Picture picture) {
    m_picture = picture;
    updateGeometry();
    update();
}

QColor BoxControl::faceColour() const {
    return m_face.isValid() ? m_face : palette().color(QPalette::Active, QPalette::Button);
}

void BoxControl::setFaceColour(const QColor& colour) {
    m_face = colour;
    update();
}

QColor BoxControl::textColour() const {
    if (!isEnabled())
        return fadedOn(faceColour());
    return m_text.isValid() ? m_text : readableOn(faceColour());
}

void BoxControl::setTextColour(const QColor& colour) {
    m_text = colour;
    update();
}

void BoxControl::setLatched(bool latched) {
    setCheckable(true);
    setChecked(latched);
}

QSize BoxControl::sizeHint() const {
    ensurePolished();
    return sizeAround(contents(), fontMetrics());
}

bool BoxControl::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ToolTipChange:
        nameAfterToolTip();
        break;
    case QEvent::ToolTip:
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipWithKeys(), this);
        return true;
    case QEvent::Shortcut:
        answerShortcut(*static_cast<QShortcutEvent*>(event));
        return true;
    default:
        break;
    }
    return QAbstractButton::event(event);
}

QList<QKeySequence> BoxControl::shownKeys() const {
    if (m_shownKeys.isEmpty() && !shortcut().isEmpty())
        return {shortcut()};
    return m_shownKeys;
}

QString BoxControl::toolTipWithKeys() const {
    QStringList keys;
    for (const QKeySequence& shown : shownKeys())
        keys << shown.toString(QKeySequence::NativeText);
    if (toolTip().isEmpty() || keys.isEmpty())
        return toolTip();
    return toolTip() % QChar(u'\n') % keys.join(QLatin1String("; "));
}

/// At once, not after the while that a button usually sinks for: keys come faster than that.
void BoxControl::answerShortcut(const QShortcutEvent& event) {
    if (!isEnabled() || event.isAmbiguous())
        return;
    if (m_heldByShortcut)
        holdUntilReleased(event.key()[0].key());
    else
        click();
}

void BoxControl::holdUntilReleased(int key) {
    if (isDown())
        return;
    connect(new KeyHold(key, this), &KeyHold::ended, this, [this] {
        setDown(false);
        Q_EMIT released();
    });
    setDown(true);
    Q_EMIT pressed();
}

void BoxControl::nameAfterToolTip() {
    if (!text().isEmpty() || accessibleName() != m_nameFromToolTip)
        return;
    m_nameFromToolTip = toolTip();
    setAccessibleName(m_nameFromToolTip);
}

bool BoxControl::answersAlternateClicks() const {
    return isSignalConnected(QMetaMethod::fromSignal(&BoxControl::alternateClicked));
}

void BoxControl::mousePressEvent(QMouseEvent* event) {
    QAbstractButton::mousePressEvent(event);
    if (event->button() == Qt::RightButton && answersAlternateClicks()) {
        m_alternateDown = true;
        update();
    }
    event->accept();
    Q_EMIT mousePressed(event);
}

void BoxControl::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    Q_EMIT mouseMoved(event);
}

void BoxControl::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<BoxControl> self(this);
    QAbstractButton::mouseReleaseEvent(event);
    event->accept();
    if (self)
        Q_EMIT mouseReleased(event);
    if (!self || event->button() != Qt::RightButton || !m_alternateDown)
        return;
    m_alternateDown = false;
    update();
    if (hitButton(event->position().toPoint()))
        Q_EMIT alternateClicked();
}

void BoxControl::keyPressEvent(QKeyEvent* event) {
    const QPointer<BoxControl> self(this);
    if (!isEnter(*event))
        QAbstractButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
    if (self)
        Q_EMIT keyPressed(event);
}

void BoxControl::keyReleaseEvent(QKeyEvent* event) {
    const QPointer<BoxControl> self(this);
    QAbstractButton::keyReleaseEvent(event);
    if (self)
        Q_EMIT keyReleased(event);
}

void BoxControl::focusOutEvent(QFocusEvent* event) {
    m_alternateDown = false;
    QAbstractButton::focusOutEvent(event);
}

void BoxControl::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT alternateClicked();
}

void BoxControl::paintEvent(QPaintEvent*) {
    const bool sunk = isDown() || isLatched() || m_alternateDown;
    QPainter painter(this);
    drawBoxFace(painter, rect(),
                {.colour = faceColour(),
                 .sunk = sunk,
                 .latched = isLatched(),
                 .hovered = underMouse(),
                 .focused = hasFocus(),
                 .enabled = isEnabled()});
    drawBoxContents(painter, QRectF(rect()).translated(sunk ? 1 : 0, sunk ? 1 : 0), contents(),
                    textColour());
}

BoxContents BoxControl::contents() const {
    return {m_picture, iconSize(), text()};
}

} // namespace tessaly
