// The palette in force, and the system's colours that it may be made of.
#pragma once

#include "widgets/palette.h"

namespace calquo {

/// The colours to draw in: the program's own until others have been taken over.
const Palette& palette();

/// Takes over the colours that the system has now, which count in high contrast alone. True when what is on the screen
/// has to be drawn anew.
bool takeSystemColors();

}  // namespace calquo
