#pragma once

#include <filesystem>
#include <vector>

namespace tessaly {

/// The puzzle files used last, up to five, the most recent first.
class RecentFiles {
public:
    static constexpr std::size_t Capacity = 5;

    /// Puts `path` at the head, where the oldest may fall off the end. A path that is listed
    /// already keeps its place.
    void AddRecentFile(const std::filesystem::path& path);

    /// Puts `path` behind the others, as when a stored list is read; a full list stays as it is.
    void append(std::filesystem::path path);

    const std::vector<std::filesystem::path>& paths() const { return m_paths; }

    friend bool operator==(const RecentFiles&, const RecentFiles&) = default;

private:
    std::vector<std::filesystem::path> m_paths;
};

} // namespace tessaly
