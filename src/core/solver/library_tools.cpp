#include "core/solver/library_tools.h"

#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"
#include "core/files/line_reader.h"
#include "core/solver/deduction.h"

#include <unordered_set>
#include <vector>

namespace tessaly {
namespace {

/// Whole lines on their way into a file, in pieces of a good size.
class LineWriter {
public:
    explicit LineWriter(const ContentSink& sink)
        : m_sink(sink) {}

    Outcome add(std::string_view line) {
        constexpr std::size_t PieceSize = std::size_t{256} * 1024;
        m_lines += line;
        m_lines += LineEnd;
        return m_lines.size() < PieceSize ? Outcome::done() : flush();
    }
    Outcome flush() {
        Outcome written = m_sink.write(m_lines);
        m_lines.clear();
        return written;
    }

private:
    const ContentSink& m_sink;
    std::string m_lines;
};

/// Reads every record onto a board and hands both to `take`. The first one that is broken or that
/// `take` cannot go on after ends it.
Outcome forEachPuzzle(const std::filesystem::path& path, const KeepGoing& keepGoing,
                      const std::function<Outcome(std::string_view line, Board& board)>& take) {
    Board board;
    Outcome outcome;
    const Outcome read = forEachRecord(path, [&](RecordLine line) {
        outcome = line.read(board);
        if (!outcome.ok())
            outcome.problem = lineProblem(path, line.number, outcome.problem);
        else
            outcome = take(line.text, board);
        if (outcome.ok() && keepGoing && !keepGoing(line.number))
            outcome = Outcome::failed(StoppedProblem);
        return outcome.ok();
    });
    return read.ok() ? outcome : read;
}

} // namespace

void plantHint(Board& board) {
    const CellId cell{board.BlankHex, board.HintCell};
    if (!isHexagon(cell.hexagon) || cell.position < 1 || cell.position > CellCount)
        return;
    board.CellNum[cell] = std::to_string(board.HintNum);
    board.FixedCell[cell] = true;
    board.SkipHex = NoHexagon;
}

Outcome writeVariants(const std::filesystem::path& input, TopBottomHeader header,
                      const ContentSink& sink, const KeepGoing& keepGoing) {
    LineWriter writer(sink);
    const auto expand = [&](std::string_view, const Board& board) {
        for (const std::string& variant : variantsOf(PuzzleRecord(board), header))
            if (Outcome added = writer.add(variant); !added.ok())
                return added;
        return Outcome::done();
    };
    const Outcome expanded = forEachPuzzle(input, keepGoing, expand);
    return expanded.ok() ? writer.flush() : expanded;
}

Outcome writeShuffled(const std::filesystem::path& input, Chance& chance, const ContentSink& sink,
                      const KeepGoing& keepGoing) {
    std::unordered_set<std::string> known;
    std::vector<const std::string*> lines;
    const auto keep = [&](std::string_view line, const Board&) {
        if (const auto [place, isNew] = known.emplace(line); isNew)
            lines.push_back(&*place);
        return Outcome::done();
    };
    if (Outcome read = forEachPuzzle(input, keepGoing, keep); !read.ok())
        return read;
    chance.shuffle(lines);
    LineWriter writer(sink);
    for (const std::string* line : lines)
        if (Outcome added = writer.add(*line); !added.ok())
            return added;
    return writer.flush();
}

Outcome expandPuzzles(const ToolFiles& files, TopBottomHeader header, const KeepGoing& keepGoing) {
    return PuzzleStore().appendPuzzles(files.output, [&](const ContentSink& sink) {
        return writeVariants(files.input, header, sink, keepGoing);
    });
}

Outcome verifyPuzzles(const ToolFiles& files, VerifyCount& count, const KeepGoing& keepGoing) {
    count = {};
    return PuzzleStore().appendPuzzles(files.output, [&](const ContentSink& sink) {
        LineWriter writer(sink);
        const auto verify = [&](std::string_view, Board& board) {
            const std::string record = PuzzleRecord(board);
            plantHint(board);
            SolveByDeduction(board);
            ++count.tried;
            if (CheckHexagons(board, board.BlankHex) != SettledAndSound)
                return Outcome::done();
            ++count.solved;
            return writer.add(record);
        };
        const Outcome verified = forEachPuzzle(files.input, keepGoing, verify);
        return verified.ok() ? writer.flush() : verified;
    });
}

Outcome shufflePuzzles(const ToolFiles& files, Chance& chance, const KeepGoing& keepGoing) {
    // Read while the output is locked, for it may be the same file.
    return replaceFile(files.output, [&](const ContentSink& sink) {
        return writeShuffled(files.input, chance, sink, keepGoing);
    });
}

} // namespace tessaly
