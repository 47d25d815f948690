#pragma once

#include "core/files/content_sink.h"
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

/// The new content of a file while it is being written: a hidden file beside the old one, locked
/// for as long as its writer lives, so that what a killed process left is told from what another
/// instance is writing.
class ScratchFile {
public:
    /// Makes the scratch file of `target`, which must outlive this object.
    explicit ScratchFile(const LockedFile& target);
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    /// Removes the scratch file unless it has taken the target's place.
    ~ScratchFile();

    Outcome create();
    ContentSink sink() const { return {m_file, m_target.place().path}; }
    /// Puts the content in the target's place, whole, with the target's permissions, and on the
    /// disk.
    Outcome takePlace();

private:
    bool attempt(Outcome& outcome);
    Outcome copyPermissions() const;
    Outcome flushFolder() const;

    const LockedFile& m_target;
    std::string m_name;
    FileDescriptor m_file;
};

/// The name of the scratch file of a file called `name`; it does not grow with it.
std::string scratchNameOf(const std::string& name);
bool isScratchName(std::string_view name);

enum class Leftover { None, Removed, InUse, Stuck };

/// Removes the scratch file `name` from `folder` when no living process writes it. `Stuck` has
/// `errno` set.
Leftover removeLeftover(const FileDescriptor& folder, const std::string& name);

/// Replaces the content of a file that the caller has locked, or makes it.
Outcome replaceLocked(const LockedFile& file, const ContentWriter& writer);

/// Appends lines, each with its line end, to a file that the caller has locked, or makes it. A last
/// line without a line end is ended first. A failure leaves the file as it was.
Outcome appendLocked(const LockedFile& file, std::string_view wholeLines);

/// What has to be written behind a file that the caller has locked before a new line can follow:
/// the end of its last line, as far as it is missing.
Outcome missingLineEnd(const LockedFile& file, std::string_view& missing);

} // namespace tessaly
