#include "core/files/locked_file.h"

#include "core/files/file_lock.h"

#include <array>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr std::string_view CannotBeWritten = "cannot be written";
constexpr int MostLinks = 40;

/// Follows one symbolic link. False when there is none at `path`, or with a problem.
bool followLink(std::filesystem::path& path, Outcome& outcome) {
    std::array<char, PATH_MAX> target{};
    const auto size =
        retried([&] { return ::readlink(path.c_str(), target.data(), target.size()); });
    if (size < 0) {
        // EINVAL is a file that is no link.
        if (errno != EINVAL && errno != ENOENT)
            outcome = fileProblem(path, CannotBeWritten);
        return false;
    }
    path = path.parent_path() / std::string(target.data(), static_cast<std::size_t>(size));
    return true;
}

Outcome followLinks(std::filesystem::path& path) {
    Outcome outcome;
    for (int links = 0; followLink(path, outcome); ++links)
        if (links == MostLinks)
            return fileProblem(path, CannotBeWritten, ELOOP);
    return outcome;
}

FileDescriptor openFolder(const std::filesystem::path& folder) {
    constexpr int Flags = O_DIRECTORY | O_CLOEXEC;
    const char* name = folder.empty() ? "." : folder.c_str();
    FileDescriptor opened(retried([&] { return ::open(name, Flags | O_RDONLY); }));
    // A folder that may not be listed may still be written to.
    if (!opened.isOpen() && errno == EACCES)
        opened = FileDescriptor(retried([&] { return ::open(name, Flags | O_PATH); }));
    return opened;
}

} // namespace

Outcome FilePlace::find(const std::filesystem::path& path, FilePlace& place) {
    std::filesystem::path resolved = path;
    if (Outcome named = checkName(path); !named.ok())
        return named;
    if (Outcome followed = followLinks(resolved); !followed.ok())
        return followed;
    place.path = path;
    place.name = resolved.filename().native();
    place.folder = openFolder(resolved.parent_path());
    if (!place.folder.isOpen())
        return fileProblem(path, CannotBeWritten);
    if (place.name.empty())
        return fileProblem(path, CannotBeWritten, path.empty() ? ENOENT : EISDIR);
    return Outcome::done();
}

/// Closing alone would do, were the file not open in a forked child too.
void LockedFile::unlock() {
    releaseLock(m_file.isOpen() ? m_file : m_place.folder);
    m_file.close();
}

Outcome LockedFile::lock(const std::filesystem::path& path) {
    unlock();
    if (Outcome found = FilePlace::find(path, m_place); !found.ok())
        return found;
    Outcome outcome;
    if (!patiently([&] { return attempt(outcome); }))
        outcome = Outcome::failed(path.native() + ": is being written by another program");
    if (!outcome.ok())
        unlock();
    return outcome;
}

/// Whether the file is locked now, or cannot be.
bool LockedFile::attempt(Outcome& outcome) {
    constexpr int Flags = O_RDWR | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    m_file = FileDescriptor(
        retried([&] { return ::openat(m_place.folder.get(), m_place.name.c_str(), Flags); }));
    if (m_file.isOpen())
        return attemptFile(outcome);
    if (errno == ENOENT)
        return attemptFolder(outcome);
    outcome = fileProblem(m_place.path, CannotBeWritten);
    return true;
}

bool LockedFile::attemptFile(Outcome& outcome) {
    outcome = checkRegular(m_file, m_place.path);
    if (!outcome.ok())
        return true;
    const LockAnswer answer = takeLock(m_file);
    if (answer == LockAnswer::Failed)
        outcome = fileProblem(m_place.path, "cannot be locked");
    if (answer != LockAnswer::Taken)
        return answer == LockAnswer::Failed;
    const auto opened = FileState::of(m_file);
    if (!opened) {
        outcome = fileProblem(m_place.path, CannotBeWritten);
        return true;
    }
    m_state = *opened;
    // Whoever held the lock before may have put a new file in this one's place.
    const auto named = FileState::of(m_place.folder, m_place.name);
    if (!named && errno != ENOENT)
        outcome = fileProblem(m_place.path, CannotBeWritten);
    return !outcome.ok() || (named && named->isSameFile(*opened));
}

bool LockedFile::attemptFolder(Outcome& outcome) {
    const LockAnswer answer = takeLock(m_place.folder);
    if (answer == LockAnswer::Failed)
        outcome = fileProblem(m_place.path, "its folder cannot be locked");
    if (answer != LockAnswer::Taken)
        return answer == LockAnswer::Failed;
    if (!FileState::of(m_place.folder, m_place.name)) {
        if (errno != ENOENT)
            outcome = fileProblem(m_place.path, CannotBeWritten);
        return true;
    }
    // Another instance has made the file while this one waited.
    releaseLock(m_place.folder);
    return false;
}

Outcome LockedFile::checkUnchanged() const {
    const auto now = FileState::of(m_place.folder, m_place.name);
    if (!now && errno != ENOENT)
        return fileProblem(m_place.path, CannotBeWritten);
    if (now ? exists() && *now == m_state : !exists())
        return Outcome::done();
    return Outcome::failed(m_place.path.native() +
                           ": was changed by another program at the same moment");
}

} // namespace tessaly
