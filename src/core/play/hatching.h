#pragma once

#include "core/play/board_geometry.h"

#include <utility>
#include <vector>

namespace tessaly {

/// Parallel lines that rise to the right at 45 degrees through a hexagon, from border to border,
/// one of them through its centre.
std::vector<std::pair<Point, Point>> hatchLines(int hexagon);

} // namespace tessaly
