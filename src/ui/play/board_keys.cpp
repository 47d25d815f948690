#include "ui/play/board_keys.h"

#include "core/play/board_input.h"

#include <QKeyEvent>

namespace tessaly {
namespace {

/// Ctrl+H is a backspace to a terminal, but not to a player.
bool isPartOfAShortcut(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

} // namespace

int keyCodeOf(const QKeyEvent& event) {
    if (isPartOfAShortcut(event))
        return 0;
    switch (event.key()) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Delete:
        return 46;
    default:
        break;
    }
    const bool isDigit = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
    const bool onNumericPad = event.modifiers().testFlag(Qt::KeypadModifier);
    return isDigit && !onNumericPad ? event.key() - Qt::Key_0 + '0' : 0;
}

int characterCodeOf(const QKeyEvent& event) {
    if (isPartOfAShortcut(event))
        return 0;
    const QString text = event.text();
    return text.size() == 1 ? text.front().unicode() : 0;
}

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

bool readsOrClicks(BoardInput& input, const QKeyEvent& event) {
    if (isPartOfAShortcut(event))
        return false;
    switch (event.key()) {
    case Qt::Key_H:
        input.readHexagon();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event.isAutoRepeat())
            input.Picture2_MouseUp(PointerButton::Left);
        return true;
    default:
        return false;
    }
}

bool asksForMenu(const QKeyEvent& event) {
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

bool isEnter(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           !event.isAutoRepeat() && !isPartOfAShortcut(event);
}

bool turnsMark(BoardInput& input, const QKeyEvent& event) {
    const Qt::KeyboardModifiers held =
        event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (event.key() < Qt::Key_0 || event.key() > Qt::Key_6 ||
        !(held == Qt::ControlModifier || (held == Qt::NoModifier && input.makesMarks())))
        return false;
    if (!event.isAutoRepeat())
        input.turnMark(event.key() - Qt::Key_0);
    return true;
}

void pressKey(BoardInput& input, const QKeyEvent& event) {
    int code = keyCodeOf(event);
    input.Picture2_KeyDown(code);
    if (int character = characterCodeOf(event); character != 0)
        input.Picture2_KeyPress(character);
}

} // namespace tessaly
