// The widgets as real windows: what the mouse does to them, where they stand, what they look like, what they leave.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "resources.h"
#include "widgets/button.h"
#include "widgets/label.h"
#include "widgets/panel.h"
#include "widgets/radio_button.h"
#include "widgets/selector.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// A WM_COMMAND that has arrived.
struct Notice {
    unsigned code = 0;
    Clock::time_point time{};
};

/// A window for widgets to stand on. It notes what they tell it.
class Stage {
public:
    Stage() {
        static const bool registered = registerClass();
        EXPECT_TRUE(registered);
        window_ = WindowOwner(CreateWindowExW(0, className, L"", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                                              nullptr, nullptr, nullptr));
        SetWindowLongPtrW(handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage() { setButtonSize(defaultButtonSize); }

    HWND handle() const { return window_.get(); }

    /// The codes of the notices, in order.
    std::string codes() const {
        std::string all;
        for (const Notice& notice : notices) {
            all += std::to_string(notice.code);
        }
        return all;
    }

    std::vector<Notice> notices;
    std::function<void()> onNotice;

private:
    static constexpr wchar_t className[] = L"Stage of a test";

    static bool registerClass() {
        WNDCLASSW description{};
        description.lpfnWndProc = receive;
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
        description.lpszClassName = className;
        return RegisterClassW(&description) != 0;
    }

    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wide, LPARAM extra) {
        auto* const stage = reinterpret_cast<Stage*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (code == WM_COMMAND && stage != nullptr) {
            stage->notices.push_back({HIWORD(wide), Clock::now()});
            if (stage->onNotice) {
                stage->onNotice();
            }
        }
        return DefWindowProcW(window, code, wide, extra);
    }

    WindowOwner window_;
};

/// Lets the thread's windows hear their messages for a while, and counts the ticks of timers among them.
int wait(milliseconds time) {
    int ticks = 0;
    for (const auto end = Clock::now() + time; Clock::now() < end;) {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ticks += message.message == WM_TIMER ? 1 : 0;
            DispatchMessageW(&message);
        }
        Sleep(1);
    }
    return ticks;
}

Size sizeOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

Rectangle placeOn(HWND window, HWND ancestor) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, ancestor, reinterpret_cast<POINT*>(&place), 2);
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

/// The pixels of a window, row by row.
std::vector<COLORREF> picture(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const Size size = sizeOf(window);
    const HDC context = GetDC(window);
    std::vector<COLORREF> pixels;
    for (int top = 0; top < size.height; ++top) {
        for (int left = 0; left < size.width; ++left) {
            pixels.push_back(GetPixel(context, left, top));
        }
    }
    ReleaseDC(window, context);
    return pixels;
}

void mouse(const Component& widget, UINT message, int left = 3, int top = 3) {
    SendMessageW(widget.handle(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(left, top));
}

/// A button that stands on the stage in its own size.
std::unique_ptr<Button> placedButton(const Stage& stage, const ButtonDescription& description) {
    auto button = std::make_unique<Button>(stage.handle(), std::uint16_t{7}, description);
    const Size size = button->preferredSize();
    button->moveTo({10, 10, size.width, size.height});
    return button;
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
    FastKeyboard(const FastKeyboard&) = delete;
    FastKeyboard& operator=(const FastKeyboard&) = delete;

private:
    static void set(UINT delay, UINT speed) {
        SystemParametersInfoW(SPI_SETKEYBOARDDELAY, delay, nullptr, 0);
        SystemParametersInfoW(SPI_SETKEYBOARDSPEED, speed, nullptr, 0);
    }

    int delay_ = 0;
    DWORD speed_ = 0;
};

TEST(Button, ActsWhenReleasedInside) {
    for (const auto& [left, top] : {std::pair{3, 3}, {0, 0}, {29, 19}, {30, 3}, {3, 20}, {-1, 3}, {3, -1}}) {
        SCOPED_TRACE(testing::Message() << left << ", " << top);
        Stage stage;
        const auto button = placedButton(stage, {.label = "x", .description = "", .widthNumber = 1});
        ASSERT_EQ(sizeOf(button->handle()), (Size{30, 20}));
        mouse(*button, WM_LBUTTONDOWN);
        EXPECT_TRUE(button->isPressed());
        EXPECT_EQ(GetCapture(), button->handle());
        EXPECT_EQ(stage.codes(), "");
        mouse(*button, WM_LBUTTONUP, left, top);
        EXPECT_FALSE(button->isPressed());
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(stage.codes(), left >= 0 && left < 30 && top >= 0 && top < 20 ? "3" : "");
    }
}

TEST(Button, TheSecondOfTwoQuickClicksCounts) {
    Stage stage;
    const auto button = placedButton(stage, {.label = "7", .description = ""});
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
        mouse(*button, message);
    }
    EXPECT_EQ(stage.codes(), "33");
}

