#pragma once

#include "core/board/vocabulary.h"
#include "core/play/text_stack.h"

#include <string>
#include <string_view>

namespace tessaly {

/// One change of a cell, as it can be taken back.
struct UndoRecord {
    CellId cell;
    /// Whether it belongs to a run of changes that one assist made.
    bool grouped = false;
    std::string entryBefore;

    static UndoRecord of(std::string_view text);
};

/// The changes that can be taken back, newest first, without a limit. Each is kept as a text:
/// hexagon and cell as two digits each, "*" when grouped, then the entry before the change.
class UndoList : public TextStack {
public:
    using TextStack::push;
    void push(CellId cell, bool grouped, std::string_view entryBefore);
};

} // namespace tessaly
