#include "ui/controls/output_file_choice.h"

#include "ui/controls/file_name_picker.h"

#include <QFileInfo>

#include <filesystem>

namespace tessaly {
namespace {

bool holdsSomething(const std::string& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    return !error && size != 0;
}

} // namespace

std::string chooseOutputFile(const OutputFileQuestion& question, FNDialog& picker,
                             Prompts& prompts) {
    picker.setTitle(question.title);
    picker.setFileTypes(question.types);
    picker.setFileTypesName(question.typesName);
    picker.setDefaultDir(question.folder);
    QString chosen = picker.GetFileName(QStringLiteral("SAVE"));
    if (chosen.isEmpty())
        return {};
    if (QFileInfo(chosen).suffix().isEmpty())
        chosen += question.extension;
    const std::string path = chosen.toStdString();
    const bool wanted =
        !holdsSomething(path) ||
        prompts.message("OverWrite file: " + path + " ?", "vbyesno+vbquestion") == answer::Yes;
    return wanted ? path : std::string();
}

} // namespace tessaly
