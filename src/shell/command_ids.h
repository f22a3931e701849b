// The command identifiers that menus, panels and windows share.
#pragma once

#include <cstdint>

namespace calquo {

enum class Command : std::uint16_t {
    WorkArea = 1,  ///< Carried by the work area's own notifications.
    HelpContents = 2592,
};

}  // namespace calquo
