#pragma once

#include <QObject>

#include <filesystem>

class QDropEvent;
class QMimeData;
class QWidget;

namespace tessaly {

/// Lets the player drop a file on a window. Only a single file of this computer is taken, and it is
/// always copied: whoever gives it keeps it. The window hears of it after the drop is over, so that
/// a question may be asked then.
class FileDrop : public QObject {
    Q_OBJECT

public:
    explicit FileDrop(QWidget& window);

Q_SIGNALS:
    void dropped(const std::filesystem::path& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drag(QDropEvent& event);
    void drop(QDropEvent& event);
};

/// The path of the one local file that is being dragged; empty when it is anything else.
std::filesystem::path draggedFile(const QMimeData& data);

} // namespace tessaly
