#include "core/board/puzzle_file.h"

#include "core/board/puzzle_record.h"
#include "core/files/file_access.h"
#include "core/files/line_reader.h"
#include "core/files/locked_file.h"

#include <algorithm>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

/// Longer lines are no records. Blanks that another program left behind one are forgiven.
constexpr std::int64_t LongestLine = 4096;

Outcome inFile(const fs::path& path, std::string_view what) {
    return Outcome::failed(path.native() + ": " + std::string(what));
}

Outcome inLine(const fs::path& path, int number, std::string_view what) {
    return inFile(path, "line " + std::to_string(number) + ": " + std::string(what));
}

Outcome noSuchPuzzle(const fs::path& path, int number, int count) {
    return inFile(path, "there is no puzzle " + std::to_string(number) + " among its " +
                            std::to_string(count));
}

Outcome cannotBeRead(const fs::path& path, const Outcome& why) {
    return inFile(path, "cannot be read: " + why.problem);
}

PuzzleRead notRead(const Outcome& why) {
    return {PuzzleRead::Status::CannotRead, why.problem, 0, {}};
}

PuzzleRead noRecord(const Outcome& why, int count) {
    return {PuzzleRead::Status::NoRecord, why.problem, count, {}};
}

} // namespace

Outcome PuzzleFiles::updateIndex(const fs::path& path, const FileDescriptor& file) {
    const Outcome updated = m_index.update(file, m_yield);
    return updated.ok() ? updated : cannotBeRead(path, updated);
}

Outcome PuzzleFiles::openIndexed(const fs::path& path, FileDescriptor& file) {
    if (Outcome opened = openForReading(path, file); !opened.ok())
        return opened;
    const auto state = FileState::of(file);
    if (state && !m_index.isOf(*state))
        removeLeftoverOf(path);
    return updateIndex(path, file);
}

Outcome PuzzleFiles::CountLines(const fs::path& path, int& count) {
    FileDescriptor file;
    Outcome opened = openIndexed(path, file);
    if (opened.ok())
        count = m_index.count();
    return opened;
}

/// The text of a line of the file that is indexed; of an over-long one only the span.
Outcome PuzzleFiles::readLine(const fs::path& path, const FileDescriptor& file, int number,
                              LineSpan& span, std::string& line) {
    if (Outcome found = m_index.find(file, number, span); !found.ok())
        return cannotBeRead(path, found);
    line.assign(static_cast<std::size_t>(std::min(span.end - span.begin, LongestLine)), '\0');
    if (readAt(file, line.data(), line.size(), span.begin) < 0)
        return fileProblem(path, "cannot be read");
    if (line.ends_with('\n'))
        line.pop_back();
    line.resize(withoutReturn(line).size());
    return Outcome::done();
}

PuzzleRead PuzzleFiles::ReadPuzzle(const fs::path& path, int number, Board& board) {
    FileDescriptor file;
    if (const Outcome opened = openIndexed(path, file); !opened.ok())
        return notRead(opened);
    const int count = m_index.count();
    if (number < 1 || number > count)
        return noRecord(noSuchPuzzle(path, number, count), count);
    LineSpan span;
    std::string line;
    if (const Outcome read = readLine(path, file, number, span, line); !read.ok())
        return notRead(read);
    const Outcome read = span.end - span.begin > LongestLine
                             ? Outcome::failed("it is longer than any record")
                             : readRecord(line, board);
    if (!read.ok())
        return noRecord(inLine(path, number, read.problem), count);
    return {PuzzleRead::Status::Done, {}, count, std::move(line)};
}

Outcome PuzzleFiles::WritePuzzle(const fs::path& path, int mode, const Board& board) {
    constexpr int ReplaceMode = 1;
    int number = 0;
    if (mode == ReplaceMode)
        return replaceFile(path, PuzzleRecord(board) + std::string(LineEnd));
    return appendPuzzle(path, PuzzleRecord(board), number);
}

Outcome PuzzleFiles::appendPuzzle(const fs::path& path, std::string_view record, int& number) {
    const std::string line = std::string(record) + std::string(LineEnd);
    LockedFile file;
    if (Outcome locked = file.lock(path); !locked.ok())
        return locked;
    if (!file.exists()) {
        number = 1;
        return appendLocked(file, line);
    }
    if (Outcome indexed = updateIndex(path, file.file()); !indexed.ok())
        return indexed;
    number = m_index.count() + 1;
    if (!m_index.hasBlankTail())
        return appendInPlace(file, line);
    return rewriteWithMore(file, [&](const ContentSink& sink) { return sink.write(line); });
}

Outcome PuzzleFiles::appendInPlace(const LockedFile& file, const std::string& line) {
    Outcome appended = appendLocked(file, line);
    // What the index misses it reads when it is asked next; the record is saved already.
    if (appended.ok())
        static_cast<void>(m_index.updateAppended(file.file()).ok());
    return appended;
}

/// Blank lines at the end are no puzzles: new ones take their place, and so get their numbers.
Outcome PuzzleFiles::rewriteWithMore(const LockedFile& file, const ContentWriter& more) {
    LineSpan kept{0, file.state().size};
    std::string_view missing;
    if (m_index.hasBlankTail()) {
        if (Outcome found = m_index.findEnd(file.file(), kept.end); !found.ok())
            return cannotBeRead(file.place().path, found);
    } else if (Outcome looked = missingLineEnd(file, missing); !looked.ok()) {
        return looked;
    }
    return replaceLocked(file, [&](const ContentSink& sink) {
        Outcome outcome = copyPart(file, kept, sink, m_yield);
        if (outcome.ok() && !missing.empty())
            outcome = sink.write(missing);
        return outcome.ok() ? more(sink) : outcome;
    });
}

Outcome PuzzleFiles::appendPuzzles(const fs::path& path, const ContentWriter& writer) {
    LockedFile file;
    if (Outcome locked = file.lock(path); !locked.ok())
        return locked;
    if (!file.exists())
        return replaceLocked(file, writer);
    const Outcome indexed = updateIndex(path, file.file());
    return indexed.ok() ? rewriteWithMore(file, writer) : indexed;
}

Outcome PuzzleFiles::DeletePuzzle(const fs::path& path, int number, std::string_view expected,
                                  const fs::path& programFolder) {
    LockedFile file;
    if (Outcome locked = file.lock(path); !locked.ok())
        return locked;
    if (!file.exists())
        return fileProblem(path, "cannot be read", ENOENT);
    if (Outcome indexed = updateIndex(path, file.file()); !indexed.ok())
        return indexed;
    if (number < 1 || number > m_index.count())
        return noSuchPuzzle(path, number, m_index.count());
    LineSpan span;
    std::string line;
    if (Outcome read = readLine(path, file.file(), number, span, line); !read.ok())
        return read;
    if (line != expected)
        return inLine(path, number,
                      "is no longer the puzzle shown, because another program has changed the "
                      "file; nothing was deleted");
    return removeLine(file, span, programFolder / TemporaryPuzzleFile, m_yield);
}

} // namespace tessaly
