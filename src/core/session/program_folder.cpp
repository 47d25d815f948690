#include "core/session/program_folder.h"

#include "core/files/file_access.h"
#include "core/files/file_descriptor.h"
#include "core/options/scheme_library.h"
#include "core/session/play_book.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/auxv.h>
#include <unistd.h>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

enum class Owner { Program, User };

struct ShippedFile {
    std::string name;
    Owner owner;
    /// Whether the program cannot run without it.
    bool isNeeded;
};

/// What is shipped, the drawings of the manual by what lies in their folder.
std::vector<ShippedFile> shippedFiles(const fs::path& share) {
    std::vector<ShippedFile> files{
        {SchemeLibraryFile, Owner::User, true}, {ArrangementFile, Owner::Program, true},
        {HelpPageFile, Owner::Program, false},  {EasyLibraryFile, Owner::User, false},
        {HardLibraryFile, Owner::User, false},
    };
    std::error_code error;
    fs::directory_iterator drawing(share / HelpDrawingsFolder, error);
    for (; !error && drawing != fs::directory_iterator(); drawing.increment(error))
        files.push_back(
            {fs::path(HelpDrawingsFolder) / drawing->path().filename(), Owner::Program, false});
    return files;
}

FileDescriptor openFolder(const fs::path& folder) {
    return FileDescriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

constexpr std::size_t SizeLimit = std::size_t{256} << 20;

Outcome copyFile(const fs::path& from, const fs::path& to) {
    std::string content;
    if (Outcome read = readSmallFile(from, SizeLimit, content); !read.ok())
        return read;
    return replaceFile(to, content);
}

Outcome copyAll(const fs::path& share, const fs::path& folder) {
    for (const ShippedFile& file : shippedFiles(share)) {
        const fs::path copy = folder / file.name;
        std::error_code error;
        // What is there but cannot be examined must not be left out for good: copying it says why.
        const bool isThere =
            fs::status(share / file.name, error).type() != fs::file_type::not_found;
        if (!file.isNeeded && !isThere)
            continue;
        if (fs::create_directories(copy.parent_path(), error); error)
            return fileProblem(copy.parent_path(), "cannot be created", error.value());
        if (Outcome copied = copyFile(share / file.name, copy); !copied.ok())
            return copied;
    }
    return Outcome::done();
}

Outcome moveIntoPlace(const fs::path& filled, const fs::path& folder,
                      const FileDescriptor& parent) {
    if (::fsync(openFolder(filled).get()) != 0)
        return fileProblem(filled, "cannot be written");
    if (::rename(filled.c_str(), folder.c_str()) != 0)
        return fileProblem(folder, "cannot be created");
    if (::fsync(parent.get()) != 0)
        return fileProblem(folder, "cannot be written");
    return Outcome::done();
}

bool isFilled(const fs::path& folder) {
    std::error_code error;
    return fs::exists(folder, error) && !fs::is_empty(folder, error);
}

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// The folder's path, absolute, with "/" at its end.
fs::path asFolder(const fs::path& path) {
    return fs::absolute(path) / "";
}

/// Where no /proc is mounted, in a bare root, the kernel's word at the start must do.
fs::path executablePath() {
    std::error_code error;
    fs::path path = fs::read_symlink("/proc/self/exe", error);
    if (error)
        path = fs::canonical(reinterpret_cast<const char*>(::getauxval(AT_EXECFN)), error);
    return path;
}

/// "tessaly" in the data home, or nothing when there is none. By the desktop's rules for base
/// directories a relative $XDG_DATA_HOME does not count.
fs::path userFolder(const ProgramFolderSources& sources) {
    const fs::path name = "tessaly";
    if (sources.dataHome.is_absolute())
        return sources.dataHome / name;
    if (sources.home.is_absolute())
        return sources.home / ".local" / "share" / name;
    return {};
}

bool holdsLibrary(const fs::path& folder) {
    std::error_code ignored;
    return !folder.empty() && fs::is_regular_file(folder / SchemeLibraryFile, ignored);
}

Outcome useGiven(const fs::path& given, fs::path& folder) {
    std::error_code error;
    if (!fs::is_directory(given, error))
        return Outcome::failed(given.native() + ": " + (error ? error.message() : "is no folder"));
    folder = asFolder(given);
    return Outcome::done();
}

Outcome useUserFolder(const fs::path& user, const fs::path& share, fs::path& folder) {
    std::error_code error;
    const fs::file_status status = fs::status(user, error);
    if (status.type() == fs::file_type::none)
        return Outcome::failed(user.native() + ": cannot be examined: " + error.message());
    if (fs::exists(status) && !fs::is_directory(status))
        return Outcome::failed(user.native() + ": is no folder");
    const bool isFirstStart = !fs::exists(status) || fs::is_empty(user, error);
    folder = asFolder(user);
    if (isFirstStart)
        return installShippedFiles(share, user);
    renewShippedFiles(share, user);
    return Outcome::done();
}

} // namespace

