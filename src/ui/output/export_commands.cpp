#include "ui/output/export_commands.h"

#include "core/board/puzzle_record.h"
#include "core/session/program_folder.h"
#include "core/session/session.h"
#include "ui/controls/file_name_picker.h"
#include "ui/drawing/board_picture.h"
#include "ui/drawing/picture_document.h"
#include "ui/drawing/qt_values.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPixmap>
#include <QWidget>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// Pixels for a board unit: as sharp as on a good screen.
constexpr double CopyScale = 2;

OutputFileQuestion bitmapQuestion(const std::filesystem::path& programFolder) {
    return {u"Select destination file for a bitmap copy of this puzzle"_s,
            u"*.bmp"_s,
            u"Facetto Bitmap Files"_s,
            pathText(programFolder),
            {u".bmp"_s, u".png"_s}};
}

} // namespace

ExportCommands::ExportCommands(const Session& session, const ExportWindow& window)
    : m_session(session)
    , m_window(window) {}

void ExportCommands::CopyBoard(bool solution) {
    const Board& board = m_session.game.board;
    const bool isPuzzle = m_session.puzzle.PuzNum > 0 && m_session.game.hasPuzzle();
    CopyPictureToClipboard(drawImage({board, m_session.appearance, solution}, CopyScale),
                           isPuzzle ? QString::fromStdString(PuzzleRecord(board)) : QString());
    m_window.display.showMessage(solution ? "Solution copied" : "Puzzle copied");
}

void ExportCommands::mnucapwin() {
    const QImage picture = m_window.window->grab().toImage();
    const std::filesystem::path path = chooseOutputFile(bitmapQuestion(m_session.ProgramFolder),
                                                        m_window.picker, m_window.prompts);
    if (path.empty())
        return;
    const Outcome written =
        isOwnFile(m_session.ProgramFolder, path)
            ? Outcome::failed(path.native() + ": the program needs this file")
            : writePicture(path, picture, pictureFormatOf(path), m_window.display.waiting());
    if (written.ok())
        m_window.prompts.message(path.native(), "vbok");
    else
        m_window.prompts.message(written.problem, style::Critical);
}

void CopyPictureToClipboard(const QImage& picture, const QString& text) {
    auto* data = new QMimeData; // the clipboard's from then on
    data->setImageData(picture);
    if (!text.isEmpty())
        data->setText(text);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace tessaly
