// The system's annotations, whose manager is found when the first window is asked for its name.
#include "widgets/annotation.h"

#include "widgets/windows_api.h"

// Need the system's headers before them.
#include <ole2.h>
#include <oleacc.h>

namespace calquo {
namespace {

/// As the system's headers give them, for which a library of theirs would be needed.
constexpr CLSID managerClass{0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr IID managerInterface{0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr MSAAPROPID nameProperty{0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};

constexpr auto client = static_cast<DWORD>(OBJID_CLIENT);

template <typename Function>
Function find(HMODULE library, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

/// Null where the system has none.
IAccPropServices* makeManager() {
    using Initialize = HRESULT(WINAPI*)(LPVOID, DWORD);
    using CreateInstance = HRESULT(WINAPI*)(const CLSID&, LPUNKNOWN, DWORD, const IID&, LPVOID*);
    // It stays, and so does what is made by it, until the process ends: the manager may be asked by the last window.
    const HMODULE library = loadSystemLibrary(L"ole32.dll").release();
    if (library == nullptr) {
        return nullptr;
    }
    const auto initialize = find<Initialize>(library, "CoInitializeEx");
    const auto createInstance = find<CreateInstance>(library, "CoCreateInstance");
    void* manager = nullptr;
    if (initialize == nullptr || createInstance == nullptr) {
        return nullptr;
    }
    initialize(nullptr, COINIT_APARTMENTTHREADED);  // refused only where it has been done in another way
    const HRESULT made = createInstance(managerClass, nullptr, CLSCTX_INPROC_SERVER, managerInterface, &manager);
    return FAILED(made) ? nullptr : static_cast<IAccPropServices*>(manager);
}

IAccPropServices* manager() {
    static IAccPropServices* const made = makeManager();
    return made;
}

}  // namespace

bool annotateName(WindowHandle window, const std::wstring& name) {
    return manager() != nullptr &&
           SUCCEEDED(manager()->SetHwndPropStr(window, client, CHILDID_SELF, nameProperty, name.c_str()));
}

void removeAnnotation(WindowHandle window) {
    manager()->ClearHwndProps(window, client, CHILDID_SELF, &nameProperty, 1);
}

}  // namespace calquo
