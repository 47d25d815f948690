#include "ui/window/file_drop.h"

#include "core/files/file_access.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

bool isOfThisComputer(const QUrl& url) {
    return url.isLocalFile() && (url.host().isEmpty() || url.host() == u"localhost"_s);
}

} // namespace

// The bytes count, not what they look like: names need not be UTF-8.
std::filesystem::path draggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !isOfThisComputer(urls.front()))
        return {};
    const QByteArray encoded = urls.front().path(QUrl::FullyEncoded).toUtf8();
    std::filesystem::path path = QByteArray::fromPercentEncoding(encoded).toStdString();
    return FileExists(path) ? path : std::filesystem::path();
}

FileDrop::FileDrop(QWidget& window)
    : QObject(&window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::DragEnter || type == QEvent::DragMove)
        drag(*static_cast<QDropEvent*>(event));
    else if (type == QEvent::Drop)
        drop(*static_cast<QDropEvent*>(event));
    else
        return false;
    return true;
}

void FileDrop::drag(QDropEvent& event) {
    const bool isWelcome = QApplication::activeModalWidget() == nullptr &&
                           (event.possibleActions() & Qt::CopyAction) &&
                           !draggedFile(*event.mimeData()).empty();
    // A file that is said to have been moved may be deleted by the program that it came from.
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(isWelcome);
}

void FileDrop::drop(QDropEvent& event) {
    drag(event);
    if (!event.isAccepted())
        return;
    const std::filesystem::path path = draggedFile(*event.mimeData());
    const auto tell = [this, path] { Q_EMIT dropped(path); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace tessaly
