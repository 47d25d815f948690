#include "core/play/board_geometry.h"

#include <algorithm>

namespace tessaly {

CellId cellAt(Point point) {
    const auto found = std::find_if(AllCells.begin(), AllCells.end(), [point](CellId cell) {
        return hitRectangle(cell).contains(point);
    });
    return found != AllCells.end() ? *found : CellId{};
}

} // namespace tessaly
