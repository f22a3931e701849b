// The button's messages, its timer and its painting.
#include "widgets/button.h"

#include <algorithm>
#include <string>
#include <vector>

#include "widgets/painting.h"
#include "widgets/shape_coverage.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::uint16_t handCursor = 201;
constexpr UINT_PTR repeatTimer = 1;

std::string textOf(const ButtonDescription& description) {
    return storedText(description.label, description.description);
}

/// Paints the rectangles with the null pen; some systems leave out the last column and row of each with it.
void paintLayers(HDC context, const std::vector<RoundedRectangle>& layers) {
    const Selection pen(context, GetStockObject(NULL_PEN));
    const Selection brush(context, GetStockObject(DC_BRUSH));
    for (const RoundedRectangle& layer : layers) {
        SetDCBrushColor(context, colorReference(layer.color));
        RoundRect(context, layer.rectangle.left, layer.rectangle.top, layer.rectangle.left + layer.rectangle.width,
                  layer.rectangle.top + layer.rectangle.height, layer.cornerDiameter, layer.cornerDiameter);
    }
}

int widthOf(HDC context, const std::wstring& text) {
    SIZE size{};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
}

/// Selects a font where it is not selected already: a selection is dear. The context must end before the font.
void selectFont(HDC context, FontHandle font) {
    if (GetCurrentObject(context, OBJ_FONT) != font) {
        SelectObject(context, font);
    }
}

/// Selects the widest font of the buttons in which a label takes up no more than `room` pixels.
void selectFittingFont(HDC context, const std::wstring& label, int room) {
    selectFont(context, buttonFont());
    const int usual = widthOf(context, label);
    if (usual <= room) {
        return;
    }
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    // The search begins close to its end: labels widen about as their characters do.
    const int averageWidth = metrics.tmAveCharWidth;
    for (int width = std::min(averageWidth, averageWidth * room / usual + 1); width > 0; --width) {
        selectFont(context, narrowButtonFont(width));
        if (widthOf(context, label) <= room) {
            return;
        }
    }
}

/// Writes the label in the middle of an area, narrower where it would not fit.
void paintLabel(HDC context, const std::wstring& label, Size area, Color color) {
    selectFittingFont(context, label, area.width - area.height / 4);
    SetTextColor(context, colorReference(color));
    SetBkMode(context, TRANSPARENT);
    RECT whole{0, 0, area.width, area.height};
    DrawTextW(context, label.c_str(), static_cast<int>(label.size()), &whole,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
}

/// Draws the symbol in the middle of an area of one colour.
void paintSymbol(HDC context, Symbol symbol, Size area, Color ground, Color color) {
    const Coverage coverage = coverageOf(shapeOf(symbol), area.height * 3 / 5);
    const auto [width, height] = coverage.size;
    std::vector<std::uint32_t> pixels(coverage.alpha.size());
    std::transform(coverage.alpha.begin(), coverage.alpha.end(), pixels.begin(), [&](std::uint8_t alpha) {
        const Color pixel = mixed(ground, color, alpha * 100 / 255);
        return std::uint32_t{pixel.red} << 16 | std::uint32_t{pixel.green} << 8 | pixel.blue;
    });
    BITMAPINFO description{};
    description.bmiHeader.biSize = sizeof description.bmiHeader;
    description.bmiHeader.biWidth = width;
    description.bmiHeader.biHeight = -height;  // from the top
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 32;
    description.bmiHeader.biCompression = BI_RGB;
    SetDIBitsToDevice(context, (area.width - width) / 2, (area.height - height) / 2, static_cast<DWORD>(width),
                      static_cast<DWORD>(height), 0, 0, 0, static_cast<UINT>(height), pixels.data(), &description,
                      DIB_RGB_COLORS);
}

}  // namespace

const Component::WidgetClass& Button::widgetClass() {
    static const WidgetClass registered = registerClass(L"BUTTON", L"CalquoButton", handCursor);
    return registered;
}

Button::Button(WindowHandle parent, std::uint16_t command, const ButtonDescription& description)
    : Component(widgetClass(), {parent, command, BS_OWNERDRAW, textOf(description)}),
      extraHalfWidths_(description.extraHalfWidths),
      symbol_(description.symbol),
      face_(description.face),
      press_(description.repeats) {
    Button::fitToScale();
}

void Button::fitToScale() {
    const int size = buttonSize();
    setPreferredSize({(extraHalfWidths_ + 2) * size / 2, size});
}

void Button::setLook(const ButtonDescription& description) {
    symbol_ = description.symbol;
    setText(textOf(description));
    face_ = description.face;
    redraw();
}

bool Button::onMouse(const MouseEvent& event) {
    switch (event.action) {
        case MouseAction::Press:
            press();
            return true;
        case MouseAction::Release:
            release(event.position);
            return true;
        case MouseAction::CaptureLost:
            loseCapture();
            return true;
        case MouseAction::Move:
            break;
    }
    return Component::onMouse(event);
}

void Button::press() {
    SetCapture(handle());
    const ButtonNotice notice = press_.press();
    redraw();
    if (press_.repeats()) {
        int delay = 0;
        SystemParametersInfoW(SPI_GETKEYBOARDDELAY, 0, &delay, 0);
        SetTimer(handle(), repeatTimer, repeatDelay(static_cast<unsigned>(delay)), nullptr);
    }
    notify(notice);
}

bool Button::onTimer(std::uintptr_t timer) {
    if (timer != repeatTimer) {
        return false;
    }
    if (GetCapture() != handle()) {
        loseCapture();
        return true;
    }
    const ButtonNotice notice = press_.repeat();
    if (notice == ButtonNotice::None) {
        return true;  // a tick that was already on its way when the timer stopped
    }
    DWORD speed = 0;
    SystemParametersInfoW(SPI_GETKEYBOARDSPEED, 0, &speed, 0);
    SetTimer(handle(), repeatTimer, repeatInterval(speed), nullptr);
    notify(notice);
    return true;
}

void Button::release(Point position) {
    const Size size = clientSize(handle());
    const bool inside =
        position.left >= 0 && position.top >= 0 && position.left < size.width && position.top < size.height;
    const bool captured = GetCapture() == handle();
    const ButtonNotice notice = press_.release(captured, inside);
    KillTimer(handle(), repeatTimer);
    if (captured) {
        ReleaseCapture();
    }
    redraw();
    notify(notice);
}

void Button::loseCapture() {
    if (press_.isPressed()) {
        press_.cancel();
        KillTimer(handle(), repeatTimer);
        redraw();
    }
}

void Button::redraw() { RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

void Button::notify(ButtonNotice notice) {
    // The parent may destroy the button: nothing may be touched after this.
    if (notice != ButtonNotice::None) {
        sendCommand(parent(), {command(), static_cast<std::uint16_t>(notice), handle()});
    }
}

bool Button::onPaint() {
    const BufferedPainting painting(handle(), parent());
    drawFace(painting.context(), painting.size());
    painting.show();
    return true;
}

void Button::drawFace(DrawingContext context, Size size) const {
    const ButtonFace face = buttonFace(size, face_, press_.isPressed(), palette());
    paintLayers(context, face.layers);
    if (symbol_ == Symbol::None) {
        paintLabel(context, wideText(label()), size, face.textColor);
    } else {
        paintSymbol(context, symbol_, size, face.layers.back().color, face.textColor);
    }
}

}  // namespace calquo
