#include "core/files/line_index.h"

#include "core/base/text.h"
#include "core/files/line_reader.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <system_error>

namespace tessaly {
namespace {

// Small enough for the processor's caches, large enough that system calls do not count.
constexpr std::int64_t BlockSize = std::int64_t{64} * 1024;

const char* nextLineEnd(const char* from, const char* end) {
    return static_cast<const char*>(std::memchr(from, '\n', static_cast<std::size_t>(end - from)));
}

std::int64_t countLineEnds(std::string_view text) {
    const char* const end = text.data() + text.size();
    std::int64_t count = 0;
    for (const char* at = text.data(); at != end && (at = nextLineEnd(at, end)); ++at)
        ++count;
    return count;
}

/// The size of `text` without the blank lines and blanks at its end.
std::size_t sizeOfContent(std::string_view text) {
    std::size_t size = text.size();
    while (size > 0 && BlankCharacters.find(text[size - 1]) != std::string_view::npos)
        --size;
    return size;
}

Outcome cannotRead(std::int64_t got) {
    return got < 0 ? Outcome::failed(std::generic_category().message(errno))
                   : Outcome::failed("it became shorter meanwhile");
}

} // namespace

Outcome LineIndex::update(const FileDescriptor& file, const Yield& yield) {
    const auto state = FileState::of(file);
    if (!state)
        return cannotRead(-1);
    if (isOf(*state))
        return Outcome::done();
    *this = LineIndex();
    m_state = *state;
    m_settled = state->wouldShowAChange();
    return read(file, 0, yield);
}

Outcome LineIndex::updateAppended(const FileDescriptor& file) {
    const auto state = FileState::of(file);
    m_valid = m_valid && state && state->isSameFile(m_state) && state->size >= m_state.size;
    if (!m_valid || m_lineEndsBefore.empty())
        return update(file);
    m_state = *state;
    m_settled = state->wouldShowAChange();
    // The last block was not full, so its lines are counted anew.
    m_lineEnds = m_lineEndsBefore.back();
    m_lineEndsBefore.pop_back();
    return read(file, static_cast<std::int64_t>(m_lineEndsBefore.size()) * BlockSize, {});
}

/// Reads the file from a block's start, as far as it went when its state was taken.
Outcome LineIndex::read(const FileDescriptor& file, std::int64_t offset, const Yield& yield) {
    m_valid = false;
    std::vector<char> bytes(static_cast<std::size_t>(std::min(BlockSize, m_state.size)));
    for (; offset < m_state.size; offset += BlockSize) {
        const auto size = std::min(BlockSize, m_state.size - offset);
        const auto got = readAt(file, bytes.data(), static_cast<std::size_t>(size), offset);
        if (got < size)
            return cannotRead(got);
        take({bytes.data(), static_cast<std::size_t>(size)}, offset);
        if (yield)
            yield();
    }
    if (m_lineEnds >= INT_MAX)
        return Outcome::failed("it has more lines than can be numbered");
    m_valid = true;
    return Outcome::done();
}

void LineIndex::take(std::string_view block, std::int64_t offset) {
    if (offset == 0)
        m_textStart = static_cast<std::int64_t>(block.size() - withoutMark(block).size());
    const auto mark = offset == 0 ? static_cast<std::size_t>(m_textStart) : 0;
    const std::size_t content = mark + sizeOfContent(block.substr(mark));
    m_lineEndsBefore.push_back(m_lineEnds);
    m_lineEnds += countLineEnds(block.substr(0, content));
    if (content > mark)
        m_count = m_lineEnds + 1;
    m_lineEnds += countLineEnds(block.substr(content));
    m_endsInLineEnd = block.ends_with('\n');
}

bool LineIndex::hasBlankTail() const {
    const bool isEmpty = m_state.size == m_textStart;
    return m_lineEnds > m_count || (m_lineEnds == m_count && !isEmpty && !m_endsInLineEnd);
}

Outcome LineIndex::find(const FileDescriptor& file, int number, LineSpan& span) const {
    if (Outcome found = findStart(file, number, span.begin); !found.ok())
        return found;
    if (number <= m_lineEnds)
        return findStart(file, std::int64_t{number} + 1, span.end);
    span.end = m_state.size;
    return Outcome::done();
}

/// A line begins behind the line end before it.
Outcome LineIndex::findStart(const FileDescriptor& file, std::int64_t line,
                             std::int64_t& offset) const {
    if (line == 1) {
        offset = m_textStart;
        return Outcome::done();
    }
    const auto after = std::lower_bound(m_lineEndsBefore.begin(), m_lineEndsBefore.end(), line - 1);
    const auto before = std::prev(after);
    std::vector<char> bytes(static_cast<std::size_t>(BlockSize));
    const auto block = (before - m_lineEndsBefore.begin()) * BlockSize;
    const auto got = readAt(file, bytes.data(), bytes.size(), block);
    const char* const end = bytes.data() + std::max<std::int64_t>(got, 0);
    const char* at = bytes.data();
    for (auto left = line - 1 - *before; left > 0; --left) {
        const char* const found = at == end ? nullptr : nextLineEnd(at, end);
        if (!found)
            return cannotRead(got < 0 ? got : 0);
        at = found + 1;
    }
    offset = block + (at - bytes.data());
    return Outcome::done();
}

} // namespace tessaly
