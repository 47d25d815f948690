#pragma once

#include "core/base/prompts.h"
#include "ui/controls/box_control.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <string>

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
    /// Whether the file is to be written.
    bool saving = false;
    /// The name that is offered; empty for none.
    QString name = {};
};

/// Asks for a file's name: the answer is the full path, or nothing when the user thought better of
/// it. Whether the file exists, or may be replaced, is not asked.
using FileDialog = std::function<QString(const FileQuestion& question, QWidget* owner)>;

/// The dialog of the desktop.
QString askPlatform(const FileQuestion& question, QWidget* owner);

/// A small button whose form asks it, when it is clicked, for the name of a file to open or to
/// save to.
class FNDialog : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString FileTypes READ fileTypes WRITE setFileTypes)
    Q_PROPERTY(QString FileTypesName READ fileTypesName WRITE setFileTypesName)
    Q_PROPERTY(QString DefaultDir READ defaultDir WRITE setDefaultDir)
    Q_PROPERTY(QString Title READ title WRITE setTitle)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(tessaly::Picture Picture READ picture WRITE setPicture)
    Q_PROPERTY(QColor BackColor READ backColour WRITE setBackColour)
    Q_PROPERTY(QColor ForeColor READ foreColour WRITE setForeColour)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ font WRITE setFont)

public:
    /// `prompts` must outlive the control; it tells the user why a name cannot be taken.
    FNDialog(FileDialog dialog, Prompts& prompts, QWidget* parent = nullptr);

    /// Shows the dialog and answers the chosen file's full path; nothing when the user cancels, or
    /// chooses a file whose name cannot be taken. The mode "SAVE", in any capitals, asks for a file
    /// to save to, every other one for a file to open. The process stays in its current directory.
    std::filesystem::path GetFileName(const QString& mode);

    /// The patterns of the files to list, separated by ";". None at first: every file.
    QString fileTypes() const { return m_fileTypes; }
    void setFileTypes(const QString& types) { m_fileTypes = types; }
    QString fileTypesName() const { return m_fileTypesName; }
    void setFileTypesName(const QString& name) { m_fileTypesName = name; }

    /// Where the dialog opens. None at first: the user's documents.
    QString defaultDir() const { return m_defaultDir; }
    void setDefaultDir(const QString& folder) { m_defaultDir = folder; }

    /// The name that is offered for a file to save to. None at first.
    void setSuggestion(const QString& name) { m_suggestion = name; }

    QString title() const { return m_title; }
    void setTitle(const QString& title);

    QString caption() const { return m_button->text(); }
    void setCaption(const QString& caption) { m_button->setText(caption); }
    Picture picture() const { return m_button->picture(); }
    void setPicture(Picture picture) { m_button->setPicture(picture); }
    QColor backColour() const { return m_button->faceColour(); }
    void setBackColour(const QColor& colour) { m_button->setFaceColour(colour); }
    QColor foreColour() const { return m_button->textColour(); }
    void setForeColour(const QColor& colour) { m_button->setTextColour(colour); }

Q_SIGNALS:
    // What happens to the button.
    void clicked();
    void mousePressed(QMouseEvent* event);
    void mouseMoved(QMouseEvent* event);
    void mouseReleased(QMouseEvent* event);
    void keyPressed(QKeyEvent* event);
    void keyReleased(QKeyEvent* event);

private:
    FileQuestion question(bool saving) const;
    std::filesystem::path accepted(const QString& path);

    FileDialog m_dialog;
    Prompts& m_prompts;
    BoxControl* m_button;
    QString m_fileTypes;
    QString m_fileTypesName;
    QString m_defaultDir;
    QString m_suggestion;
    QString m_title;
};

/// The square button `gf1` beside the name of a file, which asks for another one.
FNDialog* makeFilePicker(const FileDialog& ask, Prompts& prompts, QWidget* parent);

/// Asks for a puzzle file; the dialog opens in `folder`. Empty when none was chosen.
std::filesystem::path choosePuzzleFile(FNDialog& picker, const std::filesystem::path& folder,
                                       FileUse use, std::string_view title);

/// Which file something is to be written to.
struct OutputFileQuestion {
    QString title;
    QString types;
    QString typesName;
    QString folder;
    /// What the name may end in. Behind another one the first of them is put.
    QStringList extensions;
    /// The name that is offered; empty for none.
    QString name = {};
};

/// Whether a file may be written to: always when there is nothing in it, else if the user says so.
bool mayReplace(const std::filesystem::path& path, Prompts& prompts);

/// Asks for a file to write to, and once more when there is something in it already. Empty when the
/// user thinks better of it.
std::filesystem::path chooseOutputFile(const OutputFileQuestion& question, FNDialog& picker,
                                       Prompts& prompts);

} // namespace tessaly
