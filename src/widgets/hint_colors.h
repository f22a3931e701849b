// The colours of what the program says about the sheet: hints and tips.
#pragma once

#include "widgets/color.h"

namespace calquo {

inline constexpr Color hintPaper{255, 250, 225};
inline constexpr Color hintEdge{205, 195, 150};
inline constexpr Color hintInk{60, 50, 20};

}  // namespace calquo
