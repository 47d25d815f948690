#include "core/files/locked_file.h"

#include "core/base/fnv_hash.h"
#include "core/files/file_descriptor.h"
#include "core/files/line_reader.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
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

constexpr std::string_view ScratchStart = ".tessaly-";
constexpr std::string_view ScratchEnd = ".tmp";

std::uint64_t hashOf(std::string_view text) {
    FnvHash hash;
    hash.add(text);
    return hash.value();
}

enum class Named { Yes, No, Unknown };

/// Whether an open file is the one of that name; `Unknown` has `errno` set.
Named isNamed(const FileDescriptor& file, const FileDescriptor& folder, const std::string& name) {
    const auto opened = FileState::of(file);
    if (!opened)
        return Named::Unknown;
    const auto named = FileState::of(folder, name);
    if (!named)
        return errno == ENOENT ? Named::No : Named::Unknown;
    return named->isSameFile(*opened) ? Named::Yes : Named::No;
}

Outcome takeBack(const LockedFile& file, Outcome problem) {
    const auto cut = [&] { return ::ftruncate(file.file().get(), file.state().size); };
    if (retried(cut) != 0)
        problem.problem += "; a part of what was written may stand at its end";
    return problem;
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

std::string scratchNameOf(const std::string& name) {
    std::uint64_t hash = hashOf(name);
    std::string digits(16, '0');
    for (std::size_t i = digits.size(); i-- > 0; hash /= 16)
        digits[i] = "0123456789abcdef"[hash % 16];
    return std::string(ScratchStart) + digits + std::string(ScratchEnd);
}

bool isScratchName(std::string_view name) {
    return name.size() == scratchNameOf({}).size() && name.starts_with(ScratchStart) &&
           name.ends_with(ScratchEnd);
}

Leftover removeLeftover(const FileDescriptor& folder, const std::string& name) {
    constexpr int Flags = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const FileDescriptor file(retried([&] { return ::openat(folder.get(), name.c_str(), Flags); }));
    if (!file.isOpen())
        return errno == ENOENT ? Leftover::None : Leftover::Stuck;
    const LockAnswer answer = takeLock(file);
    if (answer != LockAnswer::Taken)
        return answer == LockAnswer::Busy ? Leftover::InUse : Leftover::Stuck;
    // Its writer may have finished, and another one begun, between the opening and the lock.
    const Named named = isNamed(file, folder, name);
    if (named != Named::Yes)
        return named == Named::No ? Leftover::InUse : Leftover::Stuck;
    const int removed = retried([&] { return ::unlinkat(folder.get(), name.c_str(), 0); });
    return removed == 0 ? Leftover::Removed : Leftover::Stuck;
}

ScratchFile::ScratchFile(const LockedFile& target)
    : m_target(target)
    , m_name(scratchNameOf(target.place().name)) {}

ScratchFile::~ScratchFile() {
    if (m_file.isOpen())
        retried([&] { return ::unlinkat(m_target.place().folder.get(), m_name.c_str(), 0); });
}

Outcome ScratchFile::create() {
    Outcome outcome;
    if (!patiently([&] { return attempt(outcome); }))
        return Outcome::failed(m_target.place().path.native() +
                               ": is being written by another program");
    return outcome;
}

/// Whether the scratch file is there now, or cannot be made.
bool ScratchFile::attempt(Outcome& outcome) {
    constexpr int Flags = O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC;
    const FilePlace& place = m_target.place();
    // What replaces a file gets its permissions later, and must not be read by others until then.
    const mode_t mode = m_target.exists() ? 0600 : 0666;
    FileDescriptor file(
        retried([&] { return ::openat(place.folder.get(), m_name.c_str(), Flags, mode); }));
    if (!file.isOpen()) {
        const int error = errno;
        if (error == EEXIST && removeLeftover(place.folder, m_name) != Leftover::Stuck)
            return false;
        outcome = fileProblem(place.path, "no new file can be made beside it", error);
        return true;
    }
    const LockAnswer answer = takeLock(file);
    const Named named = isNamed(file, place.folder, m_name);
    if (answer == LockAnswer::Failed || named == Named::Unknown)
        outcome = fileProblem(place.path, "the new file beside it cannot be locked");
    // Another instance may have taken the file for a leftover before it was locked.
    else if (answer == LockAnswer::Busy || named == Named::No)
        return false;
    m_file = std::move(file);
    return true;
}

Outcome ScratchFile::copyPermissions() const {
    struct stat old {};
    struct stat created {};
    if (retried([&] { return ::fstat(m_target.file().get(), &old); }) != 0 ||
        retried([&] { return ::fstat(m_file.get(), &created); }) != 0)
        return fileProblem(m_target.place().path, "cannot be examined");
    // Giving a file away is the system administrator's privilege: it is tried, no more.
    if (old.st_uid != created.st_uid || old.st_gid != created.st_gid)
        static_cast<void>(::fchown(m_file.get(), old.st_uid, old.st_gid) == 0);
    const mode_t mode = old.st_mode & 07777;
    const bool same = (created.st_mode & 07777) == mode;
    if (!same && retried([&] { return ::fchmod(m_file.get(), mode); }) != 0)
        return fileProblem(m_target.place().path, "its permissions cannot be kept");
    return Outcome::done();
}

Outcome ScratchFile::flushFolder() const {
    const FilePlace& place = m_target.place();
    if (retried([&] { return ::fsync(place.folder.get()); }) == 0)
        return Outcome::done();
    // A folder that may not be listed, or one of a file system that flushes no folders.
    const bool cannot = errno == EBADF || errno == EINVAL;
    if (cannot && retried([&] { return ::syncfs(m_file.get()); }) == 0)
        return Outcome::done();
    return fileProblem(place.path, "its folder cannot be flushed to the disk");
}

Outcome ScratchFile::takePlace() {
    const FilePlace& place = m_target.place();
    const int folder = place.folder.get();
    if (m_target.exists())
        if (Outcome kept = copyPermissions(); !kept.ok())
            return kept;
    if (retried([&] { return ::fsync(m_file.get()); }) != 0)
        return fileProblem(place.path, "cannot be flushed to the disk");
    if (Outcome same = m_target.checkUnchanged(); !same.ok())
        return same;
    if (isNamed(m_file, place.folder, m_name) != Named::Yes)
        return Outcome::failed(place.path.native() + ": is being written by another program");
    if (retried([&] { return ::renameat(folder, m_name.c_str(), folder, place.name.c_str()); }) !=
        0)
        return fileProblem(place.path, "cannot be replaced");
    Outcome flushed = flushFolder();
    releaseLock(m_file);
    m_file.close();
    return flushed;
}

Outcome missingLineEnd(const LockedFile& file, std::string_view& missing) {
    std::array<char, ByteOrderMark.size()> bytes{};
    const auto size = file.state().size;
    const auto tail = std::min<std::int64_t>(size, bytes.size());
    const auto got = readAt(file.file(), bytes.data(), static_cast<std::size_t>(tail), size - tail);
    if (got < tail)
        return fileProblem(file.place().path, "cannot be read", got < 0 ? errno : EIO);
    const std::string_view end(bytes.data(), static_cast<std::size_t>(got));
    const bool holdsNoLine = got == size && (end.empty() || end == ByteOrderMark);
    if (holdsNoLine || end.back() == '\n')
        missing = {};
    else
        missing = end.back() == '\r' ? "\n" : LineEnd;
    return Outcome::done();
}

Outcome replaceLocked(const LockedFile& file, const ContentWriter& writer) {
    ScratchFile scratch(file);
    if (Outcome created = scratch.create(); !created.ok())
        return created;
    if (Outcome written = writer(scratch.sink()); !written.ok())
        return written;
    return scratch.takePlace();
}

Outcome appendLocked(const LockedFile& file, std::string_view wholeLines) {
    if (!file.exists())
        return replaceLocked(file, [&](const ContentSink& sink) { return sink.write(wholeLines); });
    std::string_view missing;
    if (Outcome looked = missingLineEnd(file, missing); !looked.ok())
        return looked;
    std::string addition(missing);
    addition += wholeLines;
    const FilePlace& place = file.place();
    if (Outcome written = ContentSink(file.file(), place.path).write(addition); !written.ok())
        return takeBack(file, written);
    if (retried([&] { return ::fsync(file.file().get()); }) != 0)
        return takeBack(file, fileProblem(place.path, "cannot be flushed to the disk"));
    return Outcome::done();
}

} // namespace tessaly
