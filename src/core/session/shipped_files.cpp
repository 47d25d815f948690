#include "core/session/shipped_files.h"

#include "core/base/data_files.h"
#include "core/files/file_access.h"
#include "core/files/file_lock.h"

#include <fcntl.h>
#include <string>
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

Outcome copyShipped(const fs::path& from, const fs::path& to) {
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
        if (Outcome copied = copyShipped(share / file.name, copy); !copied.ok())
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

} // namespace tessaly
