// The widgets as real windows: what the mouse does to the buttons of the program's panels, what they look like, and the
// widgets of dialogs.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "panels/button_panel.h"
#include "program.h"
#include "resources.h"
#include "support/allocations.h"
#include "widgets/button.h"
#include "widgets/check_box.h"
#include "widgets/label.h"
#include "widgets/selector.h"
#include "widgets/text_area.h"
#include "widgets/toolkit.h"

namespace calquo {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr unsigned basicKeypad = 0xA110, editing = 0xA111, masses = 0xA570;
constexpr COLORREF foreign = RGB(1, 254, 3);  // no widget has it

/// Lets the thread's windows hear their messages for a while, and counts the ticks of timers among them.
int wait(milliseconds time) {
    int ticks = 0;
    for (const auto end = Clock::now() + time; Clock::now() < end; Sleep(1)) {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ticks += message.message == WM_TIMER ? 1 : 0;
            DispatchMessageW(&message);
        }
    }
    return ticks;
}

Size sizeOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

/// The pixels of a window, row by row, when it was covered with a colour of no widget and has painted itself.
std::vector<COLORREF> picture(HWND window) {
    const Size size = sizeOf(window);
    const HDC context = GetDC(window);
    const HBRUSH covering = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    const COLORREF before = SetDCBrushColor(context, foreign);
    const RECT whole{0, 0, size.width, size.height};
    FillRect(context, &whole, covering);
    SetDCBrushColor(context, before);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    std::vector<COLORREF> pixels;
    for (int place = 0; place < size.width * size.height; ++place) {
        pixels.push_back(GetPixel(context, place % size.width, place / size.width));
    }
    ReleaseDC(window, context);
    return pixels;
}

void mouse(HWND window, UINT message, int left = 3, int top = 3) {
    SendMessageW(window, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(left, top));
}

/// A program with an open panel and its buttons.
struct OpenPanel {
    explicit OpenPanel(unsigned panel, MemoryStorage storage = {}) : program(std::move(storage)) {
        program.command(panel);
        buttons = program.buttonsOf(panel);
    }

    Program program;
    std::vector<HWND> buttons;
};

MemoryStorage storedButtonSize(int size) {
    MemoryStorage storage;
    storage.values[L"Button Size"] = static_cast<std::uint32_t>(size);
    return storage;
}

BOOL CALLBACK collectTooltip(HWND window, LPARAM found) {
    std::array<wchar_t, 40> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (name.data() == std::wstring(TOOLTIPS_CLASSW)) {
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    }
    return TRUE;
}

