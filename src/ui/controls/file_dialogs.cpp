#include "ui/controls/file_dialogs.h"

#include <QFileDialog>

namespace tessaly {
namespace {

/// The kind with its patterns behind it, as Qt reads them. Only the kind is shown.
QString filterOf(const FileQuestion& question) {
    return question.kind % QStringLiteral(" (") % question.patterns.join(QLatin1Char(' ')) %
           QStringLiteral(")");
}

QString ask(const FileQuestion& question, QWidget* owner, QFileDialog::AcceptMode mode) {
    QFileDialog dialog(owner, question.title, question.folder);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (!question.patterns.isEmpty())
        dialog.setNameFilter(filterOf(question));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

} // namespace

QString PlatformFileDialogs::nameToOpen(const FileQuestion& question, QWidget* owner) {
    return ask(question, owner, QFileDialog::AcceptOpen);
}

QString PlatformFileDialogs::nameToSave(const FileQuestion& question, QWidget* owner) {
    return ask(question, owner, QFileDialog::AcceptSave);
}

} // namespace tessaly
