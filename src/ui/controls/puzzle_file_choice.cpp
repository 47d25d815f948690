#include "ui/controls/puzzle_file_choice.h"

#include "ui/controls/file_name_picker.h"
#include "ui/controls/path_text.h"

namespace tessaly {

using namespace Qt::StringLiterals;

PuzzleFileChoice::PuzzleFileChoice(FNDialog& picker, std::string programFolder)
    : m_picker(picker)
    , m_programFolder(std::move(programFolder)) {}

std::string PuzzleFileChoice::choose(std::string_view title, const char* mode) {
    m_picker.setTitle(pathText(title));
    m_picker.setFileTypes(u"*.txt;*.dat"_s);
    m_picker.setFileTypesName(u"Tessaly Files"_s);
    m_picker.setDefaultDir(pathText(m_programFolder));
    return m_picker.GetFileName(QString::fromLatin1(mode)).toStdString();
}

std::string PuzzleFileChoice::chooseToOpen(std::string_view title) {
    return choose(title, "OPEN");
}

std::string PuzzleFileChoice::chooseToSave(std::string_view title) {
    return choose(title, "SAVE");
}

} // namespace tessaly
