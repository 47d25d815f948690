#include "ui/play/board_keys.h"

#include "core/play/board_input.h"
#include "ui/play/key_codes.h"

#include <QKeyEvent>

namespace tessaly {

bool moveSelection(BoardInput& input, const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
        input.moveSelection(-1, 0);
        return true;
    case Qt::Key_Right:
        input.moveSelection(1, 0);
        return true;
    case Qt::Key_Up:
        input.moveSelection(0, -1);
        return true;
    case Qt::Key_Down:
        input.moveSelection(0, 1);
        return true;
    case Qt::Key_Home:
        input.selectFirst();
        return true;
    case Qt::Key_End:
        input.selectLast();
        return true;
    default:
        return false;
    }
}

bool asksForMenu(const QKeyEvent& event) {
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

void pressKey(BoardInput& input, const QKeyEvent& event) {
    int code = keyCodeOf(event);
    input.Picture2_KeyDown(code);
    if (int character = characterCodeOf(event); character != 0)
        input.Picture2_KeyPress(character);
}

} // namespace tessaly
