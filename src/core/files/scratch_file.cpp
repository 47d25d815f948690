#include "core/files/scratch_file.h"

#include "core/files/file_lock.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr std::string_view ScratchStart = ".tessaly-";
constexpr std::string_view ScratchEnd = ".tmp";

/// The 64-bit FNV-1a hash (Fowler, Noll and Vo).
std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (unsigned char c : text)
        hash = (hash ^ c) * 0x100000001b3;
    return hash;
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

} // namespace

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

} // namespace tessaly
