#include "core/board/record_lines.h"

#include "core/board/puzzle_record.h"
#include "core/files/line_reader.h"

namespace tessaly {

Outcome readRecordLines(const std::filesystem::path& path,
                        const std::function<bool(RecordLine)>& visit) {
    LineReader reader(2 * RecordLengthWithProgress);
    if (Outcome opened = reader.open(path); !opened.ok())
        return opened;
    int lastVisited = 0;
    for (;;) {
        const LineReader::Result result = reader.next();
        if (result == LineReader::Result::Failed)
            return reader.problem();
        if (result == LineReader::Result::End)
            return Outcome::done();
        const bool isOverLong = result == LineReader::Result::OverLong;
        const bool isBlank =
            !isOverLong && reader.line().find_first_not_of(' ') == std::string_view::npos;
        if (isBlank)
            continue;
        for (++lastVisited; lastVisited < reader.number(); ++lastVisited)
            if (!visit({lastVisited, {}, false}))
                return Outcome::done();
        if (!visit({lastVisited, reader.line(), isOverLong}))
            return Outcome::done();
    }
}

std::string lineProblem(const std::filesystem::path& path, int number, std::string_view problem) {
    return path.native() + ": line " + std::to_string(number) + ": " + std::string(problem);
}

} // namespace tessaly
