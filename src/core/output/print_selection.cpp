#include "core/output/print_selection.h"

#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"

#include <algorithm>
#include <tuple>

namespace tessaly {
namespace {

/// Adds the chosen puzzles of one file.
class FileSelection {
public:
    FileSelection(const std::filesystem::path& path, const PrintSelection& selection,
                  std::vector<PrintedPuzzle>& puzzles)
        : m_path(path)
        , m_name(path.filename().native())
        , m_selection(selection)
        , m_puzzles(puzzles) {}

    Outcome read(const GoOnReading& goOn) {
        Outcome read = forEachRecord(m_path, [&](RecordLine line) {
            m_count = line.number;
            m_outcome = take(line);
            if (m_outcome.ok() && goOn && !goOn())
                m_outcome = Outcome::failed("stopped");
            return m_outcome.ok() && line.number != lastNumber();
        });
        if (!read.ok())
            return read;
        const int missing = m_selection.numbers ? m_selection.numbers->firstMissing(m_count) : 0;
        if (m_outcome.ok() && missing != 0)
            return Outcome::failed(m_path.native() + ": there is no puzzle " +
                                   std::to_string(missing) + " among its " +
                                   std::to_string(m_count));
        return m_outcome;
    }

private:
    /// 0 where there is none.
    int lastNumber() const { return m_selection.numbers ? m_selection.numbers->last() : 0; }

    Outcome take(RecordLine line) {
        if (m_selection.numbers && !m_selection.numbers->contains(line.number))
            return Outcome::done();
        Board board;
        if (const Outcome read = line.read(board); !read.ok())
            return Outcome::failed(lineProblem(m_path, line.number, read.problem));
        if (m_selection.difficulty && board.difficulty != *m_selection.difficulty)
            return Outcome::done();
        int stars = 0;
        if (m_selection.needsRating())
            if (const auto rating = ratePuzzle(board))
                stars = rating->stars;
        if (m_selection.stars.isEverything() || m_selection.stars.contains(stars))
            m_puzzles.push_back({m_name, line.number, stars, std::string(line.text)});
        return Outcome::done();
    }

    const std::filesystem::path& m_path;
    std::string m_name;
    const PrintSelection& m_selection;
    std::vector<PrintedPuzzle>& m_puzzles;
    int m_count = 0;
    Outcome m_outcome;
};

/// The easiest first; what could not be rated is last of its difficulty.
bool isEasier(const PrintedPuzzle& one, const PrintedPuzzle& other) {
    const auto key = [](const PrintedPuzzle& each) {
        return std::tuple(each.record.front(), each.stars == 0 ? MostStars + 1 : each.stars);
    };
    return key(one) < key(other);
}

} // namespace

Outcome selectPuzzles(const std::vector<std::filesystem::path>& files,
                      const PrintSelection& selection, std::vector<PrintedPuzzle>& puzzles,
                      const GoOnReading& goOn) {
    puzzles.clear();
    for (const auto& path : files)
        if (Outcome read = FileSelection(path, selection, puzzles).read(goOn); !read.ok())
            return read;
    if (puzzles.empty())
        return Outcome::failed("there is no such puzzle to print");
    if (selection.byStars)
        std::stable_sort(puzzles.begin(), puzzles.end(), isEasier);
    return Outcome::done();
}

} // namespace tessaly
