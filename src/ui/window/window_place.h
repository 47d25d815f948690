#pragma once

#include <filesystem>

class QWidget;

namespace tessaly {

// Where a window stood on the screen and how large it was, in the file "window.cfg" of the
// program's folder. Nobody is told when it cannot be written or read: the window then opens where
// the desktop puts it, in its own size, and never outside the screens that there are.

void rememberWindowPlace(const QWidget& window, const std::filesystem::path& programFolder);
void restoreWindowPlace(QWidget& window, const std::filesystem::path& programFolder);

} // namespace tessaly
