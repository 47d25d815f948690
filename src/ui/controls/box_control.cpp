#include "ui/controls/box_control.h"

#include "ui/drawing/qt_values.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QShortcutEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace tessaly {
namespace {

constexpr int PictureSize = 24;
constexpr double CornerRadius = 4;
constexpr int PaddingBesideCaption = 14;
constexpr int PaddingBesidePicture = 7;
constexpr int PaddingAbove = 7;
constexpr int Gap = 7;

// What stands on the face of a button is a picture left of a caption, or one of the two alone, in
// the middle.

QSize pictureSize(const BoxControl& button) {
    return button.picture() == Picture::None ? QSize(0, 0) : button.iconSize();
}

QSize captionSize(const BoxControl& button) {
    return button.text().isEmpty() ? QSize(0, 0)
                                   : button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
}

int gapIn(const BoxControl& button) {
    return button.picture() == Picture::None || button.text().isEmpty() ? 0 : Gap;
}

void drawContents(QPainter& painter, const QRectF& area, const BoxControl& button) {
    const QSizeF picture = pictureSize(button);
    const double captionLeft = picture.width() + gapIn(button);
    QRectF used(0, 0, captionLeft + captionSize(button).width(), area.height());
    const bool hasRoom = used.width() + 2 * PaddingBesidePicture <= area.width();
    if (!hasRoom && picture.width() > 0)
        used.setWidth(picture.width());
    used.moveCenter(area.center());
    if (hasRoom && button.isLeftAligned())
        used.moveLeft(area.left() + PaddingBesideCaption);

    QRectF place(used.topLeft(), picture);
    place.moveTop(std::round(area.center().y() - picture.height() / 2));
    drawPicture(painter, place, button.picture(), button.textColour());
    if (!hasRoom && picture.width() > 0)
        return;
    painter.setPen(button.textColour());
    painter.drawText(used.adjusted(captionLeft, 0, 0, 0), Qt::AlignCenter | Qt::TextShowMnemonic,
                     button.text());
}

/// How the face of a button looks at the moment.
struct BoxFace {
    QColor colour;
    /// What lies around the button.
    QColor ground;
    bool sunk = false;
    bool hovered = false;
    bool focused = false;
    bool enabled = true;
};

bool isDark(const QColor& face) {
    return readableOn(face) == QColor(Qt::white);
}

/// How long one pixel of the border is, in the painter's units: a whole number of device pixels.
double borderWidth(const QPainter& painter) {
    const double scale = std::max(painter.deviceTransform().m11(), 0.1);
    return std::max(1.0, std::floor(scale)) / scale;
}

/// `area` moved to the nearest whole pixels of the device.
QRectF onPixels(const QPainter& painter, const QRectF& area) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(area);
    const QRectF whole(QPointF(std::round(device.left()), std::round(device.top())),
                       QPointF(std::round(device.right()), std::round(device.bottom())));
    return toDevice.inverted().mapRect(whole);
}

/// Light above and left, dark below and right, changing at the upper right and lower left corners.
QBrush borderBrush(const QRectF& area, const QColor& face, bool sunk) {
    QColor lit = blended(face, Qt::white, isDark(face) ? 0.3 : 0.65);
    QColor shaded = blended(face, Qt::black, 0.4);
    if (sunk)
        std::swap(lit, shaded);
    // Across the line between those two corners, as long as the upper left one is away from it.
    const double width = area.width();
    const double height = area.height();
    const QPointF axis =
        QPointF(height, width) * (width * height / std::max(1.0, width * width + height * height));
    QLinearGradient gradient(area.center() - axis, area.center() + axis);
    gradient.setColorAt(0, lit);
    gradient.setColorAt(0.45, lit);
    gradient.setColorAt(0.55, shaded);
    gradient.setColorAt(1, shaded);
    return gradient;
}

QColor faceShade(const BoxFace& face) {
    const double shade = face.sunk ? 0.16 : face.hovered ? 0.08 : 0;
    return face.enabled ? blended(face.colour, readableOn(face.colour), shade) : face.ground;
}

/// The line that says where the button is: seen on the ground and, if it has one, on the face.
QColor outlineColour(const BoxFace& face) {
    constexpr double LeastContrast = 3; // of WCAG 2, for the outline of a control
    const QColor line = standingOut(face.ground, LeastContrast);
    const bool seenOnFace = contrastRatio(toColour(line), toColour(face.colour)) >= LeastContrast;
    return seenOnFace || !face.enabled ? line : standingOut(face.colour, LeastContrast);
}

