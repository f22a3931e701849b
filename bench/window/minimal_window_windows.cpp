// minimal_window: a plain window with one rich edit control in it, which the start of Calquo is measured beside.
#include "widgets/windows_api.h"

namespace {

LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wordParameter, LPARAM longParameter) {
    if (code == WM_SIZE) {
        MoveWindow(GetWindow(window, GW_CHILD), 0, 0, LOWORD(longParameter), HIWORD(longParameter), TRUE);
    } else if (code == WM_SETFOCUS) {
        SetFocus(GetWindow(window, GW_CHILD));
    } else if (code == WM_DESTROY) {
        PostQuitMessage(0);
    }
    return DefWindowProcW(window, code, wordParameter, longParameter);
}

}  // namespace

int WINAPI WinMain(HINSTANCE program, HINSTANCE, LPSTR, int showCommand) {
    constexpr wchar_t name[] = L"Minimal window";
    LoadLibraryW(L"Riched20.dll");
    WNDCLASSW description{};
    description.lpfnWndProc = receive;
    description.hInstance = program;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    RegisterClassW(&description);
    const HWND window =
        CreateWindowExW(0, name, name, WS_OVERLAPPEDWINDOW, 200, 100, 800, 600, nullptr, nullptr, program, nullptr);
    CreateWindowExW(0, L"RichEdit20W", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE, 0, 0, 0, 0, window,
                    nullptr, program, nullptr);
    ShowWindow(window, showCommand);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
