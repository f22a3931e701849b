// The system's tooltip control, loaded when the first one is needed.
#include "widgets/tooltip.h"

#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

using InitializeControls = BOOL(WINAPI*)(const INITCOMMONCONTROLSEX*);

/// Loads the control's library, which costs the program's start nothing this way.
bool prepareControl() {
    static const LibraryOwner library(loadSystemLibrary(L"comctl32.dll"));
    if (!library) {
        return false;
    }
    const auto initialize = reinterpret_cast<InitializeControls>(
        reinterpret_cast<void*>(GetProcAddress(library.get(), "InitCommonControlsEx")));
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_BAR_CLASSES};
    return initialize != nullptr && initialize(&wanted) != 0;
}

/// The older family of systems sets the highest bit of its version.
bool isNewTechnologySystem() { return (GetVersion() & 0x80000000) == 0; }

}  // namespace

WindowOwner makeTooltip(WindowHandle widget, std::string_view description, Point mouse) {
    static const bool ready = isNewTechnologySystem() && prepareControl();
    if (!ready) {
        return {};
    }
    WindowOwner tooltip(CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, widget, nullptr, GetModuleHandleW(nullptr), nullptr));
    std::wstring tip = wideText(description);
    TTTOOLINFOW tool{};
    // Without the last member, which version 5 of the controls does not know.
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = widget;
    tool.uId = reinterpret_cast<UINT_PTR>(widget);
    tool.lpszText = tip.data();
    SendMessageW(tooltip.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    MSG relayed{};
    relayed.hwnd = widget;
    relayed.message = WM_MOUSEMOVE;
    relayed.lParam = MAKELPARAM(mouse.left, mouse.top);
    SendMessageW(tooltip.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
    return tooltip;
}

}  // namespace calquo
