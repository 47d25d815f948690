#include "core/files/file_access.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tessaly {
namespace {

/// A file whose content is written over from its start.
class OverwrittenFile {
public:
    Outcome open(const std::filesystem::path& path);
    bool isOpen() const { return m_file.isOpen(); }
    ContentSink sink() const { return {m_file, m_locked.place().path}; }
    /// Cuts off what is left of a longer old content.
    Outcome finish(std::int64_t size) const;

private:
    LockedFile m_locked;
    FileDescriptor m_file;
};

Outcome OverwrittenFile::open(const std::filesystem::path& path) {
    if (Outcome locked = m_locked.lock(path); !locked.ok())
        return locked;
    constexpr int Flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const FilePlace& place = m_locked.place();
    m_file = FileDescriptor(
        retried([&] { return ::openat(place.folder.get(), place.name.c_str(), Flags, 0666); }));
    return m_file.isOpen() ? checkRegular(m_file, path) : fileProblem(path, "cannot be written");
}

Outcome OverwrittenFile::finish(std::int64_t size) const {
    if (retried([&] { return ::ftruncate(m_file.get(), size); }) != 0)
        return fileProblem(m_locked.place().path, "cannot be shortened");
    return Outcome::done();
}

/// Calls `take` for each piece of a part of a file.
template <class Take>
Outcome forEachPiece(const LockedFile& file, LineSpan part, const Yield& yield, const Take& take) {
    constexpr auto PieceSize = std::int64_t{256} * 1024;
    std::string piece;
    while (part.begin < part.end) {
        piece.resize(static_cast<std::size_t>(std::min(PieceSize, part.end - part.begin)));
        const auto got = readAt(file.file(), piece.data(), piece.size(), part.begin);
        if (got < static_cast<std::int64_t>(piece.size()))
            return fileProblem(file.place().path, "cannot be read", got < 0 ? errno : EIO);
        if (Outcome taken = take(piece); !taken.ok())
            return taken;
        part.begin += got;
        if (yield)
            yield();
    }
    return Outcome::done();
}

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

Outcome copyPart(const LockedFile& file, LineSpan part, const ContentSink& sink,
                 const Yield& yield) {
    return forEachPiece(file, part, yield,
                        [&](std::string_view piece) { return sink.write(piece); });
}

Outcome removeLine(const LockedFile& file, LineSpan line, const std::filesystem::path& copy,
                   const Yield& yield) {
    OverwrittenFile second;
    std::error_code error;
    if (!std::filesystem::equivalent(copy, file.place().path, error))
        if (Outcome opened = second.open(copy); !opened.ok())
            return opened;
    return replaceLocked(file, [&](const ContentSink& sink) {
        const auto takeTwice = [&](std::string_view piece) {
            Outcome written = sink.write(piece);
            return written.ok() && second.isOpen() ? second.sink().write(piece) : written;
        };
        const auto size = file.state().size;
        for (const LineSpan part : {LineSpan{0, line.begin}, LineSpan{line.end, size}})
            if (Outcome copied = forEachPiece(file, part, yield, takeTwice); !copied.ok())
                return copied;
        return second.isOpen() ? second.finish(size - (line.end - line.begin)) : Outcome::done();
    });
}

bool FileExists(const std::filesystem::path& path) {
    // The library's own test takes a call that a signal interrupted for a file that is not there.
    struct stat status {};
    return path.has_filename() && checkName(path).ok() &&
           retried([&] { return ::stat(path.c_str(), &status); }) == 0 && S_ISREG(status.st_mode);
}

Outcome replaceFile(const std::filesystem::path& path, std::string_view content) {
    return replaceFile(path, [content](const ContentSink& sink) { return sink.write(content); });
}

Outcome replaceFile(const std::filesystem::path& path, const ContentWriter& writer) {
    LockedFile file;
    if (Outcome locked = file.lock(path); !locked.ok())
        return locked;
    return replaceLocked(file, writer);
}

Outcome appendLines(const std::filesystem::path& path, std::string_view wholeLines) {
    LockedFile file;
    if (Outcome locked = file.lock(path); !locked.ok())
        return locked;
    return appendLocked(file, wholeLines);
}

Outcome readSmallFile(const std::filesystem::path& path, std::size_t limit, std::string& content) {
    FileDescriptor file;
    if (Outcome opened = openForReading(path, file); !opened.ok())
        return opened;
    return readSmall(file, path, limit, content);
}

Outcome rewriteSmallFile(const std::filesystem::path& path, std::size_t limit,
                         const std::function<Outcome(std::string& content)>& change) {
    LockedFile file;
    std::string content;
    if (Outcome locked = file.lock(path); !locked.ok())
        return locked;
    if (file.exists())
        if (Outcome read = readSmall(file.file(), path, limit, content); !read.ok())
            return read;
    if (Outcome changed = change(content); !changed.ok())
        return changed;
    return replaceLocked(file, [&](const ContentSink& sink) { return sink.write(content); });
}

void removeLeftovers(const std::filesystem::path& folder) {
    FilePlace place;
    if (!FilePlace::find(folder / "any", place).ok())
        return;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        if (const auto name = entry->path().filename().native(); isScratchName(name))
            removeLeftover(place.folder, name);
}

void removeLeftoverOf(const std::filesystem::path& path) {
    FilePlace place;
    if (FilePlace::find(path, place).ok())
        removeLeftover(place.folder, scratchNameOf(place.name));
}

void surviveFileSizeLimit() {
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace tessaly