std::vector<HWND> tooltips() {
    std::vector<HWND> found;
    EnumThreadWindows(GetCurrentThreadId(), collectTooltip, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// The text of the only tool of a tooltip.
std::wstring textOf(HWND tooltip) {
    std::array<wchar_t, 200> text{};
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.lpszText = text.data();
    EXPECT_EQ(SendMessageW(tooltip, TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_NE(SendMessageW(tooltip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)), 0);
    return text.data();
}

/// Sets the keyboard's delay and speed to the shortest while it lives.
class FastKeyboard {
public:
    FastKeyboard() {
        SystemParametersInfoW(SPI_GETKEYBOARDDELAY, 0, &delay_, 0);
        SystemParametersInfoW(SPI_GETKEYBOARDSPEED, 0, &speed_, 0);
        set(3, 31);
    }
    ~FastKeyboard() { set(static_cast<UINT>(delay_), speed_); }

private:
    static void set(UINT delay, UINT speed) {
        SystemParametersInfoW(SPI_SETKEYBOARDDELAY, delay, nullptr, 0);
        SystemParametersInfoW(SPI_SETKEYBOARDSPEED, speed, nullptr, 0);
    }

    int delay_ = 0;
    DWORD speed_ = 0;
};

TEST(Button, ActsWhenReleasedInside) {
    OpenPanel keypad(basicKeypad);
    const HWND seven = keypad.buttons.front();
    const Size size = sizeOf(seven);
    std::wstring text;
    for (const auto& [left, top] : {std::pair{3, 3},
                                    {0, 0},
                                    {size.width - 1, size.height - 1},
                                    {size.width, 3},
                                    {3, size.height},
                                    {-1, 3},
                                    {3, -1}}) {
        SCOPED_TRACE(testing::Message() << left << ", " << top);
        mouse(seven, WM_LBUTTONDOWN);
        EXPECT_EQ(GetCapture(), seven);
        EXPECT_EQ(keypad.program.text(), text);
        mouse(seven, WM_LBUTTONUP, left, top);
        EXPECT_EQ(GetCapture(), nullptr);
        text += left >= 0 && left < size.width && top >= 0 && top < size.height ? L"7" : L"";
        EXPECT_EQ(keypad.program.text(), text);
    }
    // The second of two quick clicks.
    mouse(seven, WM_LBUTTONDBLCLK);
    mouse(seven, WM_LBUTTONUP);
    EXPECT_EQ(keypad.program.text(), text + L"7");
}

TEST(Button, RepeatsWhileHeldAtTheKeyboardsRate) {
    const FastKeyboard keyboard;
    OpenPanel panel(editing);
    const HWND erase = panel.buttons.front();
    panel.program.setText(std::wstring(100, L'1'));
    mouse(erase, WM_LBUTTONDOWN);
    EXPECT_EQ(panel.program.text().size(), 99u);
    wait(milliseconds(200));
    EXPECT_EQ(panel.program.text().size(), 99u);
    wait(milliseconds(600));
    mouse(erase, WM_LBUTTONUP);
    const std::size_t left = panel.program.text().size();
    EXPECT_LE(left, 96u);
    EXPECT_GE(left, 99u - 2 - 550 / 30);
    SendMessageW(erase, WM_TIMER, 1, 0);  // as if it had been on its way
    EXPECT_EQ(wait(milliseconds(150)), 0) << "the timer went on after the release";
    EXPECT_EQ(panel.program.text().size(), left);
}

TEST(Button, LetsGoWhenItLosesTheMouse) {
    const FastKeyboard keyboard;
    for (const unsigned panel : {basicKeypad, editing}) {
        OpenPanel open(panel);
        open.program.setText(L"1");
        const HWND button = open.buttons.front();
        const auto raised = picture(button);
        mouse(button, WM_LBUTTONDOWN);
        EXPECT_NE(picture(button), raised);
        ReleaseCapture();
        EXPECT_EQ(picture(button), raised);
        EXPECT_EQ(wait(milliseconds(350)), 0);
        mouse(button, WM_LBUTTONUP);
        EXPECT_EQ(open.program.text(), panel == editing ? L"" : L"1");
    }
}

TEST(Button, ShowsItsFaceOnItsParentsBackground) {
    OpenPanel keypad(basicKeypad);
    const HWND button = keypad.buttons.front();
    const Size size = sizeOf(button);
    const auto at = [&](int left, int top) { return picture(button).begin()[top * size.width + left]; };
    const Color color = dynamic_cast<const Button*>(Component::of(button))->face();
    const auto layers = buttonFace(size, color, false, {}).layers;
    EXPECT_EQ(at(4, 4), colorReference(color));
    EXPECT_EQ(at(0, size.height / 2), colorReference(layers[1].color));
    EXPECT_EQ(at(size.width / 2, 0), colorReference(layers[1].color));
    const COLORREF margin = picture(keypad.program.child(basicKeypad)).front();
    EXPECT_EQ(at(0, 0), margin);
    EXPECT_EQ(at(size.width - 1, size.height - 1), margin);
    mouse(button, WM_LBUTTONDOWN);
    EXPECT_EQ(at(4, 4), colorReference(layers[0].color));
    mouse(button, WM_LBUTTONUP);
}

TEST(ButtonPanel, PaintsItsButtonsAsTheyPaintThemselves) {
    for (const unsigned identifier : {basicKeypad, editing, masses}) {
        OpenPanel open(identifier);
        const HWND panel = open.program.child(identifier), pressed = open.buttons.at(1);
        mouse(pressed, WM_LBUTTONDOWN);
        const int width = sizeOf(panel).width;
        const auto whole = picture(panel);
        EXPECT_EQ(std::ranges::count(whole, foreign), 0) << "left unpainted";
        for (const HWND button : open.buttons) {
            POINT place{};
            MapWindowPoints(button, panel, &place, 1);
            const Size size = sizeOf(button);
            std::vector<COLORREF> area;
            for (int row = 0; row < size.height; ++row) {
                const auto begin = whole.begin() + (place.y + row) * width + place.x;
                area.insert(area.end(), begin, begin + size.width);
            }
            EXPECT_TRUE(area == picture(button))
                << Component::of(button)->text() << (button == pressed ? ", pressed" : "");
        }
        mouse(pressed, WM_LBUTTONUP, -1);
    }
}

TEST(ButtonPanel, LooksTheSameBeforeItsButtonsAreMadeAndLosesNoPress) {
    Program program;
    std::string pressed;
    ButtonPanel panel(
        program.handle(), *findPanel(masses),
        [&](const PanelEntry&, const PanelButton& button) { pressed += button.label; }, ButtonPanel::Buttons::Later);
    const Size size = panel.preferredSize();
    panel.moveTo({40, 60, size.width, size.height});
    panel.layOut();
    SetWindowPos(panel.handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    const auto before = picture(panel.handle());
    EXPECT_EQ(GetWindow(panel.handle(), GW_CHILD), nullptr);
    {
        const FailingAllocation allocation(0);
        EXPECT_THROW(panel.makeChildren(), std::bad_alloc);
    }
    for (const LRESULT area : {HTCLIENT, HTTRANSPARENT}) {
        EXPECT_EQ(SendMessageW(panel.handle(), WM_NCHITTEST, 0, 0), area);
        mouse(panel.handle(), WM_LBUTTONDOWN, size.width / 6, size.height / 8);
        Program::serveMessages();
        mouse(GetCapture(), WM_LBUTTONUP);
        EXPECT_EQ(pressed, "kg") << "only the first press is not one of the mouse's";
    }
    EXPECT_TRUE(picture(panel.handle()) == before);
}

TEST(Button, WritesALongLabelNarrower) {
    for (const int size : {20, 25, 30, 40}) {
        SCOPED_TRACE(size);
        OpenPanel panel(masses, storedButtonSize(size));
        const HWND button = panel.buttons.at(4);  // pennyweight
        const COLORREF face = colorReference(dynamic_cast<const Button*>(Component::of(button))->face());
        const auto pixels = picture(button);
        const Size area = sizeOf(button);
        ASSERT_EQ(area.height, size);
        const int depth = size / 16 + 1;
        const auto hasInk = [&](int begin, int end) {
            for (int top = 2 * depth; top < area.height - 2 * depth; ++top) {
                const auto row = pixels.begin() + std::ptrdiff_t{top} * area.width;
                if (std::any_of(row + begin, row + end, [&](COLORREF pixel) { return pixel != face; })) {
                    return true;
                }
            }
            return false;
        };
        EXPECT_FALSE(hasInk(depth, depth + 1) || hasInk(area.width - depth - 2, area.width - depth - 1))
            << "at the edges";
        EXPECT_TRUE(hasInk(depth + 1, area.width / 5) && hasInk(area.width * 4 / 5, area.width - 3));
    }
}

TEST(Button, DrawsASymbolInPlaceOfItsLabel) {
    OpenPanel panel(editing);
    std::vector<std::vector<COLORREF>> pictures;
    for (const HWND button : panel.buttons) {
        pictures.push_back(picture(button));
        const auto layers =
            buttonFace(sizeOf(button), dynamic_cast<const Button*>(Component::of(button))->face(), false, {});
        EXPECT_NE(std::ranges::find(pictures.back(), colorReference(layers.textColor)), pictures.back().end());
    }
    std::sort(pictures.begin(), pictures.end());
    EXPECT_EQ(std::unique(pictures.begin(), pictures.end()), pictures.end()) << "two look the same";
}

TEST(Tooltip, IsMadeWhenTheMouseComesToADescription) {
    OpenPanel keypad(basicKeypad);
    mouse(keypad.buttons.front(), WM_MOUSEMOVE);  // a digit needs none
    EXPECT_TRUE(tooltips().empty());
    const HWND enter = keypad.buttons.back();
    mouse(enter, WM_MOUSEMOVE);
    mouse(enter, WM_MOUSEMOVE);
    ASSERT_EQ(tooltips().size(), 1u);
    const HWND tooltip = tooltips()[0];
    EXPECT_EQ(textOf(tooltip), L"Enter (evaluate)");
    EXPECT_EQ(GetWindow(tooltip, GW_OWNER), keypad.program.handle());
    // Also in a window that is not active, above all others, and with "&" as it stands.
    constexpr LONG_PTR wanted = TTS_ALWAYSTIP | TTS_NOPREFIX;
    EXPECT_EQ(GetWindowLongPtrW(tooltip, GWL_STYLE) & wanted, wanted);
    EXPECT_NE(GetWindowLongPtrW(tooltip, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    dynamic_cast<Button*>(Component::of(enter))
        ->setLook({.label = "R", .description = "Restore", .symbol = Symbol::Restore});
    mouse(enter, WM_MOUSEMOVE);
    ASSERT_EQ(tooltips().size(), 1u);
    EXPECT_EQ(textOf(tooltips()[0]), L"Restore");
    keypad.program.command(basicKeypad);
    EXPECT_TRUE(tooltips().empty());
}

TEST(RadioButton, ExcludesTheOthersOfItsGroup) {
    const Program program;
    std::vector<std::unique_ptr<RadioButton>> buttons;
    for (const bool opensGroup : {true, false, true, false, true}) {
        buttons.push_back(std::make_unique<RadioButton>(program.handle(), std::uint16_t{1}, "choice", opensGroup));
        buttons.back()->moveTo({0, 20 * static_cast<int>(buttons.size()), 100, 20});
    }
    buttons[0]->setChecked(true);
    buttons[2]->setChecked(true);
    std::string marks;
    for (const std::size_t clicked : {1u, 3u}) {
        SendMessageW(buttons[clicked]->handle(), BM_CLICK, 0, 0);
        for (const auto& button : buttons) {
            marks += button->isChecked() ? 'x' : '-';
        }
    }
    EXPECT_EQ(marks, "-xx---x-x-");
}

TEST(Selector, OffersItsChoices) {
    const Program program;
    const std::string_view choices[] = {"one", "a much longer choice", "three"};
    for (const auto look : {Selector::Look::ComboBox, Selector::Look::ListBox}) {
        Selector selector(program.handle(), 3, look, choices);
        const Size size = selector.preferredSize();
        selector.moveTo({0, 0, size.width, size.height});
        EXPECT_EQ(selector.selected(), -1);
        selector.select(1);
        EXPECT_EQ(selector.selected(), 1);
        const RECT place = program.placeOf(selector.handle());
        EXPECT_EQ((Size{place.right, place.bottom}), size);
        RECT dropped{};
        SendMessageW(selector.handle(), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        const auto lineHeight = SendMessageW(selector.handle(), CB_GETITEMHEIGHT, 0, 0);
        EXPECT_TRUE(look == Selector::Look::ListBox || dropped.bottom - dropped.top >= 3 * lineHeight)
            << "no room for the choices";
    }
}

TEST(Label, ShowsAllOfItsText) {
    const Program program;
    for (const char* const text : {"A calculator", "W|with a description"}) {
        Label label(program.handle(), 1, text);
        const Size size = label.preferredSize();
        label.moveTo({0, 0, size.width + 20, size.height});
        const auto pixels = picture(label.handle());
        int end = 0;
        for (int place = 0; place < static_cast<int>(pixels.size()); ++place) {
            const bool isInk = pixels.begin()[place] != pixels.back();
            end = std::max(end, isInk ? place % (size.width + 20) : 0);
        }
        // The text ends where the preferred width does.
        EXPECT_TRUE(end <= size.width && end >= size.width - 4) << text;
    }
}

bool hasScrollBar(const Component& component) {
    return (GetWindowLongW(component.handle(), GWL_STYLE) & WS_VSCROLL) != 0;
}

/// Notes the length of its text whenever something takes room from its client area.
class NotingArea : public TextArea {
public:
    using TextArea::TextArea;

    std::vector<LRESULT> lengths;

protected:
    bool onMoved() override {
        if (const int width = sizeOf(handle()).width; std::exchange(width_, width) > width) {
            lengths.push_back(SendMessageW(handle(), WM_GETTEXTLENGTH, 0, 0));
        }
        return false;
    }

private:
    int width_ = 0;
};

TEST(TextArea, HasItsScrollBarBeforeALongTextIsBrokenIntoLines) {
    const Program program;
    const std::string hidden = "{\\rtf1{\\info " + std::string(50'000, 'x') + "}2+3}";
    NotingArea area(program.handle(), 1, {});
    area.moveTo({0, 0, 300, 200});
    std::wstring text;
    for (int line = 0; line < 5000; ++line) {
        text += L"2+3*4 = 14\r";
    }
    EXPECT_FALSE(hasScrollBar(area));
    EXPECT_TRUE(area.replaceContentByPlainText(text));
    EXPECT_TRUE(hasScrollBar(area));
    EXPECT_EQ(area.lengths, std::vector<LRESULT>{0});
    TextArea other(program.handle(), 1, {});
    other.moveTo({0, 0, 300, 200});
    EXPECT_TRUE(other.replaceContentByRichText(hidden));
    EXPECT_FALSE(hasScrollBar(other)) << "many bytes that show little";
}

TEST(Resources, AreSeenOneByOne) {
    const Program program;  // with the thread's first window the system makes some of its own
    const Resources before = heldResources();
    const FontOwner font(CreateFontW(10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial"));
    const WindowOwner window(
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    const std::string text(1000, '=');
    EXPECT_EQ(heldResources().allocations, before.allocations + 1) << text;
    EXPECT_EQ(heldResources().windows, before.windows + 1);
    EXPECT_GE(heldResources().drawingObjects, before.drawingObjects + 1);
}

}  // namespace
}  // namespace calquo