TEST(Button, RepeatsWhileHeld) {
    const FastKeyboard keyboard;
    Stage stage;
    const auto button = placedButton(stage, {.label = "<", .description = "", .repeats = true});
    mouse(*button, WM_LBUTTONDOWN);
    EXPECT_EQ(stage.codes(), "2");
    wait(milliseconds(700));
    mouse(*button, WM_LBUTTONUP);
    const std::size_t count = stage.notices.size();
    SendMessageW(button->handle(), WM_TIMER, 1, 0);  // as if it had been on its way
    EXPECT_EQ(wait(milliseconds(150)), 0) << "the timer went on after the release";
    EXPECT_EQ(stage.notices.size(), count);

    EXPECT_EQ(stage.codes(), std::string(count, '2'));
    ASSERT_GE(count, 4u);
    EXPECT_LE(count, 2 + 450u / 30);
    const auto pause = [&](std::size_t index) { return stage.notices[index].time - stage.notices[index - 1].time; };
    EXPECT_GE(pause(1), milliseconds(245));
    EXPECT_LE(pause(1), milliseconds(500));
    // The timer's own grain may shorten one pause after a late tick, not two in a row.
    EXPECT_GE(pause(2) + pause(3), milliseconds(45));
}

TEST(Button, LetsGoWhenItLosesTheMouse) {
    const FastKeyboard keyboard;
    for (const bool repeats : {false, true}) {
        Stage stage;
        const auto button = placedButton(stage, {.label = "x", .description = "", .repeats = repeats});
        const auto raised = picture(button->handle());
        mouse(*button, WM_LBUTTONDOWN);
        EXPECT_NE(picture(button->handle()), raised);
        ReleaseCapture();
        EXPECT_FALSE(button->isPressed());
        EXPECT_EQ(picture(button->handle()), raised);
        EXPECT_EQ(wait(milliseconds(350)), 0);
        mouse(*button, WM_LBUTTONUP);
        EXPECT_EQ(stage.codes(), repeats ? "2" : "");
    }
}

TEST(Button, SurvivesItsOwnEnd) {
    for (const bool repeats : {false, true}) {
        Stage stage;
        auto button = placedButton(stage, {.label = "x", .description = "", .repeats = repeats});
        stage.onNotice = [&] { button.reset(); };
        mouse(*button, WM_LBUTTONDOWN);
        if (button) {
            mouse(*button, WM_LBUTTONUP);
        }
        EXPECT_EQ(button, nullptr);
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(GetWindow(stage.handle(), GW_CHILD), nullptr);
    }
}

