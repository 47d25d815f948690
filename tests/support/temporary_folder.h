#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace tessaly {

/// A folder of a test's own, gone with everything in it when the test ends.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = std::filesystem::temp_directory_path() / "tessaly-test-XXXXXX";
        if (!::mkdtemp(name.data()))
            throw std::filesystem::filesystem_error("no temporary folder", std::error_code());
        m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(std::string_view name) const { return m_path / name; }
    /// The names of everything that lies in the folder, hidden files included.
    std::set<std::string> names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.insert(entry.path().filename());
        return names;
    }

private:
    std::filesystem::path m_path;
};

inline void put(const std::filesystem::path& path, std::string_view content) {
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string contentOf(const std::filesystem::path& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// The lines of a text without their ends, "\n" or "\r\n"; nothing may follow the last of them.
inline std::vector<std::string> linesOf(const std::string& text, const std::string& end = "\n") {
    std::vector<std::string> lines;
    std::size_t start = 0, at = 0;
    for (; (at = text.find(end, start)) != std::string::npos; start = at + end.size())
        lines.push_back(text.substr(start, at - start));
    EXPECT_EQ(start, text.size()) << "a line that is not ended";
    return lines;
}

} // namespace tessaly
