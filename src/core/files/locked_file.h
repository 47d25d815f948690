#pragma once

#include "core/files/file_descriptor.h"

#include <string>

namespace tessaly {

/// Where a file lies that is to be written, all symbolic links followed: its open folder and its
/// name in there. The file itself need not exist.
struct FilePlace {
    /// As the user named it, for messages.
    std::filesystem::path path;
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

    /// Waits ten seconds at most for another instance. Refuses what is no regular file, and a file
    /// that may not be written.
    Outcome lock(const std::filesystem::path& path);

    bool exists() const { return m_file.isOpen(); }
    const FileDescriptor& file() const { return m_file; }
    const FilePlace& place() const { return m_place; }
    /// As it was when it was locked.
    const FileState& state() const { return m_state; }

    /// Fails when a program that knows nothing of the lock has changed the file since.
    Outcome checkUnchanged() const;

private:
    void unlock();
    bool attempt(Outcome& outcome);
    bool attemptFile(Outcome& outcome);
    bool attemptFolder(Outcome& outcome);

    FilePlace m_place;
    FileDescriptor m_file;
    FileState m_state;
};

} // namespace tessaly
