// The program's icon among its resources.
#pragma once

namespace calquo {

inline constexpr int iconResource = 101;

}  // namespace calquo
