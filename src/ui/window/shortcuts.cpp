#include "ui/window/shortcuts.h"

#include "ui/controls/box_control.h"

#include <QAction>
#include <QLineEdit>
#include <QShortcut>

namespace tessaly {
namespace {

QKeySequence keysOf(std::string_view keys) {
    return QKeySequence::fromString(QString::fromUtf8(keys), QKeySequence::PortableText);
}

void giveToBox(QLineEdit& box, const QKeySequence& keys) {
    auto* shortcut = new QShortcut(keys, &box);
    shortcut->setContext(Qt::WindowShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &box, [&box] {
        box.setFocus(Qt::ShortcutFocusReason);
        box.selectAll();
    });
}

void giveToButton(BoxControl& button, const Shortcut& shortcut) {
    button.setShortcut(keysOf(shortcut.keys));
    if (shortcut.alternateKeys.empty())
        return;
    auto* alternate = new QShortcut(keysOf(shortcut.alternateKeys), &button);
    alternate->setContext(Qt::WindowShortcut);
    QObject::connect(alternate, &QShortcut::activated, &button, &BoxControl::alternateClicked);
    button.setShownKeys({button.shortcut(), alternate->key()});
}

void give(QWidget& window, const Shortcut& shortcut) {
    const QString name = QString::fromUtf8(shortcut.command);
    if (auto* action = window.findChild<QAction*>(name))
        action->setShortcut(keysOf(shortcut.keys));
    else if (auto* button = window.findChild<BoxControl*>(name))
        giveToButton(*button, shortcut);
    else if (auto* box = window.findChild<QLineEdit*>(name))
        giveToBox(*box, keysOf(shortcut.keys));
}

} // namespace

void giveShortcuts(QWidget& window) {
    for (const Shortcut& shortcut : Shortcuts)
        give(window, shortcut);
    for (const Shortcut& shared : SharedShortcuts)
        if (auto* button = window.findChild<BoxControl*>(QString::fromUtf8(shared.command)))
            button->setShownKeys({keysOf(shared.keys)});
}

} // namespace tessaly
