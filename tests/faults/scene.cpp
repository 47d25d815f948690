#include "faults/scene.h"

#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/solver/library_tools.h"

#include "support/sample_records.h"

#include <algorithm>
#include <memory>
#include <sys/uio.h>
#include <unistd.h>

namespace tessaly::faults {
namespace {

constexpr int NewSeed = 1'000'000;

std::function<Outcome()> appendPuzzle(const Scene& scene) {
    return [path = scene.puzzles()] {
        int number = 0;
        return PuzzleStore().appendPuzzle(path, test::recordNumbered(NewSeed), number);
    };
}

std::function<Outcome()> saveAsOnlyPuzzle(const Scene& scene) {
    Board board;
    static_cast<void>(readRecord(test::recordNumbered(NewSeed), board).ok());
    return [path = scene.puzzles(), board] { return PuzzleStore().WritePuzzle(path, 1, board); };
}

/// Deletes the puzzle in the middle of the file, after showing it.
std::function<Outcome()> deletePuzzle(const Scene& scene) {
    const auto files = std::make_shared<PuzzleStore>();
    int count = 0;
    static_cast<void>(files->CountLines(scene.puzzles(), count).ok());
    const int number = (count + 1) / 2;
    Board board;
    const std::string record = files->ReadPuzzle(scene.puzzles(), number, board).record;
    return [scene, files, number, record] {
        return files->DeletePuzzle(scene.puzzles(), number, record);
    };
}

/// Appends the variants of the puzzles to the very file.
std::function<Outcome()> expandLibrary(const Scene& scene) {
    return [path = scene.puzzles().string()] {
        return expandPuzzles({path, path}, OutputMode::Append, TopBottomHeader::Follows);
    };
}

std::function<Outcome()> shuffleLibrary(const Scene& scene) {
    return [path = scene.puzzles().string()] {
        Chance chance(1);
        return shufflePuzzles({path, path}, chance);
    };
}

/// Three schemes; the one in the middle is replaced and deleted.
std::string schemeFile() {
    std::string content;
    for (const char* name : {"first", "middle", "last"})
        content += schemeRecord(schemeHeader(name), SchemeColours{});
    return content;
}

SchemeColours newColours() {
    SchemeColours colours;
    colours.fill(RGB(1, 2, 3));
    return colours;
}

std::function<Outcome()> addScheme(const Scene& scene) {
    return [folder = scene.program().string()] {
        return SchemeLibrary(folder).AddScheme("added", newColours());
    };
}

std::function<Outcome()> replaceScheme(const Scene& scene) {
    return [folder = scene.program().string()] {
        return SchemeLibrary(folder).ReplaceScheme("middle", newColours());
    };
}

std::function<Outcome()> deleteScheme(const Scene& scene) {
    return [folder = scene.program().string()] {
        return SchemeLibrary(folder).DeleteScheme("middle");
    };
}

Configuration configurationAt(int puzzle) {
    Configuration configuration;
    configuration.PuzNum = puzzle;
    return configuration;
}

std::function<Outcome()> saveConfiguration(const Scene& scene) {
    return [path = scene.configuration()] { return SavecfgFile(path, configurationAt(2)); };
}

/// Writes a few puzzles at a time, and says each time how many are made.
std::function<Outcome()> makeBatch(const Scene& scene) {
    return [path = scene.puzzles()] {
        Outcome outcome;
        for (int made = 0; made < BatchSize && outcome.ok();) {
            std::string records;
            for (int each = 0; each < WrittenAtOnce; ++each)
                records += test::recordNumbered(NewSeed + ++made) + "\r\n";
            outcome = PuzzleStore().appendPuzzles(path, records);
            if (outcome.ok())
                say(STDOUT_FILENO, "made " + std::to_string(made));
        }
        return outcome;
    };
}

} // namespace

std::filesystem::path Scene::temporary() const {
    return program() / TemporaryPuzzleFile;
}

Outcome Scene::make(int records) const {
    std::filesystem::create_directories(program());
    if (Outcome saved = SavecfgFile(configuration(), configurationAt(1)); !saved.ok())
        return saved;
    for (const auto& [path, content] :
         {std::pair(schemes(), schemeFile()), std::pair(temporary(), test::recordFile(1))})
        if (Outcome saved = replaceFile(path, content); !saved.ok())
            return saved;
    return records < 0 ? Outcome::done() : replaceFile(puzzles(), test::recordFile(records));
}

void say(int stream, std::string_view line) {
    std::string text = std::string(line) + "\n";
    const iovec piece{text.data(), text.size()};
    static_cast<void>(::writev(stream, &piece, 1) == 0);
}

const std::vector<Operation>& operations() {
    static const std::vector<Operation> all{
        {"append", &Scene::puzzles, appendPuzzle},
        {"replace", &Scene::puzzles, saveAsOnlyPuzzle},
        {"delete", &Scene::puzzles, deletePuzzle},
        {"configuration", &Scene::configuration, saveConfiguration},
        {"batch", &Scene::puzzles, makeBatch},
        {"expand", &Scene::puzzles, expandLibrary},
        {"shuffle", &Scene::puzzles, shuffleLibrary},
        {"addscheme", &Scene::schemes, addScheme},
        {"replacescheme", &Scene::schemes, replaceScheme},
        {"deletescheme", &Scene::schemes, deleteScheme},
    };
    return all;
}

} // namespace tessaly::faults
