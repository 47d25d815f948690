#include "core/board/puzzle_store.h"

#include "core/base/text.h"
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

Outcome noSuchPuzzle(const fs::path& path, int number, int count) {
    return Outcome::failed(path.native() + ": there is no puzzle " + std::to_string(number) +
                           " among its " + std::to_string(count));
}

Outcome cannotBeRead(const fs::path& path, const Outcome& why) {
    return Outcome::failed(path.native() + ": cannot be read: " + why.problem);
}

PuzzleRead notRead(const Outcome& why) {
    return {PuzzleRead::Status::CannotRead, why.problem};
}

ContentWriter writing(std::string_view content) {
    return [content](const ContentSink& sink) { return sink.write(content); };
}

/// Writes a part of a file into the sink, calling `yield` for every piece.
Outcome copyPart(const LockedFile& file, LineSpan part, const ContentSink& sink,
                 const Yield& yield) {
    constexpr auto PieceSize = std::int64_t{256} * 1024;
    std::string piece;
    while (part.begin < part.end) {
        piece.resize(static_cast<std::size_t>(std::min(PieceSize, part.end - part.begin)));
        const auto got = readAt(file.file(), piece.data(), piece.size(), part.begin);
        if (got < static_cast<std::int64_t>(piece.size()))
            return fileProblem(file.place().path, "cannot be read", got < 0 ? errno : EIO);
        if (Outcome written = sink.write(piece); !written.ok())
            return written;
        part.begin += got;
        if (yield)
            yield();
    }
    return Outcome::done();
}

} // namespace

std::string lineProblem(const fs::path& path, int number, std::string_view problem) {
    return path.native() + ": line " + std::to_string(number) + ": " + std::string(problem);
}

Outcome RecordLine::read(Board& board) const {
    return isOverLong ? Outcome::failed(std::string(OverLongProblem)) : readRecord(text, board);
}

Outcome forEachRecord(const fs::path& path, const std::function<bool(RecordLine)>& visit) {
    LineReader reader(LongestLine);
    if (Outcome opened = reader.open(path); !opened.ok())
        return opened;
    int lastVisited = 0;
    for (;;) {
        const LineReader::Result result = reader.next();
        if (result == LineReader::Result::Failed)
            return reader.problem();
        const bool isTorn = !reader.isEnded() && isRecordCutShort(reader.line());
        if (result == LineReader::Result::End || isTorn)
            return Outcome::done();
        const bool isOverLong = result == LineReader::Result::OverLong;
        if (!isOverLong && isBlank(reader.line()))
            continue;
        for (++lastVisited; lastVisited < reader.number(); ++lastVisited)
            if (!visit({lastVisited, {}, false}))
                return Outcome::done();
        if (!visit({lastVisited, reader.line(), isOverLong}))
            return Outcome::done();
    }
}

Outcome readRecordAt(const fs::path& path, int number, Board& board) {
    Outcome outcome = Outcome::failed(lineProblem(path, number, "there is no such record"));
    const Outcome opened = forEachRecord(path, [&](RecordLine line) {
        if (line.number != number)
            return true;
        outcome = line.read(board);
        if (!outcome.ok())
            outcome.problem = lineProblem(path, number, outcome.problem);
        return false;
    });
    return opened.ok() ? outcome : opened;
}

Outcome PuzzleStore::updateIndex(const fs::path& path, const FileDescriptor& file) {
    if (Outcome updated = m_index.update(file, m_yield); !updated.ok())
        return cannotBeRead(path, updated);
    m_endsTorn = false;
    if (m_index.endsInLineEnd() || m_index.count() == 0)
        return Outcome::done();
    LineSpan span;
    std::string line;
    Outcome read = readLine(path, file, m_index.count(), span, line);
    m_endsTorn = read.ok() && isRecordCutShort(line);
    return read;
}

Outcome PuzzleStore::openIndexed(const fs::path& path, FileDescriptor& file) {
    if (Outcome opened = openForReading(path, file); !opened.ok())
        return opened;
    return updateIndex(path, file);
}

Outcome PuzzleStore::CountLines(const fs::path& path, int& count) {
    FileDescriptor file;
    Outcome opened = openIndexed(path, file);
    if (opened.ok())
        count = this->count();
    return opened;
}

/// The text of a line of the file that is indexed; of an over-long one only the span.
Outcome PuzzleStore::readLine(const fs::path& path, const FileDescriptor& file, int number,
                              LineSpan& span, std::string& line) {
    if (Outcome found = m_index.find(file, number, span); !found.ok())
        return cannotBeRead(path, found);
    line.assign(static_cast<std::size_t>(std::min(span.end - span.begin, LongestLine)), '\0');
    if (readAt(file, line.data(), line.size(), span.begin) < 0)
        return fileProblem(path, "cannot be read");
    line.resize(withoutLineEnd(line).size());
    return Outcome::done();
}

