#include "core/files/file_access.h"

#include "core/files/locked_file.h"

#include <csignal>
#include <sys/stat.h>

namespace tessaly {
namespace {

Outcome readSmall(const FileDescriptor& file, const std::filesystem::path& path, std::size_t limit,
                  std::string& content) {
    constexpr std::size_t Piece = std::size_t{64} * 1024;
    std::string bytes;
    std::int64_t got = 0;
    do {
        const std::size_t size = bytes.size();
        bytes.resize(size + Piece);
        got = readAt(file, &bytes[size], Piece, static_cast<std::int64_t>(size));
        if (got < 0)
            return fileProblem(path, "cannot be read");
        bytes.resize(size + static_cast<std::size_t>(got));
        if (bytes.size() > limit)
            return Outcome::failed(path.native() + ": is larger than " + std::to_string(limit) +
                                   " bytes");
    } while (got > 0);
    content = std::move(bytes);
    return Outcome::done();
}

} // namespace

bool FileExists(const std::filesystem::path& path) {
    // The library's own test takes a call that a signal interrupted for a file that is not there.
    struct stat status {};
    return path.has_filename() && checkName(path).ok() &&
           retried([&] { return ::stat(path.c_str(), &status); }) == 0 && S_ISREG(status.st_mode);
}

Outcome replaceFile(const std::filesystem::path& path, std::string_view content,
                    const LockWait& wait) {
    const auto write = [content](const ContentSink& sink) { return sink.write(content); };
    return replaceFile(path, write, wait);
}

Outcome replaceFile(const std::filesystem::path& path, const ContentWriter& writer,
                    const LockWait& wait) {
    LockedFile file;
    if (Outcome locked = file.lock(path, wait); !locked.ok())
        return locked;
    return file.replace(writer);
}

Outcome readSmallFile(const std::filesystem::path& path, std::size_t limit, std::string& content) {
    FileDescriptor file;
    if (Outcome opened = openForReading(path, file); !opened.ok())
        return opened;
    return readSmall(file, path, limit, content);
}

Outcome rewriteSmallFile(const std::filesystem::path& path, std::size_t limit,
                         const std::function<Outcome(std::string& content)>& change,
                         const LockWait& wait) {
    LockedFile file;
    std::string content;
    if (Outcome locked = file.lock(path, wait); !locked.ok())
        return locked;
    if (file.exists())
        if (Outcome read = readSmall(file.file(), path, limit, content); !read.ok())
            return read;
    if (Outcome changed = change(content); !changed.ok())
        return changed;
    return file.replace([&](const ContentSink& sink) { return sink.write(content); });
}

void surviveFileSizeLimit() {
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace tessaly
