// The button's messages, its timer and its painting.
#include "widgets/button.h"

#include <algorithm>
#include <string>
#include <vector>

#include "widgets/paint_buffer.h"
#include "widgets/painting.h"
#include "widgets/shape_coverage.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::uint16_t handCursor = 201;
constexpr UINT_PTR repeatTimer = 1;

std::string storedText(const ButtonDescription& description) {
    return std::string(description.label) + '|' + std::string(description.description);
}

/// Paints the rectangles with the null pen; some systems leave out the last column and row of each with it.
void paintLayers(HDC context, const std::vector<RoundedRectangle>& layers) {
    const Selection pen(context, GetStockObject(NULL_PEN));
    const Selection brush(context, GetStockObject(DC_BRUSH));
    for (const RoundedRectangle& layer : layers) {
        SetDCBrushColor(context, colorReference(layer.color));
        RoundRect(context, layer.place.left, layer.place.top, layer.place.left + layer.place.width,
                  layer.place.top + layer.place.height, layer.cornerDiameter, layer.cornerDiameter);
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
    RECT place{0, 0, area.width, area.height};
    DrawTextW(context, label.c_str(), static_cast<int>(label.size()), &place,
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

/// Which member hears which message.
struct Button::MessageRow {
    UINT code;
    std::optional<MessageAnswer> (Button::*hear)(const Message&);
};

const Button::MessageRow Button::messageRows[] = {
    {WM_LBUTTONDOWN, &Button::press},
    // The second of two quick presses.
    {WM_LBUTTONDBLCLK, &Button::press},
    {WM_TIMER, &Button::repeat},
    {WM_LBUTTONUP, &Button::release},
    {WM_CAPTURECHANGED, &Button::loseCapture},
    {WM_PAINT, &Button::paint},
    {WM_ERASEBKGND, &Button::keepBackground},
    {WM_NCPAINT, &Button::keepBackground},  // there is no frame to paint
};

const Component::WidgetClass& Button::widgetClass() {
    static const WidgetClass registered = registerClass(L"BUTTON", L"CalquoButton", handCursor);
    return registered;
}

Button::Button(WindowHandle parent, std::uint16_t command, const ButtonDescription& description)
    : Component(widgetClass(), {parent, command, BS_OWNERDRAW, storedText(description)},
                [this](const Message& message) { return hear(message); }),
      symbol_(description.symbol),
      face_(description.face),
      press_(description.repeats) {
    const int size = buttonSize();
    setPreferredSize({(description.widthNumber + 2) * size / 2, size});
}

void Button::setLook(const ButtonDescription& description) {
    setText(storedText(description));
    symbol_ = description.symbol;
    face_ = description.face;
    redraw();
}

std::optional<MessageAnswer> Button::hear(const Message& message) {
    const auto* const row = std::find_if(std::begin(messageRows), std::end(messageRows),
                                         [&](const MessageRow& candidate) { return candidate.code == message.code; });
    return row == std::end(messageRows) ? std::nullopt : (this->*row->hear)(message);
}

std::optional<MessageAnswer> Button::press(const Message&) {
    SetCapture(handle());
    const ButtonNotice notice = press_.press();
    redraw();
    if (press_.repeats()) {
        int delay = 0;
        SystemParametersInfoW(SPI_GETKEYBOARDDELAY, 0, &delay, 0);
        SetTimer(handle(), repeatTimer, repeatDelay(static_cast<unsigned>(delay)), nullptr);
    }
    notify(notice);
    return 0;
}

std::optional<MessageAnswer> Button::repeat(const Message& message) {
    if (message.wordParameter != repeatTimer) {
        return std::nullopt;
    }
    if (GetCapture() != handle()) {
        return loseCapture(message);
    }
    const ButtonNotice notice = press_.repeat();
    if (notice == ButtonNotice::None) {
        return 0;  // a tick that was already on its way when the timer stopped
    }
    DWORD speed = 0;
    SystemParametersInfoW(SPI_GETKEYBOARDSPEED, 0, &speed, 0);
    SetTimer(handle(), repeatTimer, repeatInterval(speed), nullptr);
    notify(notice);
    return 0;
}

std::optional<MessageAnswer> Button::release(const Message& message) {
    const POINT place{static_cast<short>(LOWORD(message.longParameter)),
                      static_cast<short>(HIWORD(message.longParameter))};
    const Size size = clientSize(handle());
    const bool inside = place.x >= 0 && place.y >= 0 && place.x < size.width && place.y < size.height;
    const bool captured = GetCapture() == handle();
    const ButtonNotice notice = press_.release(captured, inside);
    KillTimer(handle(), repeatTimer);
    if (captured) {
        ReleaseCapture();
    }
    redraw();
    notify(notice);
    return 0;
}

std::optional<MessageAnswer> Button::loseCapture(const Message&) {
    if (press_.isPressed()) {
        press_.cancel();
        KillTimer(handle(), repeatTimer);
        redraw();
    }
    return 0;
}

void Button::redraw() { RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

void Button::notify(ButtonNotice notice) {
    // The parent may destroy the button: nothing may be touched after this.
    if (notice != ButtonNotice::None) {
        SendMessageW(parent(), WM_COMMAND, MAKEWPARAM(command(), static_cast<WORD>(notice)),
                     reinterpret_cast<LPARAM>(handle()));
    }
}

std::optional<MessageAnswer> Button::keepBackground(const Message&) {
    // Painting covers everything.
    return 1;
}

std::optional<MessageAnswer> Button::paint(const Message&) {
    const Painting painting(handle());
    const Size size = clientSize(handle());
    const PaintBuffer buffer(painting.context(), size);
    const HDC context = buffer.context();
    const LRESULT background = SendMessageW(parent(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                                            reinterpret_cast<LPARAM>(handle()));
    const RECT whole{0, 0, size.width, size.height};
    FillRect(context, &whole, reinterpret_cast<HBRUSH>(background));
    drawFace(context, size);
    buffer.show();
    return 0;
}

void Button::drawFace(DrawingContext context, Size size) const {
    const ButtonFace face = buttonFace(size, face_, press_.isPressed());
    paintLayers(context, face.layers);
    if (symbol_ == Symbol::None) {
        paintLabel(context, wideText(label()), size, face.textColor);
    } else {
        paintSymbol(context, symbol_, size, face.layers.back().color, face.textColor);
    }
}

}  // namespace calquo
