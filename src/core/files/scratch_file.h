#pragma once

#include "core/files/content_sink.h"
#include "core/files/locked_file.h"

namespace tessaly {

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

} // namespace tessaly
