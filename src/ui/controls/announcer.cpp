#include "ui/controls/announcer.h"

#include <QAccessibleWidget>
#include <QTimer>

namespace tessaly {
namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* announcer = qobject_cast<Announcer*>(object);
    return announcer == nullptr ? nullptr
                                : new QAccessibleWidget(announcer, QAccessible::Notification);
}

} // namespace

Announcer::Announcer(QWidget* parent)
    : QWidget(parent) {
    QAccessible::installFactory(makeInterface);
    setFixedSize(0, 0);
}

void Announcer::say(const QString& text) {
    if (text.isEmpty())
        return;
    if (m_texts.isEmpty())
        QTimer::singleShot(0, this, &Announcer::tell);
    m_texts << text;
}

void Announcer::tell() {
    setAccessibleName(m_texts.join(QLatin1String(". ")));
    m_texts.clear();
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace tessaly
