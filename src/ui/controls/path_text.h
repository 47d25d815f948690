#pragma once

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly {

/// The texts of the core as those of the screen.
inline QString textOf(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Paths are bytes; on the screen they are UTF-8.
inline QString pathText(const std::filesystem::path& path) {
    return textOf(path.native());
}
inline std::filesystem::path pathOf(const QString& path) {
    return path.toStdString();
}

/// Whether a path from the screen still names the file that was chosen there. A name on the disk
/// that is not UTF-8 arrives with replacement characters in it, and would name another file or
/// none.
bool isExactPath(const QString& path);

/// Why a file of that name cannot be taken, for the player; empty when it can.
QString problemWithName(const QString& path);

} // namespace tessaly
