// Every release of a system handle.
#include "widgets/handles.h"

#include "widgets/windows_api.h"

namespace calquo {

void destroyWindow(WindowHandle window) { DestroyWindow(window); }

void freeLibrary(ModuleHandle library) { FreeLibrary(library); }

}  // namespace calquo
