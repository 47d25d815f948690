#include "core/files/locked_file.h"

#include "core/files/line_reader.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace tessaly {
namespace {

constexpr std::string_view CannotBeWritten = "cannot be written";
constexpr std::string_view CannotBeExamined = "cannot be examined";
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
    FileDescriptor opened(retried([&] { return ::open(folder.c_str(), Flags | O_RDONLY); }));
    // A folder that may not be listed may still be written to.
    if (!opened.isOpen() && errno == EACCES)
        opened = FileDescriptor(retried([&] { return ::open(folder.c_str(), Flags | O_PATH); }));
    return opened;
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

// ---- scratch files

constexpr std::string_view ScratchStart = ".tessaly-";
constexpr std::string_view ScratchEnd = ".tmp";
constexpr std::size_t ScratchDigits = 16;

/// A name that nobody can foresee, and so nobody can occupy.
std::string newScratchName() {
    std::random_device chance;
    std::string digits(ScratchDigits, '0');
    for (char& digit : digits)
        digit = "0123456789abcdef"[chance() % 16];
    return std::string(ScratchStart) + digits + std::string(ScratchEnd);
}

bool isScratchName(std::string_view name) {
    return name.size() == ScratchStart.size() + ScratchDigits + ScratchEnd.size() &&
           name.starts_with(ScratchStart) && name.ends_with(ScratchEnd);
}

void removeLeftover(const FileDescriptor& folder, const std::string& name,
                    const FileDescriptor& held) {
    constexpr int Flags = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const FileDescriptor file(retried([&] { return ::openat(folder.get(), name.c_str(), Flags); }));
    const bool isSecondName = held.isOpen() && isNamed(held, folder, name) == Named::Yes;
    // A living writer holds the lock. Where nothing can be locked nobody knows, and the file stays.
    if (isSecondName || (file.isOpen() && takeLock(file) == LockAnswer::Taken &&
                         isNamed(file, folder, name) == Named::Yes))
        retried([&] { return ::unlinkat(folder.get(), name.c_str(), 0); });
}

/// `held` is the file that is locked here, if there is one: a new file keeps its scratch name when
/// its writer dies just after it has taken its own.
void removeLeftovers(const std::filesystem::path& path, const FileDescriptor& folder,
                     const FileDescriptor& held) {
    std::error_code error;
    std::filesystem::directory_iterator entry(path, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        if (const auto name = entry->path().filename().native(); isScratchName(name))
            removeLeftover(folder, name, held);
}

/// The new content of a file while it is being written: a hidden file beside the old one, locked
/// for as long as its writer lives, so that what a killed process left is told from what another
/// instance is writing.
class ScratchFile {
public:
    explicit ScratchFile(const LockedFile& target)
        : m_target(target)
        , m_place(target.place()) {}
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    /// Removes the scratch file unless it has taken the target's place.
    ~ScratchFile() {
        if (m_file.isOpen())
            retried([&] { return ::unlinkat(m_place.folder.get(), m_name.c_str(), 0); });
    }

    Outcome create();
    ContentSink sink() const { return {m_file, m_place.path}; }
    /// Puts the content in the target's place, whole, with the target's permissions, and on the
    /// disk. A target that is there against all expectation stays; then `isFirst` is false.
    Outcome takePlace(bool& isFirst);

private:
    Outcome checkTarget() const;
    int replaceTarget() const;
    int makeTarget() const;
    Outcome copyPermissions() const;
    Outcome flushFolder() const;

    const LockedFile& m_target;
    const FilePlace& m_place;
    std::string m_name;
    FileDescriptor m_file;
};

Outcome ScratchFile::create() {
    constexpr int MostAttempts = 100;
    constexpr int Flags = O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC;
    // What replaces a file gets its permissions later, and must not be read by others until then.
    const mode_t mode = m_target.exists() ? 0600 : 0666;
    for (int attempt = 0; attempt < MostAttempts; ++attempt) {
        m_name = newScratchName();
        m_file = FileDescriptor(
            retried([&] { return ::openat(m_place.folder.get(), m_name.c_str(), Flags, mode); }));
        if (!m_file.isOpen() && errno != EEXIST)
            return fileProblem(m_place.path, "no new file can be made beside it");
        if (!m_file.isOpen())
            continue;
        const LockAnswer answer = takeLock(m_file);
        const Named named = isNamed(m_file, m_place.folder, m_name);
        if (answer == LockAnswer::Failed || named == Named::Unknown)
            return fileProblem(m_place.path, "the new file beside it cannot be locked");
        // Another instance may have taken the file for a leftover before it was locked.
        if (answer != LockAnswer::Busy && named == Named::Yes)
            return Outcome::done();
        m_file.close();
    }
    return fileProblem(m_place.path, "no new file can be made beside it", EEXIST);
}

/// Gives a file away as far as the system lets this user. Whether the group, at least, was kept.
bool giveTo(const FileDescriptor& file, const struct stat& owner, const struct stat& now) {
    constexpr auto Same = static_cast<uid_t>(-1);
    if (owner.st_uid != now.st_uid && ::fchown(file.get(), owner.st_uid, owner.st_gid) == 0)
        return true;
    return owner.st_gid == now.st_gid || ::fchown(file.get(), Same, owner.st_gid) == 0;
}

/// Copies the extended attributes, as far as they can be. Whether the list of who else has access,
/// if there is one, was among them.
bool copyAttributes(const FileDescriptor& from, const FileDescriptor& to) {
    constexpr std::string_view AccessList = "system.posix_acl_access";
    constexpr std::size_t Longest = std::size_t{64} * 1024;
    std::vector<char> names(Longest);
    std::vector<char> value(Longest);
    const auto size = ::flistxattr(from.get(), names.data(), names.size());
    bool kept = true;
    for (std::size_t at = 0; size > 0 && at < static_cast<std::size_t>(size);) {
        const std::string name(&names[at]);
        at += name.size() + 1;
        const auto length = ::fgetxattr(from.get(), name.c_str(), value.data(), value.size());
        const bool copied = length >= 0 && ::fsetxattr(to.get(), name.c_str(), value.data(),
                                                       static_cast<std::size_t>(length), 0) == 0;
        kept = kept && (copied || name != AccessList);
    }
    return kept;
}

/// Whom the rights of the group are meant for is gone when the group or the access list cannot be
/// kept; then nobody gets them, rather than somebody else, and all others no more than the group.
Outcome ScratchFile::copyPermissions() const {
    struct stat old {};
    struct stat created {};
    if (retried([&] { return ::fstat(m_target.file().get(), &old); }) != 0 ||
        retried([&] { return ::fstat(m_file.get(), &created); }) != 0)
        return fileProblem(m_place.path, CannotBeExamined);
    const bool keptGroup = giveTo(m_file, old, created);
    const bool keptList = copyAttributes(m_target.file(), m_file);
    mode_t mode = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (!keptGroup || !keptList)
        mode = (mode & S_IRWXU) | (mode & (mode >> 3) & S_IRWXO);
    if (retried([&] { return ::fchmod(m_file.get(), mode); }) != 0)
        return fileProblem(m_place.path, "its permissions cannot be kept");
    return Outcome::done();
}

Outcome ScratchFile::flushFolder() const {
    if (retried([&] { return ::fsync(m_place.folder.get()); }) == 0)
        return Outcome::done();
    // A folder that may not be listed, or one of a file system that flushes no folders.
    const bool cannot = errno == EBADF || errno == EINVAL;
    if (cannot && retried([&] { return ::syncfs(m_file.get()); }) == 0)
        return Outcome::done();
    return fileProblem(m_place.path, "was saved, but its folder cannot be flushed to the disk");
}

Outcome changedMeanwhile(const std::filesystem::path& path) {
    return Outcome::failed(path.native() + ": was changed by another program at the same moment");
}

/// Fails when a program that knows nothing of the lock has changed the target since.
Outcome ScratchFile::checkTarget() const {
    if (!m_target.exists())
        return Outcome::done();
    const auto now = FileState::of(m_place.folder, m_place.name);
    if (!now && errno != ENOENT)
        return fileProblem(m_place.path, CannotBeWritten);
    return now && *now == m_target.state() ? Outcome::done() : changedMeanwhile(m_place.path);
}

/// A link, unlike a new name, never takes another file's place. Not every file system knows links.
int ScratchFile::makeTarget() const {
    const int folder = m_place.folder.get();
    const int linked =
        retried([&] { return ::linkat(folder, m_name.c_str(), folder, m_place.name.c_str(), 0); });
    if (linked == 0)
        retried([&] { return ::unlinkat(folder, m_name.c_str(), 0); });
    const bool cannot = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    return linked != 0 && cannot ? replaceTarget() : linked;
}

int ScratchFile::replaceTarget() const {
    const int folder = m_place.folder.get();
    return retried(
        [&] { return ::renameat(folder, m_name.c_str(), folder, m_place.name.c_str()); });
}

Outcome ScratchFile::takePlace(bool& isFirst) {
    if (m_target.exists())
        if (Outcome kept = copyPermissions(); !kept.ok())
            return kept;
    if (retried([&] { return ::fsync(m_file.get()); }) != 0)
        return fileProblem(m_place.path, "cannot be flushed to the disk");
    if (Outcome same = checkTarget(); !same.ok())
        return same;
    if (isNamed(m_file, m_place.folder, m_name) != Named::Yes)
        return Outcome::failed(m_place.path.native() + ": is being written by another program");
    const int renamed = m_target.exists() ? replaceTarget() : makeTarget();
    isFirst = renamed == 0 || m_target.exists() || errno != EEXIST;
    if (!isFirst)
        return Outcome::done();
    if (renamed != 0)
        return fileProblem(m_place.path, "cannot be replaced");
    Outcome flushed = flushFolder();
    releaseLock(m_file);
    m_file.close();
    return flushed;
}

} // namespace

Outcome FilePlace::find(const std::filesystem::path& path, FilePlace& place) {
    std::filesystem::path resolved = path;
    if (Outcome followed = followLinks(resolved); !followed.ok())
        return followed;
    place.path = path;
    place.name = resolved.filename().native();
    place.folderPath = resolved.has_parent_path() ? resolved.parent_path() : ".";
    place.folder = openFolder(place.folderPath);
    if (!place.folder.isOpen())
        return fileProblem(path, CannotBeWritten);
    if (place.name.empty())
        return fileProblem(path, CannotBeWritten, path.empty() ? ENOENT : EISDIR);
    return Outcome::done();
}

/// Closing alone would do, were the file not open in a forked child too.
void LockedFile::unlock() {
    releaseLock(m_file.isOpen() ? m_file : m_place.folder);
    m_lockFile.release();
    m_file.close();
}

LockAnswer LockedFile::takeLockOf(const FileDescriptor& file) {
    const LockAnswer answer = takeLock(file);
    return answer == LockAnswer::Unknown ? m_lockFile.take(m_place.folder, m_place.name) : answer;
}

Outcome LockedFile::lock(const std::filesystem::path& path, const LockWait& wait) {
    unlock();
    Outcome outcome = checkName(path);
    m_place.path = path;
    const auto tried = [&] { return attempt(outcome); };
    if (outcome.ok() && !(wait ? wait(path, tried) : patiently(tried)))
        outcome = Outcome::failed(path.native() + ": is being written by another program");
    if (outcome.ok())
        removeLeftovers(m_place.folderPath, m_place.folder, m_file);
    else
        unlock();
    return outcome;
}

/// Whether the file is locked now, or cannot be. The kernel opens it, and so decides which links
/// may be followed; where they lead is looked up for its folder's sake and compared.
bool LockedFile::attempt(Outcome& outcome) {
    constexpr int Flags = O_RDWR | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const std::filesystem::path path = m_place.path;
    m_lockFile.release();
    m_file = FileDescriptor(retried([&] { return ::open(path.c_str(), Flags); }));
    if (!m_file.isOpen() && errno != ENOENT)
        outcome = fileProblem(path, CannotBeWritten);
    else
        outcome = FilePlace::find(path, m_place);
    if (!outcome.ok())
        return true;
    return m_file.isOpen() ? attemptFile(outcome) : attemptFolder(outcome);
}

bool LockedFile::attemptFile(Outcome& outcome) {
    outcome = checkRegular(m_file, m_place.path);
    if (!outcome.ok())
        return true;
    const LockAnswer answer = takeLockOf(m_file);
    if (answer == LockAnswer::Failed)
        outcome = fileProblem(m_place.path, "cannot be locked");
    if (answer == LockAnswer::Failed || answer == LockAnswer::Busy)
        return answer == LockAnswer::Failed;
    const auto opened = FileState::of(m_file);
    if (!opened) {
        outcome = fileProblem(m_place.path, CannotBeWritten);
        return true;
    }
    m_state = *opened;
    // Whoever held the lock before may have put a new file in this one's place.
    bool stillNamed = false;
    outcome = checkNamed(stillNamed);
    return !outcome.ok() || stillNamed;
}

bool LockedFile::attemptFolder(Outcome& outcome) {
    const LockAnswer answer = takeLockOf(m_place.folder);
    if (answer == LockAnswer::Failed)
        outcome = fileProblem(m_place.path, "its folder cannot be locked");
    if (answer == LockAnswer::Failed || answer == LockAnswer::Busy)
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

Outcome LockedFile::checkNamed(bool& stillNamed) const {
    const auto named = FileState::of(m_place.folder, m_place.name);
    stillNamed = named && named->isSameFile(m_state);
    if (!named && errno != ENOENT)
        return fileProblem(m_place.path, CannotBeExamined);
    return Outcome::done();
}

Outcome LockedFile::missingLineEnd(std::string_view& missing) const {
    std::array<char, ByteOrderMark.size()> bytes{};
    const auto tail = std::min<std::int64_t>(m_state.size, bytes.size());
    const auto got =
        readAt(m_file, bytes.data(), static_cast<std::size_t>(tail), m_state.size - tail);
    if (got < tail)
        return fileProblem(m_place.path, "cannot be read", got < 0 ? errno : EIO);
    const std::string_view end(bytes.data(), static_cast<std::size_t>(got));
    const bool holdsNoLine = got == m_state.size && withoutMark(end).empty();
    if (holdsNoLine || end.back() == '\n')
        missing = {};
    else
        missing = end.back() == '\r' ? "\n" : LineEnd;
    return Outcome::done();
}

Outcome LockedFile::replace(const ContentWriter& writer, bool& isFirst) const {
    ScratchFile scratch(*this);
    if (Outcome created = scratch.create(); !created.ok())
        return created;
    if (Outcome written = writer(scratch.sink()); !written.ok())
        return written;
    return scratch.takePlace(isFirst);
}

Outcome LockedFile::replace(const ContentWriter& writer) const {
    bool isFirst = true;
    Outcome replaced = replace(writer, isFirst);
    return isFirst ? replaced : changedMeanwhile(m_place.path);
}

Outcome LockedFile::append(std::string_view wholeLines) const {
    std::string_view missing;
    if (Outcome looked = missingLineEnd(missing); !looked.ok())
        return looked;
    const std::string addition = std::string(missing).append(wholeLines);
    Outcome outcome = ContentSink(m_file, m_place.path).write(addition);
    if (outcome.ok() && retried([&] { return ::fsync(m_file.get()); }) != 0)
        outcome = fileProblem(m_place.path, "cannot be flushed to the disk");
    return outcome.ok() ? outcome : takeBack(addition, outcome);
}

/// Cuts off what was written of `addition`, but nothing that another program has appended.
Outcome LockedFile::takeBack(std::string_view addition, Outcome problem) const {
    std::string behind(addition.size() + 1, '\0');
    const auto got = readAt(m_file, behind.data(), behind.size(), m_state.size);
    behind.resize(static_cast<std::size_t>(std::max<std::int64_t>(got, 0)));
    const bool isOwn = got >= 0 && addition.starts_with(behind);
    if (!isOwn || retried([&] { return ::ftruncate(m_file.get(), m_state.size); }) != 0)
        problem.problem += "; a part of what was written may stand at its end";
    return problem;
}

void removeLeftovers(const std::filesystem::path& folder) {
    removeLeftovers(folder, openFolder(folder), {});
}

} // namespace tessaly
