// Every release of a system handle.
#include "widgets/handles.h"

#include <array>

#include "widgets/windows_api.h"

namespace calquo {

void deleteBitmap(BitmapHandle bitmap) { DeleteObject(bitmap); }

void deleteDrawingContext(DrawingContext context) { DeleteDC(context); }

void deleteFont(FontHandle font) { DeleteObject(font); }

void deleteRegion(RegionHandle region) { DeleteObject(region); }

void destroyMenu(MenuHandle menu) { DestroyMenu(menu); }

void destroyWindow(WindowHandle window) { DestroyWindow(window); }

void freeLibrary(ModuleHandle library) { FreeLibrary(library); }

LibraryOwner loadLibraryAt(const std::wstring& path) {
    // Looks for what the library needs beside it or in the system's folder. Systems without the newer flags, a Windows
    // 7 without its updates, refuse them as an invalid parameter.
    HMODULE library =
        LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library == nullptr && GetLastError() == ERROR_INVALID_PARAMETER) {
        library = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    }
    return LibraryOwner(library);
}

LibraryOwner loadSystemLibrary(const wchar_t* name) {
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    if (length == 0 || length >= folder.size()) {
        return LibraryOwner();
    }
    return loadLibraryAt(std::wstring(folder.data(), length) + L'\\' + name);
}

}  // namespace calquo
