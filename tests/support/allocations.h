// An operator new that keeps a book, for tests of what allocates and of what is left behind.
#pragma once

namespace calquo {

/// How often operator new was called so far.
int allocationsMade();

/// Results of operator new that have not been deleted.
int allocationsHeld();

}  // namespace calquo
