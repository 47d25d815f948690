#pragma once

#include "core/base/outcome.h"
#include "core/board/arrangements.h"
#include "core/board/puzzle_store.h"
#include "core/session/program_folder.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly::faults {

namespace fs = std::filesystem;

/// The folder that one operation is tried on: a puzzle file, and the program's own folder.
struct Scene {
    fs::path folder;
    fs::path program = folder / "program/";
    fs::path puzzles = folder / "puzzles.txt";
    fs::path configuration = program / "tessaly.cfg";
    fs::path schemes = program / "all.col";
    fs::path temporary = program / TemporaryPuzzleFile;
    fs::path arrangements = program / ArrangementFile;
    /// What is kept of a configuration that could not be understood.
    fs::path damaged = configuration.native() + DamagedExtension;

    /// Fills the folder. A count of -1 makes no puzzle file.
    Outcome make(int records) const;
};

/// Something that writes a file, of which it is to be shown that no fault hurts.
struct Operation {
    std::string_view name;
    /// The file that it writes.
    fs::path Scene::*target;
    Outcome (*work)(const Scene& scene);
    /// What the folder needs before.
    void (*prepare)(const Scene& scene) = [](const Scene&) {};
    /// Tried by `script/faults` only.
    bool isSlow = false;
};

const std::vector<Operation>& operations();

/// Judges what a faulted operation left in `work`, which was a copy of `before` and would be like
/// `after` without the fault; `isDone` is what it said. Then starts the program anew there. Says
/// what was left; a problem is whatever must not be.
Outcome judge(const Operation& operation, const Scene& before, const Scene& after,
              const Scene& work, bool isDone, std::string& left);

} // namespace tessaly::faults
