#include "faults/scene.h"

#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/solver/library_tools.h"

#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

namespace tessaly::faults {
namespace {

std::string newRecord() {
    return recordNumbered(1'000'000);
}

/// Deletes the puzzle in the middle of the file, after showing it.
Outcome deletePuzzle(const Scene& scene) {
    PuzzleStore store;
    Board board;
    const int number = (store.ReadPuzzle(scene.puzzles, 1, board).count + 1) / 2;
    const std::string record = store.ReadPuzzle(scene.puzzles, number, board).record;
    return store.DeletePuzzle(scene.puzzles, number, record);
}

Outcome saveConfiguration(const Scene& scene, int puzzle) {
    Configuration configuration;
    configuration.PuzNum = puzzle;
    return SavecfgFile(scene.configuration, configuration);
}

} // namespace

Outcome Scene::make(int records) const {
    fs::create_directories(program);
    // Three schemes; the one in the middle is replaced and deleted.
    std::string schemeFile;
    for (const char* name : {"first", "middle", "last"})
        schemeFile += schemeRecord(schemeHeader(name), SchemeColours{});
    test::put(schemes, schemeFile);
    test::put(temporary, recordFile(1));
    if (records >= 0)
        test::put(puzzles, recordFile(records));
    for (const fs::path& file : {schemes, temporary})
        fs::permissions(file, fs::perms(0640));
    return saveConfiguration(*this, 1);
}

const std::vector<Operation>& operations() {
    using S = const Scene&;
    static constexpr SchemeColours NewColours{1, 2, 3};
    static const std::vector<Operation> all{
        {"append", &Scene::puzzles,
         [](S scene) { return PuzzleStore().appendPuzzles(scene.puzzles, newRecord() + "\r\n"); }},
        {"replace", &Scene::puzzles,
         [](S scene) { return PuzzleStore().WritePuzzle(scene.puzzles, 1, boardOf(newRecord())); }},
        {"delete", &Scene::puzzles, deletePuzzle},
        {"temporary", &Scene::temporary,
         [](S scene) {
             return PuzzleStore().appendPuzzles(scene.temporary, newRecord() + "\r\n");
         }},
        {"deletetemporary", &Scene::temporary,
         [](S scene) { return PuzzleStore().DeletePuzzle(scene.temporary, 1, recordNumbered(1)); }},
        {"configuration", &Scene::configuration,
         [](S scene) { return saveConfiguration(scene, 2); }},
        // The variants go to the very file that they are made of.
        {"expand", &Scene::puzzles,
         [](S scene) {
             return expandPuzzles({scene.puzzles, scene.puzzles}, TopBottomHeader::Follows);
         }},
        {"shuffle", &Scene::puzzles,
         [](S scene) {
             Chance chance(1);
             return shufflePuzzles({scene.puzzles, scene.puzzles}, chance);
         }},
        {"addscheme", &Scene::schemes,
         [](S scene) { return SchemeLibrary(scene.program).AddScheme("added", NewColours); }},
        {"replacescheme", &Scene::schemes,
         [](S scene) { return SchemeLibrary(scene.program).ReplaceScheme("middle", NewColours); }},
        {"deletescheme", &Scene::schemes,
         [](S scene) { return SchemeLibrary(scene.program).DeleteScheme("middle"); }},
    };
    return all;
}

} // namespace tessaly::faults
