#include "faults/scene.h"

#include "core/files/locked_file.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"

#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <set>

namespace tessaly::faults {
namespace {

std::optional<std::string> contentOf(const fs::path& path) {
    return fs::exists(path) ? std::optional(test::contentOf(path)) : std::nullopt;
}

/// Whether there is anything in the folder that is no file of the user's or the program's own.
bool hasLitter(const Scene& scene) {
    // The new schemes are written there first, and stay.
    const fs::path schemesCopy = scene.program / "newall.cox";
    const std::set<fs::path> known{scene.puzzles,   scene.configuration, scene.folder / "program",
                                   scene.temporary, scene.schemes,       schemesCopy};
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
    const auto left = contentOf(scene.puzzles);
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
    }
    if (hasLitter(work))
        left += ", litter";
    return startAgain(work);
}

} // namespace tessaly::faults
