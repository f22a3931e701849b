// Why the program could not start, in words for its user.
#pragma once

#include <cstdint>

#include "shell/user_dialogs.h"

namespace calquo {

enum class StartFailure : std::uint8_t { NoMemory, NoTextControl, NoWindow };

BoxText cannotStartBox(StartFailure failure);

}  // namespace calquo
