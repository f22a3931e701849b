// Asks the system for its screens.
#include "widgets/screens.h"

#include "widgets/windows_api.h"

namespace calquo {
namespace {

Screen describe(HMONITOR monitor) {
    MONITORINFO description{};
    description.cbSize = sizeof description;
    GetMonitorInfoW(monitor, &description);
    return {rectangleOf(description.rcMonitor), rectangleOf(description.rcWork)};
}

BOOL CALLBACK noteUsableArea(HMONITOR monitor, HDC, LPRECT, LPARAM areas) {
    reinterpret_cast<std::vector<Rectangle>*>(areas)->push_back(describe(monitor).usableArea);
    return TRUE;
}

/// A function of the system's library of windows that only newer systems have, null on others.
template <typename Function>
Function findNewer(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(found));
}

}  // namespace

Screen screenOf(WindowHandle window) { return describe(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)); }

Screen screenAt(const Rectangle& rectangle) {
    const RECT edges = edgesOf(rectangle);
    return describe(MonitorFromRect(&edges, MONITOR_DEFAULTTONEAREST));
}

std::vector<Rectangle> usableAreasAround(WindowHandle window) {
    std::vector<Rectangle> areas = {screenOf(window).usableArea};
    EnumDisplayMonitors(nullptr, nullptr, noteUsableArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

int dotsPerInchOf(WindowHandle window) {
    using Ask = UINT(WINAPI*)(HWND);
    static const auto ask = findNewer<Ask>("GetDpiForWindow");
    return ask == nullptr ? systemDotsPerInch() : static_cast<int>(ask(window));
}

int systemDotsPerInch() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dots;
}

tagLOGFONTW messageFont(int dotsPerInch) {
    using Ask = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
    static const auto ask = findNewer<Ask>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (ask != nullptr &&
        ask(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0, static_cast<UINT>(dotsPerInch)) != 0) {
        return metrics.lfMessageFont;
    }
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dotsPerInch, systemDotsPerInch());
    return metrics.lfMessageFont;
}

Rectangle windowRectangle(WindowHandle window) {
    RECT edges{};
    GetWindowRect(window, &edges);
    return rectangleOf(edges);
}

Rectangle windowAround(Size client, WindowStyle style, int dotsPerInch) {
    using Adjust = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
    static const auto adjust = findNewer<Adjust>("AdjustWindowRectExForDpi");
    RECT around{0, 0, client.width, client.height};
    if (adjust != nullptr) {
        adjust(&around, style.style, FALSE, style.extendedStyle, static_cast<UINT>(dotsPerInch));
    } else {
        AdjustWindowRectEx(&around, style.style, FALSE, style.extendedStyle);
    }
    return rectangleOf(around);
}

Rectangle rectangleOf(const tagRECT& edges) {
    return {edges.left, edges.top, edges.right - edges.left, edges.bottom - edges.top};
}

tagRECT edgesOf(const Rectangle& rectangle) {
    return {rectangle.left, rectangle.top, rectangle.left + rectangle.width, rectangle.top + rectangle.height};
}

}  // namespace calquo
