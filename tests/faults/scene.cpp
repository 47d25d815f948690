#include "faults/scene.h"

#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/solver/library_tools.h"

#include "support/sample_records.h"

#include <memory>
#include <sys/uio.h>
#include <unistd.h>

namespace tessaly::faults {
namespace {

constexpr int NewSeed = 1'000'000;

using Work = std::function<Outcome()>;

std::string newRecord(int number = 0) {
    return test::recordNumbered(NewSeed + number);
}

/// Deletes the puzzle in the middle of the file, after showing it.
Work deletePuzzle(const Scene& scene) {
    const auto store = std::make_shared<PuzzleStore>();
    int count = 0;
    static_cast<void>(store->CountLines(scene.puzzles(), count).ok());
    const int number = (count + 1) / 2;
    Board board;
    const std::string record = store->ReadPuzzle(scene.puzzles(), number, board).record;
    return [scene, store, number, record] {
        return store->DeletePuzzle(scene.puzzles(), number, record);
    };
}

/// Writes a few puzzles at a time, and says each time how many are made.
Work makeBatch(const Scene& scene) {
    return [path = scene.puzzles()] {
        Outcome outcome;
        for (int made = 0; made < BatchSize && outcome.ok();) {
            std::string records;
            for (int each = 0; each < WrittenAtOnce; ++each)
                records += newRecord(++made) + "\r\n";
            outcome = PuzzleStore().appendPuzzles(path, records);
            if (outcome.ok())
                say(STDOUT_FILENO, "made " + std::to_string(made));
        }
        return outcome;
    };
}

SchemeColours newColours() {
    SchemeColours colours;
    colours.fill(RGB(1, 2, 3));
    return colours;
}

Outcome saveConfiguration(const Scene& scene, int puzzle) {
    Configuration configuration;
    configuration.PuzNum = puzzle;
    return SavecfgFile(scene.configuration(), configuration);
}

/// Makes an operation of what needs nothing to be got ready.
template <auto act>
Work doing(const Scene& scene) {
    return [scene] { return act(scene); };
}

} // namespace

std::filesystem::path Scene::temporary() const {
    return program() / TemporaryPuzzleFile;
}

Outcome Scene::make(int records) const {
    std::filesystem::create_directories(program());
    // Three schemes; the one in the middle is replaced and deleted.
    std::string schemeFile;
    for (const char* name : {"first", "middle", "last"})
        schemeFile += schemeRecord(schemeHeader(name), SchemeColours{});
    Outcome made = saveConfiguration(*this, 1);
    if (made.ok())
        made = replaceFile(schemes(), schemeFile);
    if (made.ok())
        made = replaceFile(temporary(), test::recordFile(1));
    if (made.ok() && records >= 0)
        made = replaceFile(puzzles(), test::recordFile(records));
    return made;
}

void say(int stream, std::string_view line) {
    std::string text = std::string(line) + "\n";
    const iovec piece{text.data(), text.size()};
    static_cast<void>(::writev(stream, &piece, 1) == 0);
}

const std::vector<Operation>& operations() {
    using S = const Scene&;
    constexpr auto Puzzles = &Scene::puzzles;
    constexpr auto Schemes = &Scene::schemes;
    static const std::vector<Operation> all{
        {"append", Puzzles, doing<[](S scene) {
             int number = 0;
             return PuzzleStore().appendPuzzle(scene.puzzles(), newRecord(), number);
         }>},
        {"replace", Puzzles, doing<[](S scene) {
             Board board;
             static_cast<void>(readRecord(newRecord(), board).ok());
             return PuzzleStore().WritePuzzle(scene.puzzles(), 1, board);
         }>},
        {"delete", Puzzles, deletePuzzle},
        {"configuration", &Scene::configuration,
         doing<[](S scene) { return saveConfiguration(scene, 2); }>},
        {"batch", Puzzles, makeBatch},
        // The variants go to the very file that they are made of.
        {"expand", Puzzles, doing<[](S scene) {
             return expandPuzzles({scene.puzzles(), scene.puzzles()}, OutputMode::Append,
                                  TopBottomHeader::Follows);
         }>},
        {"shuffle", Puzzles, doing<[](S scene) {
             Chance chance(1);
             return shufflePuzzles({scene.puzzles(), scene.puzzles()}, chance);
         }>},
        {"addscheme", Schemes, doing<[](S scene) {
             return SchemeLibrary(scene.program()).AddScheme("added", newColours());
         }>},
        {"replacescheme", Schemes, doing<[](S scene) {
             return SchemeLibrary(scene.program()).ReplaceScheme("middle", newColours());
         }>},
        {"deletescheme", Schemes,
         doing<[](S scene) { return SchemeLibrary(scene.program()).DeleteScheme("middle"); }>},
    };
    return all;
}

} // namespace tessaly::faults
