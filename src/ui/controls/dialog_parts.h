#pragma once

#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QSize>
#include <QString>

#include <initializer_list>

class QDialog;
class QHBoxLayout;
class QVBoxLayout;

namespace tessaly {

class BoxControl;

/// The measures that the dialogs have in common, in logical pixels.
namespace dialog {
inline constexpr int Margin = 16;
inline constexpr int Spacing = 12;
inline constexpr QSize ButtonSize(96, 34);
} // namespace dialog

/// Gives a widget its object name.
template <class Widget>
Widget* named(const QString& name, Widget* widget) {
    widget->setObjectName(name);
    return widget;
}

/// Lets the regions of a dialog stand beneath each other.
QVBoxLayout* addRows(QDialog& dialog);

/// How high boxes and lists are that stand among others in a row.
inline constexpr int FieldHeight = dialog::ButtonSize.height() - 4;

/// Adds a label and what it names to a row; the label.
QLabel* addNamed(QHBoxLayout& row, const QString& label, QWidget* field);

/// The last row of a dialog: its buttons, all of one size, at the right.
QHBoxLayout* makeButtonRow(std::initializer_list<BoxControl*> buttons);

/// Gives a window that is about to open the size that it would like to have, as far as the screen
/// has room for it.
void resizeOnScreen(QWidget& window, QSize wanted);

/// Draws a rounded frame along the edge of a widget, which is seen on every ground.
void drawFrame(QWidget& widget);

/// A tooltip that shows a text from outside as it is, whatever markup it holds.
QString plainToolTip(const QString& text);

/// A label for plain text that cuts it in the middle where there is no room for all of it.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr)
        : QLabel(parent) {
        setTextFormat(Qt::PlainText);
    }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Lets what it holds scroll where there is no room for all of it.
class ScrolledRegion : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrolledRegion(QWidget* contents, QWidget* parent = nullptr);

    QSize sizeHint() const override { return widget()->sizeHint(); }
};

/// A list to choose one entry from, by the mouse or by the keys. Long entries are cut, not
/// scrolled.
class ChoiceList : public QListWidget {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

    /// The row of the selected entry; -1 for none.
    int selectedRow() const;
    /// Selects an entry without choosing it; -1 selects none.
    void select(int row);
    /// Goes to an entry without selecting it.
    void showRow(int row);

    QSize sizeHint() const override { return {224, 150}; }

Q_SIGNALS:
    /// The mouse came up over the list while an entry was selected, or a key selected another one.
    void chosen(int row);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tessaly
