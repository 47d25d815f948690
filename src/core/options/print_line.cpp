#include "core/options/print_line.h"

#include "core/base/leading_number.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessaly {

int printLineWidth(std::string_view text) {
    constexpr double Largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::nearbyint(leadingNumber(text)), 1.0, Largest));
}

} // namespace tessaly
