#pragma once

#include <QObject>

namespace tessaly {

/// Waits until a key that is down comes up, or until the window can no longer see it come up;
/// says so once, whoever has the focus.
class KeyHold : public QObject {
    Q_OBJECT

public:
    KeyHold(int key, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void ended();

private:
    int m_key;
};

} // namespace tessaly
