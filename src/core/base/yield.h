#pragma once

#include <functional>

namespace tessaly {

/// What long work calls now and then, so that its owner can keep a window live. May be empty.
using Yield = std::function<void()>;

} // namespace tessaly
