#include "core/session/program_folder.h"

#include "core/base/data_files.h"
#include "core/session/shipped_files.h"

#include <cstdlib>
#include <filesystem>
#include <sys/auxv.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// The folder's path, absolute, with "/" at its end.
std::string asFolder(const fs::path& path) {
    return (fs::absolute(path).lexically_normal() / "").native();
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
    if (const fs::path dataHome = sources.dataHome; dataHome.is_absolute())
        return dataHome / name;
    if (const fs::path home = sources.home; home.is_absolute())
        return home / ".local" / "share" / name;
    return {};
}

bool holdsLibrary(const std::string& folder) {
    std::error_code ignored;
    return !folder.empty() && fs::is_regular_file(fs::path(folder) / SchemeLibraryFile, ignored);
}

Outcome useGiven(const std::string& given, std::string& folder) {
    std::error_code error;
    if (!fs::is_directory(given, error))
        return Outcome::failed(given + ": " + (error ? error.message() : "is no folder"));
    folder = asFolder(given);
    return Outcome::done();
}

Outcome useUserFolder(const fs::path& user, const std::string& share, std::string& folder) {
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

ProgramFolderSources ProgramFolderSources::ofThisProcess() {
    const fs::path executable = executablePath();
    const fs::path folder = executable.parent_path();
    return {.given = {},
            .executableFolder = folder.native(),
            .shareFolder = (folder / TESSALY_SHARE).lexically_normal().native(),
            .dataHome = environment("XDG_DATA_HOME"),
            .home = environment("HOME")};
}

Outcome findProgramFolder(const ProgramFolderSources& sources, std::string& folder) {
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