TEST(Button, ShowsItsFaceOnItsParentsBackground) {
    constexpr Color color{255, 127, 0};
    Stage stage;
    Panel panel(stage.handle(), {});  // shows the background of the stage
    const Button& button = panel.add<Button>(
        std::uint16_t{7}, ButtonDescription{.label = "", .description = "", .face = color, .widthNumber = 1});
    panel.moveTo({0, 0, 30, 20});
    panel.layOut();
    const auto at = [&](std::size_t left, std::size_t top) { return picture(button.handle())[top * 30 + left]; };
    const auto layers = buttonFace({30, 20}, color, false).layers;
    const COLORREF first = colorReference(layers[0].color), second = colorReference(layers[1].color);
    EXPECT_EQ(at(15, 10), colorReference(color));
    EXPECT_EQ(at(0, 10), second);
    EXPECT_EQ(at(15, 0), second);
    // Systems differ in whether the null pen leaves out the last column and row.
    EXPECT_TRUE(at(28, 10) == second || at(29, 10) == second);
    EXPECT_TRUE(at(15, 18) == second || at(15, 19) == second);
    EXPECT_EQ(at(0, 0), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(at(29, 19), GetSysColor(COLOR_3DFACE));
    mouse(button, WM_LBUTTONDOWN);
    EXPECT_EQ(at(15, 10), first);
    EXPECT_EQ(at(28, 10), first);
}

TEST(Button, WritesALongLabelNarrower) {
    for (const int size : {20, 25, 30, 40}) {
        SCOPED_TRACE(size);
        Stage stage;
        setButtonSize(size);
        const auto button =
            placedButton(stage, {.label = "pennyweight", .description = "", .face = white, .widthNumber = 4});
        const auto pixels = picture(button->handle());
        const Size area = sizeOf(button->handle());
        const int depth = size / 16 + 1;
        const auto hasInk = [&](int begin, int end) {
            for (int top = 2 * depth; top < area.height - 2 * depth; ++top) {
                const auto row = pixels.begin() + std::ptrdiff_t{top} * area.width;
                if (std::any_of(row + begin, row + end, [](COLORREF p) { return p != colorReference(white); })) {
                    return true;
                }
            }
            return false;
        };
        EXPECT_FALSE(hasInk(1, 2) || hasInk(area.width - 3, area.width - 2)) << "at the edges";
        EXPECT_TRUE(hasInk(2, area.width / 5) && hasInk(area.width * 4 / 5, area.width - 3));
    }
}

TEST(Button, DrawsASymbolInPlaceOfItsLabel) {
    std::vector<std::vector<COLORREF>> pictures;
    for (const Symbol symbol : {Symbol::None, Symbol::Maximize, Symbol::Restore, Symbol::Close}) {
        Stage stage;
        const auto button = placedButton(stage, {.label = "M", .description = "", .symbol = symbol});
        pictures.push_back(picture(button->handle()));
        const auto unlabelled = placedButton(stage, {.label = "", .description = "", .symbol = symbol});
        button->hide();
        EXPECT_EQ(picture(unlabelled->handle()) == pictures.back(), symbol != Symbol::None);
    }
    std::sort(pictures.begin(), pictures.end());
    EXPECT_EQ(std::unique(pictures.begin(), pictures.end()), pictures.end()) << "two look the same";
}

TEST(Button, HasTheHandOfTheProgramFile) {
    Stage stage;
    const auto button = placedButton(stage, {.label = "x", .description = ""});
    const auto cursor = reinterpret_cast<HICON>(GetClassLongPtrW(button->handle(), GCLP_HCURSOR));
    ICONINFO hand{};
    ASSERT_NE(GetIconInfo(cursor, &hand), 0);
    // The system's arrow would point with its corner.
    EXPECT_EQ(hand.xHotspot, 11U);
    EXPECT_EQ(hand.yHotspot, 2U);
    DeleteObject(hand.hbmMask);
    DeleteObject(hand.hbmColor);
}

TEST(Tooltip, IsMadeWhenTheMouseComesToADescription) {
    Stage stage;
    auto button = placedButton(stage, {.label = "sin", .description = "Sine of an angle & more"});
    const auto plain = placedButton(stage, {.label = "7", .description = ""});
    mouse(*plain, WM_MOUSEMOVE);
    EXPECT_TRUE(tooltips().empty());
    mouse(*button, WM_MOUSEMOVE);
    mouse(*button, WM_MOUSEMOVE);
    ASSERT_EQ(tooltips().size(), 1u);
    const HWND tooltip = tooltips()[0];
    EXPECT_EQ(textOf(tooltip), L"Sine of an angle & more");
    EXPECT_EQ(GetWindow(tooltip, GW_OWNER), stage.handle());
    // Also in a window that is not active, above all others, and with "&" as it stands.
    constexpr LONG_PTR wanted = TTS_ALWAYSTIP | TTS_NOPREFIX;
    EXPECT_EQ(GetWindowLongPtrW(tooltip, GWL_STYLE) & wanted, wanted);
    EXPECT_NE(GetWindowLongPtrW(tooltip, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    button->setLook({.label = "R", .description = "Restore", .symbol = Symbol::Restore});
    mouse(*button, WM_MOUSEMOVE);
    ASSERT_EQ(tooltips().size(), 1u);
    EXPECT_EQ(textOf(tooltips()[0]), L"Restore");
    button.reset();
    EXPECT_TRUE(tooltips().empty());
}

TEST(Component, OutlivesItsWindow) {
    for (const bool withAll : {false, true}) {
        Stage stage;
        Panel panel(stage.handle(), {});
        const Button& button = panel.add<Button>(std::uint16_t{1}, ButtonDescription{.label = "x", .description = "y"});
        mouse(button, WM_MOUSEMOVE);
        DestroyWindow(withAll ? stage.handle() : panel.handle());
        EXPECT_TRUE(button.handle() == nullptr && panel.handle() == nullptr && tooltips().empty());
    }
}

TEST(Panel, RowsFillItsWidthAtEverySize) {
    /// The width numbers of a row, and its width in half button sizes.
    const std::pair<std::vector<int>, int> rows[] = {
        {{0, 0, 0, 0, 0, 0}, 12}, {{1, 1, 1, 1}, 12}, {{2, 2, 2}, 12}, {{4, 4}, 12}, {{5, 3}, 12},
        {{1, 2, 3}, 12},          {{2, 2}, 8},        {{1}, 3}};
    for (int size = smallestButtonSize; size <= 40; ++size) {
        SCOPED_TRACE(size);
        Stage stage;
        setButtonSize(size);
        Panel panel(stage.handle(), {.style = 0x7B0100});
        for (const auto& [widthNumbers, halves] : rows) {
            Panel& row = panel.add<Panel>(Panel::Creation{.direction = Direction::Across});
            for (const int number : widthNumbers) {
                row.add<Button>(std::uint16_t{1},
                                ButtonDescription{.label = "x", .description = "", .widthNumber = number});
            }
        }
        const int margin = size / 4;
        const Size preferred = panel.preferredSize();
        EXPECT_EQ(preferred, (Size{6 * size + 2 * margin, 8 * size + 2 * margin}));
        panel.moveTo({5, 5, preferred.width, preferred.height});
        panel.layOut();
        for (std::size_t index = 0; index < std::size(rows); ++index) {
            int left = margin;
            for (HWND button = GetWindow(panel.children()[index]->handle(), GW_CHILD); button != nullptr;
                 button = GetWindow(button, GW_HWNDNEXT)) {
                const Rectangle place = placeOn(button, panel.handle());
                EXPECT_EQ(place, (Rectangle{left, margin + static_cast<int>(index) * size, place.width, size}));
                left += place.width;
            }
            EXPECT_EQ(left - margin, rows[index].second * size / 2) << "row " << index;
        }
    }
}

TEST(RadioButton, ExcludesTheOthersOfItsGroup) {
    Stage stage;
    std::vector<std::unique_ptr<RadioButton>> buttons;
    for (const bool opensGroup : {true, false, true, false, true}) {
        buttons.push_back(std::make_unique<RadioButton>(stage.handle(), std::uint16_t{1}, "choice", opensGroup));
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
    const std::string_view choices[] = {"one", "a much longer choice", "three"};
    for (const auto look : {Selector::Look::ComboBox, Selector::Look::ListBox}) {
        Stage stage;
        Selector selector(stage.handle(), 3, look, choices);
        const Size size = selector.preferredSize();
        selector.moveTo({0, 0, size.width, size.height});
        EXPECT_EQ(selector.selected(), -1);
        selector.select(1);
        EXPECT_EQ(selector.selected(), 1);
        EXPECT_EQ(placeOn(selector.handle(), stage.handle()), (Rectangle{0, 0, size.width, size.height}));
        RECT dropped{};
        SendMessageW(selector.handle(), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        const auto lineHeight = SendMessageW(selector.handle(), CB_GETITEMHEIGHT, 0, 0);
        EXPECT_TRUE(look == Selector::Look::ListBox || dropped.bottom - dropped.top >= 3 * lineHeight)
            << "no room for the choices";
    }
}

TEST(Label, ShowsAllOfItsText) {
    Stage stage;
    for (const char* const text : {"A calculator", "W|with a description"}) {
        Label label(stage.handle(), 1, text);
        const Size size = label.preferredSize();
        label.moveTo({0, 0, size.width + 20, size.height});
        const auto pixels = picture(label.handle());
        int end = 0;
        for (int place = 0; place < static_cast<int>(pixels.size()); ++place) {
            const bool isInk = pixels.begin()[place] != GetSysColor(COLOR_3DFACE);
            end = std::max(end, isInk ? place % (size.width + 20) : 0);
        }
        // The text ends where the preferred width does.
        EXPECT_TRUE(end <= size.width && end >= size.width - 4) << text;
    }
}

TEST(Widgets, TheCountOfResourcesSeesOneFontAndOneWindow) {
    const Stage first;  // with the thread's first window the system makes some of its own
    const Resources before = heldResources();
    const FontOwner font(CreateFontW(10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial"));
    const Stage stage;
    EXPECT_EQ(heldResources().windows, before.windows + 1);
    EXPECT_GE(heldResources().drawingObjects, before.drawingObjects + 1);
}

}  // namespace
}  // namespace calquo
