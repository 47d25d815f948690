#pragma once

#include "core/files/file_descriptor.h"

#include <functional>

namespace tessaly {

/// Takes the content of a file that is being written, piece by piece.
class ContentSink {
public:
    ContentSink(const FileDescriptor& file, const std::filesystem::path& path)
        : m_file(file)
        , m_path(path) {}

    /// Writes all of `piece` or fails. Give large pieces: each is a system call.
    Outcome write(std::string_view piece) const;

private:
    const FileDescriptor& m_file;
    const std::filesystem::path& m_path;
};

/// Writes the whole content of a file into the sink it is given.
using ContentWriter = std::function<Outcome(const ContentSink&)>;

} // namespace tessaly
