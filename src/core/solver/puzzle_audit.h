#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// Everything that is wrong with a puzzle record (a line without its line end), in words; nothing
/// when the puzzle is in order. It is when
///
/// - the record is well formed;
/// - every hexagon of its solution holds 1 to 6 and the cells across each side agree;
/// - it has exactly one solution with the blank hexagon withheld;
/// - an easy puzzle falls to rules 1 to 3 with its blank hexagon emptied, while a hard one with its
///   hint in place does not, but does to all four rules;
/// - the hint of a hard puzzle is the number of the cell that it speaks of; an easy one has
///   none.
std::vector<std::string> auditRecord(std::string_view line);

} // namespace tessaly
