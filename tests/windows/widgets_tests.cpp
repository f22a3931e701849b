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
#include "widgets/bitmap_image.h"
#include "widgets/button.h"
#include "widgets/check_box.h"
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
    unsigned command = 0;
    unsigned code = 0;
    HWND source = nullptr;
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
            stage->notices.push_back({LOWORD(wide), HIWORD(wide), reinterpret_cast<HWND>(extra), Clock::now()});
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

/// The only tool of a tooltip, with its text.
struct Tool {
    TTTOOLINFOW description{};
    std::array<wchar_t, 200> text{};
};

void readTool(HWND tooltip, Tool& tool) {
    tool.description.cbSize = sizeof tool.description;
    tool.description.lpszText = tool.text.data();
    ASSERT_EQ(SendMessageW(tooltip, TTM_GETTOOLCOUNT, 0, 0), 1);
    ASSERT_NE(SendMessageW(tooltip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool.description)), 0);
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
    struct Row {
        int left, top;
        const char* codes;
    };
    const Row rows[] = {{3, 3, "3"}, {0, 0, "3"}, {29, 19, "3"}, {30, 3, ""}, {3, 20, ""}, {-1, 3, ""}, {3, -1, ""}};
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.left << ", " << row.top);
        Stage stage;
        const auto button = placedButton(stage, {.label = "x", .description = "", .widthNumber = 1});
        ASSERT_EQ(sizeOf(button->handle()), (Size{30, 20}));
        mouse(*button, WM_LBUTTONDOWN);
        EXPECT_TRUE(button->isPressed());
        EXPECT_EQ(GetCapture(), button->handle());
        EXPECT_EQ(stage.codes(), "");
        mouse(*button, WM_LBUTTONUP, row.left, row.top);
        EXPECT_FALSE(button->isPressed());
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(stage.codes(), row.codes);
        for (const Notice& notice : stage.notices) {
            EXPECT_EQ(notice.command, 7u);
            EXPECT_EQ(notice.source, button->handle());
        }
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

