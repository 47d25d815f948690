#include "app/screenshot.h"

#include "ui/drawing/picture_document.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <ostream>

namespace tessaly {

int PrintedPrompts::message(std::string_view text, std::string_view) {
    std::string line(text);
    std::erase(line, '\r');
    std::replace(line.begin(), line.end(), '\n', ' ');
    m_out << "tessaly: " << line << '\n';
    m_saidAnything = true;
    return 0;
}

Outcome writeScreenshot(QWidget& window, const std::filesystem::path& path) {
    QApplication::processEvents();
    return writePicture(path, window.grab().toImage(), PictureFormat::Png);
}

} // namespace tessaly
