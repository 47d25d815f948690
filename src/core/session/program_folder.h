#pragma once

#include "core/base/outcome.h"

#include <filesystem>
#include <string>

namespace tessaly {

/// The data files in the program's folder, beside the library of schemes.
inline constexpr const char* ArrangementFile = "hexabinx.txt";
inline constexpr const char* HelpPageFile = "tessaly.htm";
/// The folder of its drawings.
inline constexpr const char* HelpDrawingsFolder = "manual";
inline constexpr const char* ConfigurationFile = "tessaly.cfg";
inline constexpr const char* WindowPlaceFile = "window.cfg";
inline constexpr const char* EasyLibraryFile = "puzzles/easy.txt";
inline constexpr const char* HardLibraryFile = "puzzles/hard.txt";
/// The puzzle of the easy library that the manual solves step by step.
inline constexpr int ManualPuzzle = 108;

/// Makes `folder`, which does not exist or is empty, with a copy of every data file that `share`
/// has. All or nothing: the folder is filled under another name, and whatever interrupts that, the
/// next start begins anew. Two instances may start at once.
Outcome installShippedFiles(const std::filesystem::path& share,
                            const std::filesystem::path& folder);

/// Renews the program's own files in `folder` where `share` has others. Contents are compared, for
/// some systems give every installed file the same time. What cannot be renewed stays as it is: an
/// older file still works.
void renewShippedFiles(const std::filesystem::path& share, const std::filesystem::path& folder);

/// Copies a damaged file, before it is written over, to one beside it whose name ends in this.
inline constexpr const char* DamagedExtension = ".damaged";
Outcome keepDamaged(const std::filesystem::path& path);

/// Puts a shipped file in the place of the damaged one in `folder`, which is kept beside it.
Outcome restoreShippedFile(const std::filesystem::path& share, const std::filesystem::path& folder,
                           const std::string& name);

/// Whether a path, through links or not, means a file that the program keeps for itself: no puzzles
/// are saved to it.
bool isOwnFile(const std::filesystem::path& programFolder, const std::filesystem::path& path);

/// What decides which folder the program runs from. Folders may be given with or without their
/// last "/"; an empty one is unknown.
struct ProgramFolderSources {
    /// The folder that the user named on the command line.
    std::filesystem::path given;
    std::filesystem::path executableFolder;
    /// Where an installation keeps the data files.
    std::filesystem::path shareFolder;
    /// $XDG_DATA_HOME and $HOME.
    std::filesystem::path dataHome;
    std::filesystem::path home;

    /// Those of the running process, the share folder being the installed one as seen from the
    /// executable. `given` is empty.
    static ProgramFolderSources ofThisProcess();
};

/// Finds the program's folder, into `folder` with a "/" at its end: the given one; else the
/// executable's when it holds "all.col"; else "tessaly" in the user's data home.
///
/// The last is made at the first start and filled from the share folder, all or nothing. On later
/// starts the program's own files there ("hexabinx.txt", "tessaly.htm" and its drawings) are
/// renewed when shipped ones are newer; everything else is the user's and is left alone, even when
/// it is gone.
Outcome findProgramFolder(const ProgramFolderSources& sources, std::filesystem::path& folder);

} // namespace tessaly
