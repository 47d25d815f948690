#pragma once

#include "core/base/prompts.h"
#include "core/play/display.h"

#include <QImage>
#include <QString>

class QWidget;

namespace tessaly {

class FNDialog;
struct Session;

/// What the window lends to the commands that copy pictures.
struct ExportWindow {
    QWidget* window;
    Display& display;
    Prompts& prompts;
    FNDialog& picker;
};

/// Pictures for other programs: of the board on the clipboard, of the window in a file.
class ExportCommands {
public:
    ExportCommands(const Session& session, const ExportWindow& window);

    /// Puts a picture of the board on the clipboard (`mnuclippuz`), or of its solution
    /// (`mnuclipsol`), and the puzzle's record as text.
    void CopyBoard(bool solution);
    /// Writes a picture of the whole window to a file that the user chooses (`mnucapwin`).
    void mnucapwin();

private:
    const Session& m_session;
    ExportWindow m_window;
};

/// Puts a picture on the clipboard, and beside it a text, unless that is empty.
void CopyPictureToClipboard(const QImage& picture, const QString& text = {});

} // namespace tessaly
