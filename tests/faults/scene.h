#pragma once

#include "core/base/outcome.h"

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace tessaly::faults {

/// The folder that one operation is tried on: "puzzles.txt", and the program's own folder,
/// "program".
class Scene {
public:
    explicit Scene(std::filesystem::path folder)
        : m_folder(std::move(folder)) {}

    const std::filesystem::path& folder() const { return m_folder; }
    std::filesystem::path puzzles() const { return m_folder / "puzzles.txt"; }
    std::filesystem::path program() const { return m_folder / "program/"; }
    std::filesystem::path configuration() const { return program() / "tessaly.cfg"; }
    std::filesystem::path schemes() const { return program() / "all.col"; }
    std::filesystem::path temporary() const;
    /// Where the new schemes are written first, and stay.
    std::filesystem::path schemesCopy() const { return program() / "newall.cox"; }

    /// Fills the folder. A count of -1 makes no puzzle file.
    Outcome make(int records) const;

private:
    std::filesystem::path m_folder;
};

/// Something that writes a file, of which it is to be shown that no fault hurts.
struct Operation {
    std::string_view name;
    /// The file that it writes.
    std::filesystem::path (Scene::*target)() const;
    /// Gets everything ready that is no part of the operation and returns the operation.
    std::function<Outcome()> (*prepare)(const Scene& scene);
};

const std::vector<Operation>& operations();

/// Says a line to whoever started the program, by a system call that no file is written with.
void say(int stream, std::string_view line);

/// How many records the operation "batch" writes, some at a time, each time saved before the next.
inline constexpr int BatchSize = 6;
inline constexpr int WrittenAtOnce = 2;

/// Judges what a faulted operation left in `work`, which was a copy of `before` and would be like
/// `after` without the fault, having said `said`. Then starts the program anew there. Describes
/// what was left; a problem is whatever must not be.
Outcome judge(const Operation& operation, const Scene& before, const Scene& after,
              const Scene& work, std::string_view said, std::ostream& description);

} // namespace tessaly::faults
