#pragma once

#include "core/solver/search_fill.h"

#include <cstdint>

namespace tessaly {

/// One number that depends on everything that the engine fills, solves, counts and creates from
/// fixed seeds. A change that is meant to change nothing leaves it as it is.
std::uint64_t engineSignature(const SearchFill& fill);

} // namespace tessaly
