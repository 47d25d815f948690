#include "core/files/file_copying.h"

#include "core/files/locked_writing.h"

#include <algorithm>
#include <fcntl.h>
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

} // namespace tessaly
