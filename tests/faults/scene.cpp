#include "faults/scene.h"

#include "core/files/locked_file.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/solver/library_tools.h"

#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <optional>
#include <set>

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

/// What "Save to" does, with every box that it shows for an answer unless all is well.
Outcome saveTo(const Scene& scene) {
    Session session;
    session.ProgramFolder = scene.program;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    PlayCommands play(session.game, session.appearance, display, prompts);
    BoardInput input(session.game, session.busy, play, display);
    PlayKeeping keeping(session, display, prompts);
    PuzzleFileCommands commands(session, keeping, input, display, prompts,
                                [&](auto, auto) { return scene.puzzles; });
    session.game.board = boardOf(newRecord());
    session.puzzle.PuzNum = 1;
    commands.mnusavex();
    const std::string told = prompts.told();
    const bool isWell = told.find("critical") == std::string::npos;
    return isWell ? Outcome::done() : Outcome::failed(told);
}

/// A start with a configuration that cannot be understood, and the Exit after it.
Outcome replaceDamaged(const Scene& scene) {
    Session session;
    session.ProgramFolder = scene.program;
    const LoadedSession loaded = loadSession(session);
    if (!loaded.outcome.ok())
        return loaded.outcome;
    session.puzzle.PuzNum = 2;
    return session.configurationIsUnread ? Outcome::failed(loaded.notice) : SavecfgFile(session);
}

Outcome saveConfiguration(const Scene& scene, int puzzle) {
    Configuration configuration;
    configuration.PuzNum = puzzle;
    return SavecfgFile(scene.configuration, configuration);
}

std::optional<std::string> contentOf(const fs::path& path) {
    return fs::exists(path) ? std::optional(tessaly::contentOf(path)) : std::nullopt;
}

/// Whether there is anything in the folder that is no file of the user's or the program's own.
bool hasLitter(const Scene& scene) {
    // The new schemes are written there first, and stay.
    const fs::path schemesCopy = scene.program / "newall.cox";
    const std::set<fs::path> known{
        scene.puzzles, scene.configuration, scene.program.parent_path(), scene.temporary,
        scene.schemes, schemesCopy,         scene.arrangements,          scene.damaged};
    const fs::recursive_directory_iterator entries(scene.folder);
    return std::any_of(begin(entries), end(entries),
                       [&](const auto& entry) { return !known.contains(entry.path()); });
}

/// A later start of the program: it clears up, loads, and saves again.
Outcome startAgain(const Scene& scene) {
    removeLeftovers(scene.program);
    PuzzleStore files;
    SchemeLibrary schemes(scene.program);
    Configuration configuration;
    Board board;
    int count = 0;
    int number = 0;
    auto left = contentOf(scene.puzzles);
    if (left) // what was torn counts for nothing
        left->resize(left->rfind('\n') + 1);
    const std::string record = recordNumbered(7);
    for (const std::function<Outcome()>& step : std::initializer_list<std::function<Outcome()>>{
             [&] { return left ? files.CountLines(scene.puzzles, count) : Outcome::done(); },
             [&] {
                 const PuzzleRead last = files.ReadPuzzle(scene.puzzles, count, board);
                 return Outcome{count > 0 ? last.reason : ""};
             },
             [&] { return files.appendPuzzle(scene.puzzles, record, number); },
             [&] { return schemes.ReplaceScheme("last", {}); },
             [&] { return ReadcfgFile(scene.configuration, configuration); },
             [&] { return SavecfgFile(scene.configuration, configuration); }})
        if (Outcome outcome = step(); !outcome.ok())
            return outcome;
    if (number != count + 1 || contentOf(scene.puzzles) != left.value_or("") + record + "\r\n")
        return Outcome::failed("a puzzle saved later does not stand where it should");
    return hasLitter(scene) ? Outcome::failed("litter stays") : Outcome::done();
}

} // namespace

Outcome Scene::make(int records) const {
    fs::create_directories(program);
    // Three schemes; the one in the middle is replaced and deleted.
    std::string schemeFile;
    for (const char* name : {"first", "middle", "last"})
        schemeFile += schemeRecord(schemeHeader(name), SchemeColours{});
    put(schemes, schemeFile);
    put(temporary, recordFile(1));
    if (records >= 0)
        put(puzzles, recordFile(records));
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
        {"torn", &Scene::puzzles,
         [](S scene) { return PuzzleStore().appendPuzzles(scene.puzzles, newRecord() + "\r\n"); },
         [](S scene) { std::ofstream(scene.puzzles, std::ios::app) << newRecord().substr(0, 80); }},
        {"saveto", &Scene::puzzles, saveTo},
        {"delete", &Scene::puzzles, deletePuzzle},
        {"temporary", &Scene::temporary,
         [](S scene) {
             return PuzzleStore().appendPuzzles(scene.temporary, newRecord() + "\r\n");
         }},
        {"deletetemporary", &Scene::temporary,
         [](S scene) { return PuzzleStore().DeletePuzzle(scene.temporary, 1, recordNumbered(1)); }},
        {"configuration", &Scene::configuration,
         [](S scene) { return saveConfiguration(scene, 2); }},
        {"damaged", &Scene::configuration, replaceDamaged,
         [](S scene) {
             put(scene.configuration, "no number\n");
             fs::create_symlink(TESSALY_DATA "/hexabinx.txt", scene.arrangements);
         },
         true},
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

Outcome judge(const Operation& operation, const Scene& before, const Scene& after,
              const Scene& work, bool isDone, std::string& left) {
    for (const auto file :
         {&Scene::puzzles, &Scene::temporary, &Scene::configuration, &Scene::schemes}) {
        const auto content = contentOf(work.*file);
        const bool isOld = content == contentOf(before.*file);
        const bool isNew = content == contentOf(after.*file);
        if (file != operation.target && !isOld)
            return Outcome::failed("another file has changed");
        if (file != operation.target)
            continue;
        if (!isOld && !isNew)
            return Outcome::failed("neither the old nor the new content");
        if (fs::exists(before.*file) && fs::exists(work.*file) &&
            fs::status(work.*file).permissions() != fs::status(before.*file).permissions())
            return Outcome::failed("other rights");
        if (isDone && !isNew)
            return Outcome::failed("said to be done, but it is not");
        left = isOld ? "old" : "new";
        if (!isOld && contentOf(work.damaged) != contentOf(after.damaged))
            return Outcome::failed("what was damaged is not kept");
    }
    if (hasLitter(work))
        left += ", litter";
    return startAgain(work);
}

} // namespace tessaly::faults
