// Dropped files by the system's shell.
#include "shell/dropped_files.h"

#include "widgets/windows_api.h"

// Needs <windows.h> before it.
#include <shellapi.h>

namespace calquo {
namespace {

template <typename Function>
Function find(const LibraryOwner& library, const char* name) {
    const FARPROC function = library ? GetProcAddress(library.get(), name) : nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(function));
}

}  // namespace

void acceptFiles(WindowHandle window) {
    SetWindowLongPtrW(window, GWL_EXSTYLE, GetWindowLongPtrW(window, GWL_EXSTYLE) | WS_EX_ACCEPTFILES);
}

std::wstring takeDroppedFile(std::uintptr_t drop) {
    // Loaded when it is first wanted, and not at every start.
    static const LibraryOwner library = loadSystemLibrary(L"shell32.dll");
    const auto query = find<decltype(&DragQueryFileW)>(library, "DragQueryFileW");
    const auto finish = find<decltype(&DragFinish)>(library, "DragFinish");
    if (query == nullptr || finish == nullptr) {
        return {};
    }
    const auto files = reinterpret_cast<HDROP>(drop);
    std::wstring name(query(files, 0, nullptr, 0) + 1, L'\0');
    name.resize(query(files, 0, name.data(), static_cast<UINT>(name.size())));
    finish(files);
    return name;
}

}  // namespace calquo
