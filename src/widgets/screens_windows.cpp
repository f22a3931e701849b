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

int screenDotsPerInch() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dots;
}

Rectangle windowRectangle(WindowHandle window) {
    RECT edges{};
    GetWindowRect(window, &edges);
    return rectangleOf(edges);
}

Rectangle windowAround(Size client, WindowStyle style) {
    RECT around{0, 0, client.width, client.height};
    AdjustWindowRectEx(&around, style.style, FALSE, style.extendedStyle);
    return rectangleOf(around);
}

Rectangle rectangleOf(const tagRECT& edges) {
    return {edges.left, edges.top, edges.right - edges.left, edges.bottom - edges.top};
}

tagRECT edgesOf(const Rectangle& rectangle) {
    return {rectangle.left, rectangle.top, rectangle.left + rectangle.width, rectangle.top + rectangle.height};
}

}  // namespace calquo
