#pragma once

#include "core/board/vocabulary.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// One change of a cell, as it can be taken back.
struct UndoRecord {
    CellId cell;
    /// Whether it belongs to a run of changes that one assist made.
    bool grouped = false;
    std::string entryBefore;
};

/// The changes that can be taken back, newest first, without a limit. Each is kept as a text:
/// hexagon and cell as two digits each, "*" when grouped, then the entry before the change.
class UndoList {
public:
    bool empty() const { return m_records.empty(); }
    std::size_t size() const { return m_records.size(); }
    void clear() { m_records.clear(); }

    void push(CellId cell, bool grouped, std::string_view entryBefore);
    UndoRecord newest() const;
    void removeNewest() { m_records.pop_back(); }

    /// The text of the record that lies `age` records below the newest.
    const std::string& text(std::size_t age) const { return m_records[m_records.size() - 1 - age]; }

private:
    std::vector<std::string> m_records;
};

} // namespace tessaly
