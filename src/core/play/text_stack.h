#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

/// Texts, the newest last, without a limit. Knows how many of the oldest are still as they were
/// when they were stored last, so that storing a change need not touch what lies beneath it.
class TextStack {
public:
    bool empty() const { return m_texts.empty(); }
    std::size_t size() const { return m_texts.size(); }
    const std::string& newest() const { return m_texts.back(); }
    /// The text that lies `age` texts below the newest.
    const std::string& text(std::size_t age) const { return m_texts[size() - 1 - age]; }

    void push(std::string text) { m_texts.push_back(std::move(text)); }
    std::string pop() {
        std::string text = std::move(m_texts.back());
        m_texts.pop_back();
        m_stored = std::min(m_stored, size());
        return text;
    }
    void clear() {
        m_texts.clear();
        m_stored = 0;
    }

    std::size_t stored() const { return m_stored; }
    void setStored(std::size_t count) { m_stored = count; }

private:
    std::vector<std::string> m_texts;
    std::size_t m_stored = 0;
};

} // namespace tessaly