Outcome installShippedFiles(const fs::path& share, const fs::path& folder) {
    const fs::path parentPath = folder.parent_path();
    std::error_code error;
    if (fs::create_directories(parentPath, error); error)
        return fileProblem(parentPath, "cannot be created", error.value());
    const FileDescriptor parent = openFolder(parentPath);
    if (!parent.isOpen())
        return fileProblem(parentPath, "cannot be read");
    if (!patiently([&] { return takeLock(parent) != LockAnswer::Busy; }))
        return Outcome::failed(folder.native() + ": another program is busy with it");
    if (isFilled(folder))
        return Outcome::done();
    const fs::path filling = parentPath / ("." + folder.filename().native() + ".new");
    fs::remove_all(filling, error);
    Outcome outcome = copyAll(share, filling);
    if (outcome.ok())
        outcome = moveIntoPlace(filling, folder, parent);
    fs::remove_all(filling, error);
    return outcome;
}

void renewShippedFiles(const fs::path& share, const fs::path& folder) {
    for (const ShippedFile& file : shippedFiles(share)) {
        std::string shipped;
        std::string copied;
        if (file.owner != Owner::Program ||
            !readSmallFile(share / file.name, SizeLimit, shipped).ok())
            continue;
        const fs::path copy = folder / file.name;
        if (readSmallFile(copy, SizeLimit, copied).ok() && copied == shipped)
            continue;
        std::error_code ignored;
        fs::create_directories(copy.parent_path(), ignored);
        static_cast<void>(replaceFile(copy, shipped));
    }
}

bool isOwnFile(const fs::path& programFolder, const fs::path& path) {
    constexpr std::array OwnFiles{SchemeLibraryFile, ArrangementFile, HelpPageFile,
                                  ConfigurationFile, WindowPlaceFile, PlayBook::FileName};
    return std::any_of(OwnFiles.begin(), OwnFiles.end(), [&](const char* name) {
        const fs::path own = programFolder / name;
        std::error_code oneIsMissing;
        return path.lexically_normal() == own.lexically_normal() ||
               fs::equivalent(path, own, oneIsMissing);
    });
}

Outcome keepDamaged(const fs::path& path) {
    return copyFile(path, path.native() + DamagedExtension);
}

Outcome restoreShippedFile(const fs::path& share, const fs::path& folder, const std::string& name) {
    const Outcome kept = FileExists(folder / name) ? keepDamaged(folder / name) : Outcome::done();
    return kept.ok() ? copyFile(share / name, folder / name) : kept;
}

ProgramFolderSources ProgramFolderSources::ofThisProcess() {
    const fs::path executable = executablePath();
    const fs::path folder = executable.parent_path();
    return {.given = {},
            .executableFolder = folder,
            .shareFolder = (folder / TESSALY_SHARE).lexically_normal(),
            .dataHome = environment("XDG_DATA_HOME"),
            .home = environment("HOME")};
}

Outcome findProgramFolder(const ProgramFolderSources& sources, fs::path& folder) {
    if (!sources.given.empty())
        return useGiven(sources.given, folder);
    if (holdsLibrary(sources.executableFolder)) {
        folder = asFolder(sources.executableFolder);
        return Outcome::done();
    }
    const fs::path user = userFolder(sources);
    if (user.empty())
        return Outcome::failed("There is no place for the program's files: neither HOME nor "
                               "XDG_DATA_HOME names a folder");
    return useUserFolder(user, sources.shareFolder, folder);
}

} // namespace tessaly
