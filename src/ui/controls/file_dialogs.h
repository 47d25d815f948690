#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace tessaly {

/// What a dialog for a file's name shows.
struct FileQuestion {
    QString title;
    /// Where it opens; ends in a separator.
    QString folder;
    /// What kind of files it lists, as shown to the user, and their patterns ("*.txt"). Without
    /// patterns it lists every file.
    QString kind;
    QStringList patterns;
};

/// Whom a file's name is asked from. Both questions answer the full path, or nothing when the user
/// thought better of it; neither asks whether the file exists or may be replaced.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    virtual QString nameToOpen(const FileQuestion& question, QWidget* owner) = 0;
    virtual QString nameToSave(const FileQuestion& question, QWidget* owner) = 0;
};

/// The dialogs of the desktop.
class PlatformFileDialogs : public FileDialogs {
public:
    QString nameToOpen(const FileQuestion& question, QWidget* owner) override;
    QString nameToSave(const FileQuestion& question, QWidget* owner) override;
};

} // namespace tessaly
