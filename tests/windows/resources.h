// What this process holds of the system's, for tests that nothing leaks.
#pragma once

namespace calquo {

struct Resources {
    int drawingObjects = 0;  ///< Fonts, brushes, bitmaps, device contexts and the like.
    int windows = 0;         ///< Of this thread, tooltips included.
    int allocations = 0;     ///< Results of operator new that have not been deleted.
};

Resources heldResources();

}  // namespace calquo
