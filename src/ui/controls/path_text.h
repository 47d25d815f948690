#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tessaly {

/// Paths are bytes; on the screen they are UTF-8.
inline QString pathText(std::string_view path) {
    return QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size()));
}

/// Whether a path from the screen still names the file that was chosen there. A name on the disk
/// that is not UTF-8 arrives with replacement characters in it, and would name another file or
/// none.
bool isExactPath(const QString& path);

/// Why a file of that name cannot be taken, for the player; empty when it can.
QString problemWithName(const QString& path);

/// The file name of a path: what stands after its last "/".
inline std::string_view fileNameOf(std::string_view path) {
    return path.substr(path.find_last_of('/') + 1);
}

} // namespace tessaly
