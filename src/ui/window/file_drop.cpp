#include "ui/window/file_drop.h"

#include "ui/controls/file_name_picker.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
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

QString draggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !isOfThisComputer(urls.front()))
        return {};
    const QString path = urls.front().path(QUrl::FullyDecoded);
    return !isExactPath(path) || QFileInfo(path).isFile() ? path : QString();
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
                           !draggedFile(*event.mimeData()).isEmpty();
    // A file that is said to have been moved may be deleted by the program that it came from.
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(isWelcome);
}

void FileDrop::drop(QDropEvent& event) {
    drag(event);
    if (!event.isAccepted())
        return;
    const QString path = draggedFile(*event.mimeData());
    const QString problem = problemWithName(path);
    const auto tell = [this, path, problem] {
        problem.isEmpty() ? Q_EMIT dropped(path) : Q_EMIT refused(problem);
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace tessaly
