#pragma once

#include "core/files/file_descriptor.h"
#include "core/files/lock_file.h"

#include <string>
#include <string_view>

namespace tessaly {

/// Where a file lies that is to be written, all symbolic links followed: its open folder and its
/// name in there. The file itself need not exist.
struct FilePlace {
    /// As the user named it, for messages.
    std::filesystem::path path;
    std::filesystem::path folderPath;
    FileDescriptor folder;
    std::string name;

    static Outcome find(const std::filesystem::path& path, FilePlace& place);
};

/// A file that no other instance of this program writes while this object lives: locked, read, and
/// written once. A file that does not exist yet is locked by its folder.
class LockedFile {
public:
    LockedFile() = default;
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;
    ~LockedFile() { unlock(); }

    /// Waits for another instance as long as `wait` does. Refuses what is no regular file, and a
    /// file that may not be written. What killed processes left in its folder is cleared up.
    Outcome lock(const std::filesystem::path& path, const LockWait& wait = {});

    bool exists() const { return m_file.isOpen(); }
    const FileDescriptor& file() const { return m_file; }
    const FilePlace& place() const { return m_place; }
    /// As it was when it was locked.
    const FileState& state() const { return m_state; }

    /// Gives the file new content, keeping its permissions, or makes it. A new file is written
    /// beside the old one and then takes its name, so that whatever instant the process dies the
    /// old content stands or the new one.
    Outcome replace(const ContentWriter& writer) const;

    /// The same, but where there was no file when it was locked and a program that could not be
    /// kept out has made one since, nothing is written and `isFirst` is false.
    Outcome replace(const ContentWriter& writer, bool& isFirst) const;

    /// Appends lines, each with its line end, to a file that exists. A last line without a line end
    /// is ended first. A failure leaves the file as it was.
    Outcome append(std::string_view wholeLines) const;

    /// Whether the name still means the file that was locked; false when a program that knows
    /// nothing of the lock has put another file in its place, or removed it.
    Outcome checkNamed(bool& stillNamed) const;

    /// What has to be written behind the file before a new line can follow: the end of its last
    /// line, as far as it is missing.
    Outcome missingLineEnd(std::string_view& missing) const;

private:
    void unlock();
    bool attempt(Outcome& outcome);
    bool attemptFile(Outcome& outcome);
    bool attemptFolder(Outcome& outcome);
    LockAnswer takeLockOf(const FileDescriptor& file);
    Outcome takeBack(std::string_view addition, Outcome problem) const;

    FilePlace m_place;
    FileDescriptor m_file;
    /// Where the file system knows no locks.
    LockFile m_lockFile;
    FileState m_state;
};

/// Removes what killed processes left in a folder while they wrote.
void removeLeftovers(const std::filesystem::path& folder);

} // namespace tessaly
