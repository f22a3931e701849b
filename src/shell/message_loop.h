// The program's one message loop.
#pragma once

#include <functional>

namespace calquo {

/// Serves messages until the quit message, whose code is returned. An exception that escapes from one message is
/// given to `report`, which finds it in flight, and the loop goes on.
int runMessageLoop(const std::function<void()>& report);

/// Tells the user that something went wrong that nothing else has told.
void reportSpecialCase();

}  // namespace calquo
