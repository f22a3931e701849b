// Every release of a system handle.
#include "widgets/handles.h"

#include "widgets/windows_api.h"

namespace calquo {

void deleteBitmap(BitmapHandle bitmap) { DeleteObject(bitmap); }

void deleteDrawingContext(DrawingContext context) { DeleteDC(context); }

void deleteFont(FontHandle font) { DeleteObject(font); }

void deleteRegion(RegionHandle region) { DeleteObject(region); }

void destroyMenu(MenuHandle menu) { DestroyMenu(menu); }

void destroyWindow(WindowHandle window) { DestroyWindow(window); }

void freeLibrary(ModuleHandle library) { FreeLibrary(library); }

LibraryOwner loadSystemLibrary(const wchar_t* name) {
    return LibraryOwner(LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
}

}  // namespace calquo
