#pragma once

#include <QSize>
#include <QString>

#include <initializer_list>

class QDialog;
class QHBoxLayout;
class QVBoxLayout;
class QWidget;

namespace tessaly {

class BoxControl;
class FileDialogs;
class FNDialog;
class Prompts;

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

/// The last row of a dialog: its buttons, all of one size, at the right.
QHBoxLayout* makeButtonRow(std::initializer_list<BoxControl*> buttons);

/// The square button `gf1` beside the name of a file, which asks for another one.
FNDialog* makeFilePicker(FileDialogs& fileDialogs, Prompts& prompts, QWidget* parent);

} // namespace tessaly
