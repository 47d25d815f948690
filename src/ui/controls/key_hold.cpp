#include "ui/controls/key_hold.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tessaly {
namespace {

bool isReleaseOf(int key, const QEvent& event) {
    if (event.type() != QEvent::KeyRelease)
        return false;
    const auto& released = static_cast<const QKeyEvent&>(event);
    return released.key() == key && !released.isAutoRepeat();
}

} // namespace

KeyHold::KeyHold(int key, QObject* parent)
    : QObject(parent)
    , m_key(key) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyHold::eventFilter(QObject*, QEvent* event) {
    if (isReleaseOf(m_key, *event) || event->type() == QEvent::WindowDeactivate) {
        QCoreApplication::instance()->removeEventFilter(this);
        deleteLater();
        Q_EMIT ended();
    }
    return false;
}

} // namespace tessaly
