// The work of calq, the console program.
#pragma once

#include <span>

namespace calquo {

/// Runs the program with the arguments that follow its name, in UTF-8 on Windows and as they are elsewhere; returns its
/// exit status.
int runCalq(std::span<const char* const> arguments);

}  // namespace calquo
