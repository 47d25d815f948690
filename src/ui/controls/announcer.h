#pragma once

#include <QStringList>
#include <QWidget>

namespace tessaly {

/// Speaks to whoever hears the window: to a screen reader it is a notification with the text as its
/// name, shown anew for each text. Nothing of it is seen.
class Announcer : public QWidget {
    Q_OBJECT

public:
    explicit Announcer(QWidget* parent);

    /// Says a text as soon as the event that it comes from is done with, together with the others
    /// of that event: a screen reader asks for the name only then.
    void say(const QString& text);

private:
    void tell();

    QStringList m_texts;
};

} // namespace tessaly
