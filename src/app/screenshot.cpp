// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/screenshot.h"

#include "board/file_access.h"

#include <QApplication>
#include <QBuffer>
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

Outcome writeScreenshot(QWidget& window, const std::string& path) {
    QApplication::processEvents();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!window.grab().save(&buffer, "PNG"))
        return Outcome::failed(path + ": the picture cannot be made");
    return replaceFile(path,
                       std::string_view(png.constData(), static_cast<std::size_t>(png.size())));
}

} // namespace tessaly
