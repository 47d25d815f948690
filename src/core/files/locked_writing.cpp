#include "core/files/locked_writing.h"

#include "core/files/line_reader.h"
#include "core/files/scratch_file.h"

#include <algorithm>
#include <array>
#include <unistd.h>

namespace tessaly {
namespace {

Outcome takeBack(const LockedFile& file, Outcome problem) {
    const auto cut = [&] { return ::ftruncate(file.file().get(), file.state().size); };
    if (retried(cut) != 0)
        problem.problem += "; a part of what was written may stand at its end";
    return problem;
}

} // namespace

Outcome missingLineEnd(const LockedFile& file, std::string_view& missing) {
    std::array<char, ByteOrderMark.size()> bytes{};
    const auto size = file.state().size;
    const auto tail = std::min<std::int64_t>(size, bytes.size());
    const auto got = readAt(file.file(), bytes.data(), static_cast<std::size_t>(tail), size - tail);
    if (got < tail)
        return fileProblem(file.place().path, "cannot be read", got < 0 ? errno : EIO);
    const std::string_view end(bytes.data(), static_cast<std::size_t>(got));
    const bool holdsNoLine = got == size && (end.empty() || end == ByteOrderMark);
    if (holdsNoLine || end.back() == '\n')
        missing = {};
    else
        missing = end.back() == '\r' ? "\n" : LineEnd;
    return Outcome::done();
}

Outcome replaceLocked(const LockedFile& file, const ContentWriter& writer) {
    ScratchFile scratch(file);
    if (Outcome created = scratch.create(); !created.ok())
        return created;
    if (Outcome written = writer(scratch.sink()); !written.ok())
        return written;
    return scratch.takePlace();
}

Outcome appendLocked(const LockedFile& file, std::string_view wholeLines) {
    if (!file.exists())
        return replaceLocked(file, [&](const ContentSink& sink) { return sink.write(wholeLines); });
    std::string_view missing;
    if (Outcome looked = missingLineEnd(file, missing); !looked.ok())
        return looked;
    std::string addition(missing);
    addition += wholeLines;
    const FilePlace& place = file.place();
    if (Outcome written = ContentSink(file.file(), place.path).write(addition); !written.ok())
        return takeBack(file, written);
    if (retried([&] { return ::fsync(file.file().get()); }) != 0)
        return takeBack(file, fileProblem(place.path, "cannot be flushed to the disk"));
    return Outcome::done();
}

} // namespace tessaly
