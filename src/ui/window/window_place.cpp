#include "ui/window/window_place.h"

#include "core/base/data_files.h"
#include "core/files/file_access.h"

#include <QWidget>

namespace tessaly {
namespace {

constexpr std::size_t LargestFile = 4096;

} // namespace

void rememberWindowPlace(const QWidget& window, const std::string& programFolder) {
    const std::string content = window.saveGeometry().toBase64().toStdString() + "\r\n";
    static_cast<void>(replaceFile(programFolder + WindowPlaceFile, content));
}

void restoreWindowPlace(QWidget& window, const std::string& programFolder) {
    std::string content;
    if (!readSmallFile(programFolder + WindowPlaceFile, LargestFile, content).ok())
        return;
    const auto place = QByteArray::fromBase64(QByteArray::fromStdString(content));
    // Qt takes a place that was cut short for a window of no size.
    if (place.size() == window.saveGeometry().size())
        window.restoreGeometry(place);
}

} // namespace tessaly
