#pragma once

#include "core/options/appearance.h"

namespace tessaly {

/// Makes a whole scheme of one base colour: slot 2 is the base, slots 3 to 8 are the base shifted
/// darker and lighter in steps that grow with the contrast (in percent; a negative one swaps dark
/// and light). Every channel of a shifted colour lies in 1..244. Slot 13 keeps its value.
void BuildScheme(Colour base, int contrast, SchemeColours& colours);

} // namespace tessaly