TEST(Button, NeverTakesTheFocus) {
    Stage stage;
    SetFocus(stage.handle());
    ASSERT_EQ(GetFocus(), stage.handle());
    const auto button = placedButton(stage, {.label = "x", .description = ""});
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
        mouse(*button, message);
        EXPECT_EQ(GetFocus(), stage.handle());
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
    const auto button = placedButton(stage, {.label = "", .description = "", .face = color, .widthNumber = 1});
    const auto at = [&](std::size_t left, std::size_t top) { return picture(button->handle())[top * 30 + left]; };
    const auto layers = buttonFace({30, 20}, color, false).layers;
    const COLORREF first = colorReference(layers[0].color);
    const COLORREF second = colorReference(layers[1].color);
    EXPECT_EQ(at(15, 10), colorReference(color));
    EXPECT_EQ(at(0, 10), second);
    EXPECT_EQ(at(15, 0), second);
    // Systems differ in whether the null pen leaves out the last column and row.
    EXPECT_TRUE(at(28, 10) == second || at(29, 10) == second);
    EXPECT_TRUE(at(15, 18) == second || at(15, 19) == second);
    for (const auto& [left, top] : {std::pair<std::size_t, std::size_t>{0, 0}, {29, 0}, {0, 19}, {29, 19}}) {
        EXPECT_EQ(at(left, top), GetSysColor(COLOR_3DFACE)) << left << ", " << top;
    }
    mouse(*button, WM_LBUTTONDOWN);
    for (const auto& [left, top] : {std::pair<std::size_t, std::size_t>{15, 10}, {0, 10}, {28, 10}}) {
        EXPECT_EQ(at(left, top), first) << left << ", " << top;
    }
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
        const auto inkIn = [&](int begin, int end) {
            int count = 0;
            for (int top = 2 * depth; top < area.height - 2 * depth; ++top) {
                for (int left = begin; left < end; ++left) {
                    const std::ptrdiff_t place = std::ptrdiff_t{top} * area.width + left;
                    count += pixels.begin()[place] != colorReference(white) ? 1 : 0;
                }
            }
            return count;
        };
        EXPECT_EQ(inkIn(1, 2), 0) << "at the left edge";
        EXPECT_EQ(inkIn(area.width - 3, area.width - 2), 0) << "at the right edge";
        EXPECT_GT(inkIn(2, area.width / 5), 0);
        EXPECT_GT(inkIn(area.width * 4 / 5, area.width - 3), 0);
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

TEST(Button, ChangesItsLook) {
    Stage stage;
    const auto button = placedButton(stage, {.label = "M", .description = "Maximize", .symbol = Symbol::Maximize});
    const auto before = picture(button->handle());
    mouse(*button, WM_MOUSEMOVE);
    button->setLook({.label = "R", .description = "Restore", .symbol = Symbol::Restore});
    EXPECT_EQ(button->label(), "R");
    EXPECT_EQ(button->symbol(), Symbol::Restore);
    EXPECT_NE(picture(button->handle()), before);
    mouse(*button, WM_MOUSEMOVE);
    ASSERT_EQ(tooltips().size(), 1u);
    Tool tool;
    readTool(tooltips()[0], tool);
    EXPECT_EQ(tool.text.data(), std::wstring(L"Restore"));
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
    EXPECT_TRUE(tooltips().empty());
    mouse(*plain, WM_MOUSEMOVE);
    EXPECT_TRUE(tooltips().empty());
    mouse(*button, WM_MOUSEMOVE);
    mouse(*button, WM_MOUSEMOVE);
    ASSERT_EQ(tooltips().size(), 1u);

    const HWND tooltip = tooltips()[0];
    Tool tool;
    readTool(tooltip, tool);
    EXPECT_EQ(tool.text.data(), std::wstring(L"Sine of an angle & more"));
    EXPECT_EQ(tool.description.uFlags, static_cast<UINT>(TTF_IDISHWND | TTF_SUBCLASS));
    EXPECT_EQ(tool.description.uId, reinterpret_cast<UINT_PTR>(button->handle()));
    EXPECT_EQ(GetWindow(tooltip, GW_OWNER), stage.handle());
    constexpr LONG_PTR wanted = TTS_ALWAYSTIP | TTS_NOPREFIX;
    EXPECT_EQ(GetWindowLongPtrW(tooltip, GWL_STYLE) & wanted, wanted);
    EXPECT_NE(GetWindowLongPtrW(tooltip, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    button.reset();
    EXPECT_TRUE(tooltips().empty());
}

TEST(Component, IsFoundByItsWindow) {
    Stage stage;
    Panel panel(stage.handle(), {});
    const Button& button = panel.add<Button>(std::uint16_t{1}, ButtonDescription{.label = "x", .description = "y"});
    EXPECT_EQ(Component::of(panel.handle()), &panel);
    EXPECT_EQ(Component::of(button.handle()), &button);
    EXPECT_EQ(Component::of(stage.handle()), nullptr) << "its data is of another kind";
    EXPECT_EQ(Component::of(nullptr), nullptr);
    EXPECT_EQ(button.parent(), panel.handle());
}

TEST(Component, KeepsItsTextInTwoParts) {
    struct Row {
        const char* text;
        const char* label;
        const char* description;
    };
    const Row rows[] = {{"sin|Sine", "sin", "Sine"}, {"7|", "7", ""}, {"7", "7", ""}, {"|Space", "", "Space"}};
    for (const Row& row : rows) {
        Stage stage;
        const Label label(stage.handle(), 1, row.text);
        EXPECT_EQ(label.text(), row.text);
        EXPECT_EQ(label.label(), row.label);
        EXPECT_EQ(label.description(), row.description);
        std::array<char, 20> shown{};
        GetWindowTextA(label.handle(), shown.data(), static_cast<int>(shown.size()));
        EXPECT_STREQ(shown.data(), row.label);
    }
}

TEST(Component, OutlivesItsWindow) {
    for (const bool withAll : {false, true}) {
        Stage stage;
        Panel panel(stage.handle(), {});
        const Button& button = panel.add<Button>(std::uint16_t{1}, ButtonDescription{.label = "x", .description = "y"});
        mouse(button, WM_MOUSEMOVE);
        DestroyWindow(withAll ? stage.handle() : panel.handle());
        EXPECT_EQ(button.handle(), nullptr);
        EXPECT_EQ(panel.handle(), nullptr);
        EXPECT_TRUE(tooltips().empty());
    }
}

TEST(Panel, PassesNoticesOnUnchanged) {
    Stage stage;
    Panel panel(stage.handle(), {.command = 0xA110});
    Panel& row = panel.add<Panel>(Panel::Creation{.direction = Direction::Across});
    const Button& button = row.add<Button>(std::uint16_t{42}, ButtonDescription{.label = "x", .description = ""});
    panel.moveTo({0, 0, 50, 50});
    panel.layOut();
    mouse(button, WM_LBUTTONDOWN);
    mouse(button, WM_LBUTTONUP);
    ASSERT_EQ(stage.codes(), "3");
    EXPECT_EQ(stage.notices[0].command, 42u);
    EXPECT_EQ(stage.notices[0].source, button.handle());
}

TEST(Panel, RowsFillItsWidthAtEverySize) {
    /// The width numbers of a row, and its width in half button sizes.
    struct Row {
        std::vector<int> widthNumbers;
        int halves;
    };
    const Row rows[] = {{{0, 0, 0, 0, 0, 0}, 12}, {{1, 1, 1, 1}, 12}, {{2, 2, 2}, 12}, {{4, 4}, 12}, {{5, 3}, 12},
                        {{1, 2, 3}, 12},          {{2, 2}, 8},        {{1}, 3}};
    for (int size = smallestButtonSize; size <= 40; ++size) {
        SCOPED_TRACE(size);
        Stage stage;
        setButtonSize(size);
        Panel panel(stage.handle(), {.style = 0x7B0100});
        for (const Row& row : rows) {
            Panel& rowPanel = panel.add<Panel>(Panel::Creation{.direction = Direction::Across});
            for (const int widthNumber : row.widthNumbers) {
                rowPanel.add<Button>(std::uint16_t{1},
                                     ButtonDescription{.label = "x", .description = "", .widthNumber = widthNumber});
            }
        }
        const int margin = size / 4;
        const Size preferred = panel.preferredSize();
        EXPECT_EQ(preferred, (Size{6 * size + 2 * margin, 8 * size + 2 * margin}));
        panel.moveTo({5, 5, preferred.width, preferred.height});
        panel.layOut();
        for (std::size_t index = 0; index < std::size(rows); ++index) {
            SCOPED_TRACE(testing::Message() << "row " << index);
            int left = margin;
            for (HWND button = GetWindow(panel.children()[index]->handle(), GW_CHILD); button != nullptr;
                 button = GetWindow(button, GW_HWNDNEXT)) {
                const Rectangle place = placeOn(button, panel.handle());
                EXPECT_EQ(place.left, left);
                EXPECT_EQ(place.top, margin + static_cast<int>(index) * size);
                EXPECT_EQ(place.height, size);
                left += place.width;
            }
            EXPECT_EQ(left - margin, rows[index].halves * size / 2);
        }
    }
}

TEST(Panel, HasTheBackgroundThatItsParentChooses) {
    Stage stage;
    Panel panel(stage.handle(), {.style = panelMargin});
    Panel& row = panel.add<Panel>(Panel::Creation{.direction = Direction::Across});
    row.add<Button>(std::uint16_t{1}, ButtonDescription{.label = "", .description = "", .face = black});
    panel.moveTo({0, 0, 50, 40});
    panel.layOut();
    const auto pixels = picture(panel.handle());
    EXPECT_EQ(pixels.front(), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(pixels.back(), GetSysColor(COLOR_3DFACE));
    // The round corner of the button.
    EXPECT_EQ(pixels[5 * 50 + 5], GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(pixels[15 * 50 + 15], colorReference(black));
}

TEST(Toolkit, ButtonsAreNeverTooSmallAndTheirFontFollowsThem) {
    const int rows[][3] = {{20, 20, 15}, {25, 25, 18}, {12, 12, 9}, {11, 12, 9}, {0, 12, 9}, {-5, 12, 9}};
    for (const auto& [wanted, size, fontHeight] : rows) {
        const Stage stage;
        setButtonSize(wanted);
        EXPECT_EQ(buttonSize(), size);
        LOGFONTW font{};
        GetObjectW(buttonFont(), sizeof font, &font);
        EXPECT_EQ(font.lfHeight, fontHeight);
    }
}

TEST(CheckBox, IsTickedByTheUserAndByTheProgram) {
    Stage stage;
    CheckBox box(stage.handle(), 5, "&Group digits");
    const Size size = box.preferredSize();
    box.moveTo({0, 0, size.width, size.height});
    EXPECT_FALSE(box.isChecked());
    SendMessageW(box.handle(), BM_CLICK, 0, 0);
    EXPECT_TRUE(box.isChecked());
    ASSERT_EQ(stage.notices.size(), 1u);
    EXPECT_EQ(stage.notices[0].command, 5u);
    box.setChecked(false);
    EXPECT_FALSE(box.isChecked());
}

TEST(RadioButton, ExcludesTheOthersOfItsGroup) {
    Stage stage;
    const bool opensGroup[] = {true, false, true, false};
    std::vector<std::unique_ptr<Component>> buttons;
    for (const bool opens : opensGroup) {
        buttons.push_back(std::make_unique<RadioButton>(stage.handle(), std::uint16_t{1}, "choice", opens));
        buttons.back()->moveTo({0, 20 * static_cast<int>(buttons.size()), 100, 20});
    }
    // Marks the end of the last group.
    buttons.push_back(std::make_unique<RadioButton>(stage.handle(), std::uint16_t{1}, "other", true));
    const auto marks = [&] {
        std::string all;
        for (const auto& button : buttons) {
            all += button->isChecked() ? 'x' : '-';
        }
        return all;
    };
    buttons[0]->setChecked(true);
    buttons[2]->setChecked(true);
    EXPECT_EQ(marks(), "x-x--");
    SendMessageW(buttons[1]->handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(marks(), "-xx--");
    SendMessageW(buttons[3]->handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(marks(), "-x-x-");
}

TEST(Selector, OffersItsChoices) {
    const std::string_view choices[] = {"one", "a much longer choice", "three"};
    for (const auto look : {Selector::Look::ComboBox, Selector::Look::ListBox}) {
        Stage stage;
        Selector selector(stage.handle(), 3, look, choices);
        const Size size = selector.preferredSize();
        selector.moveTo({0, 0, size.width, size.height});
        const bool drops = look == Selector::Look::ComboBox;
        EXPECT_EQ(SendMessageW(selector.handle(), drops ? CB_GETCOUNT : LB_GETCOUNT, 0, 0), 3);
        EXPECT_EQ(selector.selected(), -1);
        selector.select(1);
        EXPECT_EQ(selector.selected(), 1);
        EXPECT_EQ(placeOn(selector.handle(), stage.handle()), (Rectangle{0, 0, size.width, size.height}));
        if (drops) {
            RECT dropped{};
            SendMessageW(selector.handle(), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
            const auto lineHeight = SendMessageW(selector.handle(), CB_GETITEMHEIGHT, 0, 0);
            EXPECT_GE(dropped.bottom - dropped.top, 3 * lineHeight) << "no room for the choices";
        }
    }
}

TEST(Label, ShowsAllOfItsText) {
    Stage stage;
    const auto inkOf = [&](const char* text) {
        Label label(stage.handle(), 1, text);
        const Size size = label.preferredSize();
        label.moveTo({0, 0, size.width + 20, size.height});
        const auto pixels = picture(label.handle());
        std::vector<int> columns;
        for (std::size_t place = 0; place < pixels.size(); ++place) {
            if (pixels[place] != GetSysColor(COLOR_3DFACE)) {
                columns.push_back(static_cast<int>(place) % (size.width + 20) - size.width);
            }
        }
        return columns;
    };
    for (const char* const text : {"A calculator", "W|with a description"}) {
        const auto columns = inkOf(text);
        ASSERT_FALSE(columns.empty());
        // The text ends where the preferred width does.
        EXPECT_LE(*std::max_element(columns.begin(), columns.end()), 0);
        EXPECT_GE(*std::max_element(columns.begin(), columns.end()), -4);
    }
}

TEST(Label, HearsTheMouseForItsDescription) {
    Stage stage;
    for (const auto& [text, answer] : {std::pair{"x|y", HTCLIENT}, {"x", HTTRANSPARENT}}) {
        const Label label(stage.handle(), 1, text);
        EXPECT_EQ(SendMessageW(label.handle(), WM_NCHITTEST, 0, 0), answer);
    }
}

TEST(BitMapImage, ShowsItsBitmap) {
    Stage stage;
    Panel panel(stage.handle(), {});
    constexpr std::array<std::uint32_t, 4> pixels{0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF};  // red in the third byte
    const auto& image = panel.add<BitMapImage>(std::uint16_t{1}, BitmapOwner(CreateBitmap(2, 2, 1, 32, pixels.data())));
    const Size size = panel.preferredSize();
    ASSERT_EQ(size, (Size{2, 2}));
    panel.moveTo({0, 0, size.width, size.height});
    panel.layOut();
    const std::vector<COLORREF> wanted{RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(255, 255, 255)};
    EXPECT_EQ(picture(image.handle()), wanted);
}

/// Every kind of widget, used.
void openPanel(const Stage& stage) {
    Panel panel(stage.handle(), {.style = panelMargin});
    for (int count = 0; count < 4; ++count) {
        Panel& row = panel.add<Panel>(Panel::Creation{.direction = Direction::Across});
        for (const char* const label : {"1", "pennyweight", "", "sin"}) {
            const Symbol symbol = *label == '\0' ? Symbol::Undo : Symbol::None;
            row.add<Button>(std::uint16_t{1},
                            ButtonDescription{.label = label, .description = "tip", .symbol = symbol, .repeats = true});
        }
        mouse(*row.children()[2], WM_LBUTTONDOWN);
        if (count == 0) {
            mouse(*row.children()[1], WM_MOUSEMOVE);
        }
    }
    const std::string_view choices[] = {"one", "two"};
    panel.add<CheckBox>(std::uint16_t{1}, "check");
    panel.add<RadioButton>(std::uint16_t{1}, "choice", true);
    panel.add<Selector>(std::uint16_t{1}, Selector::Look::ComboBox, choices);
    panel.add<Selector>(std::uint16_t{1}, Selector::Look::ListBox, choices);
    panel.add<Label>(std::uint16_t{1}, "label|tip");
    panel.add<BitMapImage>(std::uint16_t{1}, BitmapOwner(CreateBitmap(2, 2, 1, 32, nullptr)));
    const Size size = panel.preferredSize();
    panel.moveTo({0, 0, size.width, size.height});
    panel.layOut();
    RedrawWindow(stage.handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

TEST(Widgets, TheCountOfResourcesSeesOneFontAndOneWindow) {
    const Stage first;  // with the thread's first window the system makes some of its own
    const Resources before = heldResources();
    const FontOwner font(CreateFontW(10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial"));
    const Stage stage;
    EXPECT_EQ(heldResources().windows, before.windows + 1);
    EXPECT_GE(heldResources().drawingObjects, before.drawingObjects + 1);
}

TEST(Widgets, LeaveNothingBehind) {
    Stage stage;
    openPanel(stage);  // what is made once and shared stays
    const Resources before = heldResources();
    for (int count = 0; count < 200; ++count) {
        openPanel(stage);
    }
    wait(milliseconds(0));
    const Resources after = heldResources();
    EXPECT_EQ(after.drawingObjects, before.drawingObjects);
    EXPECT_EQ(after.windows, before.windows);
}

}  // namespace
}  // namespace calquo
