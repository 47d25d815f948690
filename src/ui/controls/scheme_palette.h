#pragma once

#include "core/options/appearance.h"

#include <QPalette>
#include <QString>

namespace tessaly {

/// The scheme in force for windows, dialogs and their controls. Text is black or white, whichever
/// reads better on what lies under it.
QPalette schemePalette(const Appearance& appearance);

/// The scheme in force for the menu bar and all of its menus, as a style sheet.
QString menuStyleSheet(const Appearance& appearance);

/// The scheme for a first start: light or dark as the desktop's own windows are.
const char* schemeLikeDesktop(const QPalette& desktop);

} // namespace tessaly