PuzzleRead PuzzleStore::ReadPuzzle(const fs::path& path, int number, Board& board) {
    FileDescriptor file;
    if (const Outcome opened = openIndexed(path, file); !opened.ok())
        return notRead(opened);
    if (number < 1 || number > count())
        return {PuzzleRead::Status::NoRecord, noSuchPuzzle(path, number, count()).problem, count()};
    LineSpan span;
    std::string line;
    if (const Outcome read = readLine(path, file, number, span, line); !read.ok())
        return notRead(read);
    const Outcome read = RecordLine{number, line, span.end - span.begin > LongestLine}.read(board);
    if (!read.ok())
        return {PuzzleRead::Status::NoRecord, lineProblem(path, number, read.problem), count(),
                std::move(line), read.problem};
    return {PuzzleRead::Status::Done, {}, count(), std::move(line)};
}

Outcome PuzzleStore::WritePuzzle(const fs::path& path, int mode, const Board& board) {
    constexpr int ReplaceMode = 1;
    const std::string line = PuzzleRecord(board).append(LineEnd);
    return mode == ReplaceMode ? replaceFile(path, line, m_wait) : appendPuzzles(path, line);
}

Outcome PuzzleStore::appendPuzzle(const fs::path& path, std::string_view record, int& number) {
    return append(path, std::string(record).append(LineEnd), number);
}

Outcome PuzzleStore::appendPuzzles(const fs::path& path, std::string_view wholeLines) {
    int number = 0;
    return append(path, wholeLines, number);
}

/// When another program has put a file in this one's place meanwhile, that one gets the lines too:
/// the name is what the player knows.
Outcome PuzzleStore::append(const fs::path& path, std::string_view wholeLines, int& number) {
    constexpr int MostAttempts = 10;
    for (int attempt = 0; attempt < MostAttempts; ++attempt) {
        bool standsThere = true;
        Outcome outcome = appendOnce(path, wholeLines, number, standsThere);
        if (!outcome.ok() || standsThere)
            return outcome;
    }
    return Outcome::failed(path.native() + ": is replaced by another program again and again");
}

Outcome PuzzleStore::appendOnce(const fs::path& path, std::string_view wholeLines, int& number,
                                bool& standsThere) {
    LockedFile file;
    if (Outcome locked = file.lock(path, m_wait); !locked.ok())
        return locked;
    number = 1;
    if (!file.exists())
        return file.replace(writing(wholeLines), standsThere);
    if (Outcome indexed = updateIndex(path, file.file()); !indexed.ok())
        return indexed;
    number = count() + 1;
    if (m_endsTorn || m_index.hasBlankTail())
        return rewriteWithMore(file, writing(wholeLines));
    if (Outcome appended = file.append(wholeLines); !appended.ok())
        return appended;
    // What the index misses it reads when it is asked next; the lines are saved already.
    static_cast<void>(m_index.updateAppended(file.file()).ok());
    if (!file.checkNamed(standsThere).ok())
        return fileProblem(path, "was saved, but cannot be examined");
    return Outcome::done();
}

/// The new lines stand behind the last record, where they get their numbers.
Outcome PuzzleStore::rewriteWithMore(const LockedFile& file, const ContentWriter& more) {
    LineSpan kept{0, file.state().size};
    std::string_view missing;
    if (m_endsTorn || m_index.hasBlankTail()) {
        if (Outcome found = m_index.findStart(file.file(), count() + 1, kept.end); !found.ok())
            return cannotBeRead(file.place().path, found);
    } else if (Outcome looked = file.missingLineEnd(missing); !looked.ok()) {
        return looked;
    }
    return file.replace([&](const ContentSink& sink) {
        Outcome outcome = copyPart(file, kept, sink, m_yield);
        if (outcome.ok() && !missing.empty())
            outcome = sink.write(missing);
        return outcome.ok() ? more(sink) : outcome;
    });
}

Outcome PuzzleStore::appendPuzzles(const fs::path& path, const ContentWriter& writer) {
    LockedFile file;
    if (Outcome locked = file.lock(path, m_wait); !locked.ok())
        return locked;
    if (!file.exists())
        return file.replace(writer);
    const Outcome indexed = updateIndex(path, file.file());
    return indexed.ok() ? rewriteWithMore(file, writer) : indexed;
}

Outcome PuzzleStore::DeletePuzzle(const fs::path& path, int number, std::string_view expected) {
    LockedFile file;
    if (Outcome locked = file.lock(path, m_wait); !locked.ok())
        return locked;
    if (!file.exists())
        return fileProblem(path, "cannot be read", ENOENT);
    if (Outcome indexed = updateIndex(path, file.file()); !indexed.ok())
        return indexed;
    if (number < 1 || number > count())
        return noSuchPuzzle(path, number, count());
    LineSpan span;
    std::string line;
    if (Outcome read = readLine(path, file.file(), number, span, line); !read.ok())
        return read;
    if (line != expected)
        return Outcome::failed(lineProblem(
            path, number,
            "is no longer the puzzle shown, because another program has changed the file; nothing "
            "was deleted"));
    return file.replace([&](const ContentSink& sink) {
        Outcome copied = copyPart(file, {0, span.begin}, sink, m_yield);
        return copied.ok() ? copyPart(file, {span.end, file.state().size}, sink, m_yield) : copied;
    });
}

} // namespace tessaly
