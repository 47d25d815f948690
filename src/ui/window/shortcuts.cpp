#include "ui/window/shortcuts.h"

#include "ui/controls/box_control.h"

#include <QAction>
#include <QLineEdit>
#include <QShortcut>

namespace tessaly {
namespace {

QList<QKeySequence> keysOf(const Shortcut& shortcut) {
    return QKeySequence::listFromString(QString::fromUtf8(shortcut.keys),
                                        QKeySequence::PortableText);
}

void giveToBox(QLineEdit& box, const QKeySequence& keys) {
    auto* shortcut = new QShortcut(keys, &box);
    shortcut->setContext(Qt::WindowShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &box, [&box] {
        box.setFocus(Qt::ShortcutFocusReason);
        box.selectAll();
    });
}

void give(QWidget& window, const Shortcut& shortcut) {
    const QString name = QString::fromUtf8(shortcut.command);
    const QList<QKeySequence> keys = keysOf(shortcut);
    if (auto* action = window.findChild<QAction*>(name))
        action->setShortcuts(keys);
    else if (auto* button = window.findChild<BoxControl*>(name))
        button->setShortcut(keys.front());
    else if (auto* box = window.findChild<QLineEdit*>(name))
        giveToBox(*box, keys.front());
}

} // namespace

void giveShortcuts(QWidget& window) {
    for (const Shortcut& shortcut : Shortcuts)
        give(window, shortcut);
    for (const Shortcut& shared : SharedShortcuts)
        if (auto* button = window.findChild<BoxControl*>(QString::fromUtf8(shared.command)))
            button->setShownKeys(keysOf(shared));
}

} // namespace tessaly
