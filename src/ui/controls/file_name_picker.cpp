#include "ui/controls/file_name_picker.h"

#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStandardPaths>

#include <algorithm>
#include <filesystem>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int LongestPath = 254;

/// The kind with its patterns behind it, as Qt reads them. Only the kind is shown.
QString filterOf(const FileQuestion& question) {
    return question.kind % u" ("_s % question.patterns.join(QLatin1Char(' ')) % u")"_s;
}

/// Brings the process back to the directory in which it was, wherever a dialog has led it.
class CurrentDirectoryKeeper {
public:
    CurrentDirectoryKeeper() = default;
    CurrentDirectoryKeeper(const CurrentDirectoryKeeper&) = delete;
    CurrentDirectoryKeeper& operator=(const CurrentDirectoryKeeper&) = delete;
    ~CurrentDirectoryKeeper() { QDir::setCurrent(m_directory); }

private:
    QString m_directory = QDir::currentPath();
};

/// Whether a text from the screen is the name that stands on the disk. One there that is not UTF-8
/// arrives with replacement characters in it.
bool isExact(const QString& name) {
    return !name.contains(QChar::ReplacementCharacter) &&
           QFile::decodeName(QFile::encodeName(name)) == name;
}

/// The one file of a folder that looks like `name` on the screen; empty when there is none, or
/// more than one.
std::filesystem::path fileLike(const std::filesystem::path& folder, const QString& name) {
    if (isExact(name))
        return folder / pathOf(name);
    std::filesystem::path found;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        if (pathText(entry->path().filename()) != name)
            continue;
        if (!found.empty())
            return {};
        found = entry->path();
    }
    return found;
}

/// What an absolute path from the screen means on the disk; empty when that cannot be told.
std::filesystem::path exactPath(const QString& path) {
    if (path.contains(QChar::Null))
        return {};
    if (isExact(path))
        return pathOf(path);
    std::filesystem::path exact = "/";
    for (const QString& name : path.split(u'/', Qt::SkipEmptyParts))
        if (exact = fileLike(exact, name); exact.empty())
            break;
    return exact;
}

QStringList patternsIn(const QString& types) {
    QStringList patterns;
    for (const QString& piece : types.split(QLatin1Char(';')))
        if (!piece.trimmed().isEmpty())
            patterns << piece.trimmed();
    return patterns;
}

bool holdsSomething(const std::filesystem::path& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    return !error && size != 0;
}

} // namespace

QString askPlatform(const FileQuestion& question, QWidget* owner) {
    QFileDialog dialog(owner, question.title, question.folder);
    dialog.setAcceptMode(question.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (!question.patterns.isEmpty())
        dialog.setNameFilter(filterOf(question));
    if (!question.name.isEmpty())
        dialog.selectFile(question.name);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

FNDialog::FNDialog(FileDialog dialog, Prompts& prompts, QWidget* parent)
    : QWidget(parent)
    , m_dialog(std::move(dialog))
    , m_prompts(prompts)
    , m_button(new BoxControl(u"..."_s, this)) {
    m_button->setObjectName(u"Command1"_s);
    m_button->setAccessibleName(tr("Choose another file")); // as long as there is no title
    m_button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_button);
    setFocusProxy(m_button);
    connect(m_button, &BoxControl::clicked, this, &FNDialog::clicked);
    connect(m_button, &BoxControl::mousePressed, this, &FNDialog::mousePressed);
    connect(m_button, &BoxControl::mouseMoved, this, &FNDialog::mouseMoved);
    connect(m_button, &BoxControl::mouseReleased, this, &FNDialog::mouseReleased);
    connect(m_button, &BoxControl::keyPressed, this, &FNDialog::keyPressed);
    connect(m_button, &BoxControl::keyReleased, this, &FNDialog::keyReleased);
}

void FNDialog::setTitle(const QString& title) {
    m_title = title;
    m_button->setAccessibleName(title); // the caption says nothing to whoever cannot see it
}

std::filesystem::path FNDialog::GetFileName(const QString& mode) {
    const CurrentDirectoryKeeper keeper;
    const bool saving = mode.compare(QLatin1String("SAVE"), Qt::CaseInsensitive) == 0;
    return accepted(m_dialog(question(saving), window()));
}

FileQuestion FNDialog::question(bool saving) const {
    QString folder = m_defaultDir;
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    return {m_title,
            folder,
            m_fileTypesName % u" ("_s % m_fileTypes % QChar(u')'),
            patternsIn(m_fileTypes),
            saving,
            saving ? m_suggestion : QString()};
}

std::filesystem::path FNDialog::accepted(const QString& path) {
    if (path.isEmpty())
        return {};
    const QString full = QDir::isAbsolutePath(path) ? path : QDir::current().filePath(path);
    std::filesystem::path exact = exactPath(full);
    QString problem;
    if (full.size() > LongestPath)
        problem =
            u"The path of this file is longer than %1 characters, so it cannot be used:\r\n"_s.arg(
                LongestPath);
    else if (exact.empty())
        problem = u"The name of this file is not valid UTF-8 text, so it cannot be used:\r\n"_s;
    else
        return exact;
    m_prompts.message(problem.append(full).toStdString(), style::Critical);
    return {};
}

FNDialog* makeFilePicker(const FileDialog& ask, Prompts& prompts, QWidget* parent) {
    auto* picker = named(u"gf1"_s, new FNDialog(ask, prompts, parent));
    picker->setToolTip(FNDialog::tr("Choose another file"));
    picker->setFixedSize(dialog::ButtonSize.height(), dialog::ButtonSize.height());
    return picker;
}

std::filesystem::path choosePuzzleFile(FNDialog& picker, const std::filesystem::path& folder,
                                       FileUse use, std::string_view title) {
    picker.setTitle(QString::fromUtf8(title));
    picker.setFileTypes(u"*.txt;*.dat;*.tessaly"_s);
    picker.setFileTypesName(u"Tessaly Files"_s);
    picker.setDefaultDir(pathText(folder));
    picker.setSuggestion({});
    return picker.GetFileName(use == FileUse::Save ? u"SAVE"_s : u"OPEN"_s);
}

bool mayReplace(const std::filesystem::path& path, Prompts& prompts) {
    return !holdsSomething(path) ||
           prompts.message("OverWrite file: " + path.native() + " ?",
                           "vbyesno+vbquestion+vbdefaultbutton2") == answer::Yes;
}

std::filesystem::path chooseOutputFile(const OutputFileQuestion& question, FNDialog& picker,
                                       Prompts& prompts) {
    picker.setTitle(question.title);
    picker.setFileTypes(question.types);
    picker.setFileTypesName(question.typesName);
    picker.setDefaultDir(question.folder);
    picker.setSuggestion(question.name);
    std::filesystem::path path = picker.GetFileName(u"SAVE"_s);
    if (path.empty())
        return {};
    const auto endsIn = [&path](const QString& extension) {
        return pathText(path).endsWith(extension, Qt::CaseInsensitive);
    };
    if (std::none_of(question.extensions.begin(), question.extensions.end(), endsIn))
        path += pathOf(question.extensions.front());
    return mayReplace(path, prompts) ? path : std::filesystem::path();
}

} // namespace tessaly
