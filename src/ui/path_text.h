// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tessaly {

/// Paths are bytes; on the screen they are UTF-8.
inline QString pathText(std::string_view path) {
    return QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size()));
}

/// The file name of a path: what stands after its last "/".
inline std::string_view fileNameOf(std::string_view path) {
    return path.substr(path.find_last_of('/') + 1);
}

} // namespace tessaly
