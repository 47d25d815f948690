// What is fed at random: each reader of a user's file, and the solver. A program is made of one of
// them, TESSALY_FUZZ_TARGET.

#include "core/board/arrangements.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/solver/deduction.h"
#include "core/solver/solution_counter.h"
#include "support/plain_rules.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <cstdint>
#include <iostream>
#include <map>

namespace tessaly {
namespace {

/// Ends the run with the input that made `holds` false.
void require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::cerr << "not so: " << what << '\n';
    std::abort();
}

/// A table that is read holds every arrangement, each letter counted.
void arrangements(std::string_view text) {
    ArrangementTable table;
    const bool isRead = readArrangements(text, table).ok();
    require(table.wordCount == (isRead ? ArrangementCount : 0), "every word or none");
    for (std::size_t letter = 0; letter < 6; ++letter)
        require(table.letterWeights[letter] == table.wordCount, "each letter is counted");
}

/// Whatever was read, saving and reading it again gives the same.
void configuration(std::string_view text) {
    static const TemporaryFolder folder;
    const std::string path = folder / "tessaly.cfg";
    put(path, text);
    Configuration read;
    Configuration again;
    require(ReadcfgFile(path, read).ok(), "any configuration can be read");
    require(SavecfgFile(path, read).ok() && ReadcfgFile(path, again).ok() && again == read,
            "a configuration reads as it was saved");
}

/// One line of a puzzle file. What is read is written the same way, and a refusal changes nothing.
void record(std::string_view text) {
    Board before;
    before.CellNum[1][1] = "4";
    before.BlankHex = 5;
    Board board = before;
    const bool isRead = readRecord(text, board).ok();
    require(isRead || board == before, "a refused record leaves the board alone");
    const std::string written = isRead ? PuzzleRecord(board) : "";
    require(!isRead || PuzzleRecord(boardOf(written)) == written, "it reads as it was written");
}

/// The library of colour schemes: listing, loading, and the three changes.
void schemes(std::string_view text) {
    static const TemporaryFolder folder;
    put(folder / "all.col", text);
    SchemeLibrary library(folder.path());
    require(library.RefreshSchemeList().ok(), "a library can be listed");
    Appearance appearance;
    for (const std::string& name : library.names()) {
        const SchemeColours before = appearance.SchemeColours;
        require(library.LoadScheme(name + ".col", appearance).ok() ||
                    appearance.SchemeColours == before,
                "a scheme that cannot be loaded leaves the colours alone");
    }
    const SchemeColours colours{1, 2, 3};
    if (!library.names().empty())
        static_cast<void>(library.ReplaceScheme(library.names().front(), colours));
    // A name that is listed already is left alone: its record may carry it in capitals.
    if (!library.AddScheme("added", colours).ok())
        return;
    require(library.LoadScheme("added.col", appearance).ok() && appearance.SchemeColours[0] == 1,
            "an added scheme keeps its colours");
    require(library.DeleteScheme("added").ok() && !library.LoadScheme("added.col", appearance).ok(),
            "a deleted scheme is gone");
}

/// The solver on any texts of digits, each ended by any other character; the first two bytes name
/// the blank hexagon and the one that is skipped. It ends, and does what a plain reading does.
void solver(std::string_view text) {
    Board start;
    std::size_t at = 0;
    const auto next = [&] { return at < text.size() ? text[at++] : ' '; };
    for (int* hexagon : {&start.BlankHex, &start.SkipHex})
        if (const int number = next() - 'a' + 1; isHexagon(number))
            *hexagon = number;
    for (CellId cell : AllCells) {
        std::string& entry = start.CellNum[cell];
        for (char c = next(); c >= '0' && c <= '6'; c = next())
            if (entry.size() < CellCount)
                entry += c;
        start.SolNum[cell] = "1";
        start.FixedCell[cell] = entry.size() == 1;
    }
    Board board = start, plain = start;
    require(SolveByDeduction(board) == plain::SolveByDeduction(plain), "the results agree");
    require(board == plain, "the boards agree");
    board = plain = start;
    std::int32_t counter = 0, plainCounter = 0;
    SolveBasic(board, true, counter);
    plain::SolveBasic(plain, true, plainCounter);
    require(board == plain && counter == plainCounter, "the basic rules agree");
    static_cast<void>(countSolutions(start, {.solutions = 2, .guesses = 200}));
}

} // namespace
} // namespace tessaly

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessaly;
    static const std::map<std::string_view, void (*)(std::string_view)> Targets{
        {"arrangements", arrangements},
        {"configuration", configuration},
        {"record", record},
        {"schemes", schemes},
        {"solver", solver}};
    Targets.at(TESSALY_FUZZ_TARGET)(
        {reinterpret_cast<const char*>(data), size}); // NOLINT: bytes are text
    return 0;
}