/// A line of so many pixels of the border; a broken one is for what cannot be used.
void drawRing(QPainter& painter, const QRectF& area, const QColor& colour, double inset,
              int pixels = 2, Qt::PenStyle style = Qt::SolidLine) {
    const double width = pixels * borderWidth(painter);
    inset += width / 2;
    painter.setPen(QPen(colour, width, style));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), CornerRadius - inset / 2,
                            CornerRadius - inset / 2);
}

/// Draws the face in its outline, with a border that is lit from the upper left between the two;
/// each is one pixel thick, on whole pixels of the device. Each state has a line of its own, for
/// shades alone are not seen on every colour: a thick one under the pointer, a thicker one while it
/// is down, an inner one with the focus. What cannot be used is flat in a broken line.
void drawFace(QPainter& painter, const QRectF& area, const BoxFace& face) {
    const QRectF outer = onPixels(painter, area);
    const double border = borderWidth(painter);
    const QColor shade = faceShade(face);
    const auto fill = [&](int inset, const QBrush& brush) {
        const double by = inset * border;
        painter.setBrush(brush);
        painter.drawRoundedRect(outer.adjusted(by, by, -by, -by), CornerRadius - by,
                                CornerRadius - by);
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (face.enabled) {
        fill(0, outlineColour(face));
        fill(1, borderBrush(outer, face.colour, face.sunk));
        fill(2, shade);
    } else {
        drawRing(painter, outer, outlineColour(face), 0, 1, Qt::DashLine);
    }
    if (face.enabled && (face.sunk || face.hovered))
        drawRing(painter, outer, readableOn(shade), 0, face.sunk ? 3 : 2);
    if (face.focused)
        drawRing(painter, outer, readableOn(shade), 4 * border);
    painter.restore();
}

bool isReleaseOf(int key, const QEvent& event) {
    if (event.type() != QEvent::KeyRelease)
        return false;
    const auto& released = static_cast<const QKeyEvent&>(event);
    return released.key() == key && !released.isAutoRepeat();
}

/// Waits until a key that is down comes up, and says so once, whoever has the focus.
class KeyHold : public QObject {
public:
    KeyHold(int key, QObject* parent, std::function<void()> ended)
        : QObject(parent)
        , m_key(key)
        , m_ended(std::move(ended)) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (isReleaseOf(m_key, *event)) {
            QCoreApplication::instance()->removeEventFilter(this);
            deleteLater();
            m_ended();
        }
        return false;
    }

private:
    int m_key;
    std::function<void()> m_ended;
};

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

bool endsHolds(const QEvent& event) {
    return event.type() == QEvent::WindowDeactivate || event.type() == QEvent::WindowBlocked ||
           event.type() == QEvent::Hide;
}

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

QColor BoxControl::groundColour() const {
    return palette().color(QPalette::Active, QPalette::Window);
}

QColor BoxControl::textColour() const {
    if (!isEnabled())
        return fadedOn(groundColour());
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
    const QSize picture = pictureSize(*this);
    const QSize caption = captionSize(*this);
    const int padding = text().isEmpty() ? PaddingBesidePicture : PaddingBesideCaption;
    return {picture.width() + gapIn(*this) + caption.width() + 2 * padding,
            std::max(picture.height(), caption.height()) + 2 * PaddingAbove};
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
        if (endsHolds(*event))
            letUp();
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
    if (m_isHeld)
        holdUntilReleased(event.key()[0].key());
    else
        click();
}

void BoxControl::letUp() {
    m_alternateDown = false;
    if (!isDown())
        return;
    setDown(false);
    Q_EMIT released();
}

void BoxControl::holdUntilReleased(int key) {
    if (isDown())
        return;
    new KeyHold(key, this, [this] { letUp(); });
    holdDown();
}

void BoxControl::holdDown() {
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
    else if (!event->isAutoRepeat() && m_isHeld)
        isDown() ? letUp() : holdDown();
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
    drawFace(painter, rect(),
             {.colour = faceColour(),
              .ground = groundColour(),
              .sunk = sunk,
              .hovered = underMouse(),
              .focused = hasFocus(),
              .enabled = isEnabled()});
    drawContents(painter, QRectF(rect()).translated(sunk ? 1 : 0, sunk ? 1 : 0), *this);
}

} // namespace tessaly
