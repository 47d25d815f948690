#pragma once

#include "ui/controls/icon_set.h"

#include <QAbstractButton>
#include <QColor>
#include <QKeySequence>
#include <QString>

class QShortcutEvent;

namespace tessaly {

/// The button of every command: a captioned or pictured face with a raised border that sinks while
/// pressed. The left button, Space and Enter click it (clicked(), with pressed() and released()
/// around it for what lasts as long as the button is held); the right button and the menu key
/// click it the other way.
class BoxControl : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QColor faceColour READ faceColour WRITE setFaceColour)

public:
    explicit BoxControl(QWidget* parent = nullptr);
    BoxControl(const QString& caption, QWidget* parent);
    BoxControl(Picture picture, const QString& toolTip, QWidget* parent);

    Picture picture() const { return m_picture; }
    /// The picture stands left of the caption, or alone in the middle where there is no room for
    /// that; its size is iconSize().
    void setPicture(Picture picture);

    QColor faceColour() const;
    /// An invalid colour gives the palette's button colour, as at first.
    void setFaceColour(const QColor& colour);

    QColor textColour() const;
    /// An invalid colour gives black or white, whichever reads better on the face, as at first.
    void setTextColour(const QColor& colour);

    /// Whether picture and caption stand at the left instead of in the middle, so that those of
    /// several buttons stand beneath each other.
    bool isLeftAligned() const { return m_isLeftAligned; }
    void setLeftAligned(bool leftAligned) { m_isLeftAligned = leftAligned; }

    bool isLatched() const { return isChecked(); }
    /// A latched button stays down until it is let up again; clicks alone change nothing of it.
    void setLatched(bool latched);

    /// The keys that the tooltip names beneath its text; those of shortcut() as long as none are
    /// set.
    QList<QKeySequence> shownKeys() const;
    void setShownKeys(const QList<QKeySequence>& keys) { m_shownKeys = keys; }
    /// The tooltip's text and, on a line of its own, the keys.
    QString toolTipWithKeys() const;
    /// What the button does lasts as long as it is down: the shortcut's key holds it down for as
    /// long as it is down itself, and Enter until Enter comes again or the focus goes.
    void setHeld(bool held) { m_isHeld = held; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void alternateClicked();

    // The events as they come, for any button and any key.
    void mousePressed(QMouseEvent* event);
    void mouseMoved(QMouseEvent* event);
    void mouseReleased(QMouseEvent* event);
    void keyPressed(QKeyEvent* event);
    void keyReleased(QKeyEvent* event);

protected:
    bool event(QEvent* event) override;
    void nextCheckState() override {}
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor groundColour() const;
    bool answersAlternateClicks() const;
    void nameAfterToolTip();
    void answerShortcut(const QShortcutEvent& event);
    void holdUntilReleased(int key);
    void holdDown();
    /// Ends whatever holds it down, without a click.
    void letUp();

    Picture m_picture = Picture::None;
    QColor m_face;
    QColor m_text;
    QString m_nameFromToolTip;
    QList<QKeySequence> m_shownKeys;
    bool m_isHeld = false;
    bool m_isLeftAligned = false;
    bool m_alternateDown = false;
};

/// Whether a widget that is held down will not see what holds it come up: its window loses the
/// focus, a dialog opens, or it is hidden.
bool endsHolds(const QEvent& event);

} // namespace tessaly
