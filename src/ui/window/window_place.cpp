#include "ui/window/window_place.h"

#include "core/files/file_access.h"
#include "core/session/program_folder.h"

#include <QByteArray>
#include <QWidget>

#include <string>

namespace tessaly {

void rememberWindowPlace(const QWidget& window, const std::filesystem::path& programFolder) {
    const std::string content = window.saveGeometry().toBase64().toStdString() + "\r\n";
    static_cast<void>(replaceFile(programFolder / WindowPlaceFile, content));
}

void restoreWindowPlace(QWidget& window, const std::filesystem::path& programFolder) {
    constexpr std::size_t LargestPlace = 4096; // bytes
    std::string content;
    if (!readSmallFile(programFolder / WindowPlaceFile, LargestPlace, content).ok())
        return;
    const auto place = QByteArray::fromBase64(QByteArray::fromStdString(content));
    // Qt takes a place that was cut short for a window of no size.
    if (place.size() == window.saveGeometry().size())
        window.restoreGeometry(place);
}

} // namespace tessaly
