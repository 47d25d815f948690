#pragma once

#include "core/base/prompts.h"
#include "ui/controls/box_control.h"
#include "ui/controls/file_dialogs.h"

#include <QWidget>

namespace tessaly {

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
    /// Both must outlive the control; `prompts` tells the user why a name cannot be taken.
    FNDialog(FileDialogs& dialogs, Prompts& prompts, QWidget* parent = nullptr);

    /// Shows the dialog and answers the chosen file's full path; nothing when the user cancels, or
    /// chooses a file whose name cannot be taken. The mode "SAVE", in any capitals, asks for a file
    /// to save to, every other one for a file to open. The process stays in its current directory.
    QString GetFileName(const QString& mode);

    /// The patterns of the files to list, separated by ";". None at first: every file.
    QString fileTypes() const { return m_fileTypes; }
    void setFileTypes(const QString& types) { m_fileTypes = types; }
    QString fileTypesName() const { return m_fileTypesName; }
    void setFileTypesName(const QString& name) { m_fileTypesName = name; }

    /// Where the dialog opens. None at first: the user's documents.
    QString defaultDir() const { return m_defaultDir; }
    void setDefaultDir(const QString& folder) { m_defaultDir = folder; }

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
    FileQuestion question() const;
    QString accepted(const QString& path);

    FileDialogs& m_dialogs;
    Prompts& m_prompts;
    BoxControl* m_button;
    QString m_fileTypes;
    QString m_fileTypesName;
    QString m_defaultDir;
    QString m_title;
};

} // namespace tessaly
