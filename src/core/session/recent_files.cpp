#include "core/session/recent_files.h"

#include <algorithm>
#include <utility>

namespace tessaly {

void RecentFiles::AddRecentFile(const std::filesystem::path& path) {
    if (std::find(m_paths.begin(), m_paths.end(), path) != m_paths.end())
        return;
    if (m_paths.size() == Capacity)
        m_paths.pop_back();
    m_paths.insert(m_paths.begin(), path);
}

void RecentFiles::append(std::filesystem::path path) {
    if (m_paths.size() < Capacity)
        m_paths.push_back(std::move(path));
}

} // namespace tessaly
