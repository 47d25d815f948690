#include "faults/scene.h"

#include "core/board/puzzle_store.h"
#include "core/files/locked_file.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"

#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace tessaly::faults {
namespace {

namespace fs = std::filesystem;
using Content = std::optional<std::string>;

Content contentOf(const fs::path& path) {
    return fs::exists(path) ? Content(test::contentOf(path)) : std::nullopt;
}

/// How many whole records of a batch were added to `before`, if nothing else was.
std::optional<int> recordsAdded(const std::string& before, const std::string& after,
                                const std::string& left) {
    constexpr std::size_t LineSize = RecordLength + 2;
    const bool grew = left.size() >= before.size() && after.starts_with(left);
    if (!grew || (left.size() - before.size()) % LineSize != 0)
        return std::nullopt;
    return static_cast<int>((left.size() - before.size()) / LineSize);
}

int recordsPromised(std::string_view said) {
    return WrittenAtOnce * static_cast<int>(std::count(said.begin(), said.end(), 'm'));
}

/// What the operation left of its file, as the table tells it.
Outcome judgeTarget(const Operation& operation, const Content& before, const Content& after,
                    const Content& left, std::string_view said, std::ostream& description) {
    const bool isDone = said.ends_with("done\n");
    const auto added = recordsAdded(before.value_or(""), after.value_or(""), left.value_or(""));
    if (operation.name == "batch" && left && added.value_or(0) > 0) {
        description << *added << " records more";
        return *added >= recordsPromised(said)
                   ? Outcome::done()
                   : Outcome::failed("fewer records than were said to be made");
    }
    if (left != before && left != after)
        return Outcome::failed("neither the old nor the new content");
    description << (left == before ? "old" : "new");
    if (isDone && left != after)
        return Outcome::failed("said to be done, but it is not");
    return Outcome::done();
}

/// Everything in the folder that is no file of the user's or the program's own.
std::set<std::string> litterIn(const Scene& scene) {
    const std::set<fs::path> known{scene.puzzles(),   scene.configuration(),
                                   scene.temporary(), scene.folder() / "program",
                                   scene.schemes(),   scene.schemesCopy()};
    std::set<std::string> litter;
    for (const auto& entry : fs::recursive_directory_iterator(scene.folder()))
        if (!known.contains(entry.path()))
            litter.insert(entry.path().filename());
    return litter;
}

/// A later start of the program: it clears up, loads, and saves again.
Outcome startAgain(const Scene& scene) {
    removeLeftovers(scene.program());
    PuzzleStore files;
    Board board;
    int count = 0;
    const Content left = contentOf(scene.puzzles());
    if (left && !files.CountLines(scene.puzzles(), count).ok())
        return Outcome::failed("the file cannot be loaded");
    if (count > 0 && !files.ReadPuzzle(scene.puzzles(), count, board).ok())
        return Outcome::failed("the last puzzle cannot be read");
    const std::string record = test::recordNumbered(7);
    int number = 0;
    if (Outcome saved = files.appendPuzzle(scene.puzzles(), record, number); !saved.ok())
        return saved;
    if (number != count + 1 || contentOf(scene.puzzles()) != left.value_or("") + record + "\r\n")
        return Outcome::failed("a puzzle saved later does not stand where it should");
    SchemeLibrary schemes(scene.program());
    if (Outcome listed = schemes.RefreshSchemeList(); !listed.ok())
        return listed;
    // Replacing lists the schemes anew.
    const std::vector<std::string> names = schemes.names();
    for (const std::string& name : names)
        if (Outcome saved = schemes.ReplaceScheme(name, SchemeColours{}); !saved.ok())
            return saved;
    Configuration configuration;
    if (Outcome read = ReadcfgFile(scene.configuration(), configuration); !read.ok())
        return read;
    if (Outcome saved = SavecfgFile(scene.configuration(), configuration); !saved.ok())
        return saved;
    return litterIn(scene).empty() ? Outcome::done() : Outcome::failed("litter stays");
}

} // namespace

Outcome judge(const Operation& operation, const Scene& before, const Scene& after,
              const Scene& work, std::string_view said, std::ostream& description) {
    const auto content = [&](const Scene& scene) { return contentOf((scene.*operation.target)()); };
    if (Outcome target = judgeTarget(operation, content(before), content(after), content(work),
                                     said, description);
        !target.ok())
        return target;
    for (const auto& other :
         {&Scene::puzzles, &Scene::temporary, &Scene::configuration, &Scene::schemes})
        if (other != operation.target && contentOf((work.*other)()) != contentOf((before.*other)()))
            return Outcome::failed("another file has changed");
    if (!litterIn(work).empty())
        description << ", litter";
    return startAgain(work);
}

} // namespace tessaly::faults
