// The dialogs of the formats on the main window: their controls, the keyboard, and what becomes of what is typed.
#include "dialogs/format_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include "dialog_keys.h"
#include "dialogs/form_layout.h"
#include "program.h"
#include "resources.h"
#include "widgets/screens.h"

namespace calquo {
namespace {

constexpr unsigned modifyAutomatic = 0x4511, modifyScientific = 0x4512, modifyInteger = 0x4515;
constexpr unsigned modifyFractional = 0x4517, selectInteger = 0x515, resetFormats = 0x541;

HWND dialog() { return FindWindowW(L"Format", nullptr); }

std::string textOf(HWND window) {
    std::array<char, 200> text{};
    GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

RECT placeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

std::vector<HWND> childrenOf(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    return children;
}

/// The child of the dialog with a text, null when there is none.
HWND childNamed(std::string_view text) {
    const auto children = childrenOf(dialog());
    const auto found =
        std::find_if(children.begin(), children.end(), [&](HWND child) { return textOf(child) == text; });
    return found == children.end() ? nullptr : *found;
}

/// The control of an attribute: beside its label, or with the label on it.
HWND controlOf(char letter, FormatKind kind = FormatKind::Automatic) {
    const Attribute& attribute = *attributeOf(kind, letter);
    const HWND named = childNamed(attribute.label);
    return attribute.control == AttributeControl::CheckBox ? named : GetWindow(named, GW_HWNDNEXT);
}

/// What the dialog says is wrong.
std::string message() { return textOf(GetWindow(childNamed("Ok"), GW_HWNDPREV)); }

void pressWithAlt(wchar_t character) {
    PostMessageW(GetFocus(), WM_SYSCHAR, character, 1 << 29);
    Program::serveMessages();
}

/// Runs a command that opens a dialog, and lets the dialog get the focus.
void open(Program& program, unsigned command) {
    program.command(command);
    settle();
}

/// Types into a field in place of what stands there.
void type(HWND field, std::string_view text) {
    SetFocus(field);
    SendMessageW(field, EM_SETSEL, 0, -1);
    PostMessageW(field, WM_CHAR, '\b', 1);
    for (const char character : text) {
        PostMessageW(field, WM_CHAR, static_cast<WPARAM>(character), 1);
    }
    Program::serveMessages();
}

void click(HWND button) {
    SendMessageW(button, BM_CLICK, 0, 0);
    Program::serveMessages();
}

/// What the system says first when the main window is clicked while the dialog is active.
void clickInto(const Program& program) { SendMessageW(program.handle(), WM_ACTIVATE, WA_CLICKACTIVE, 0); }

NumericFormat wordOf(const Program& program, FormatKind kind = FormatKind::Automatic) {
    return program.settings().format(kind);
}

bool isOn(HWND box) { return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED; }

/// All children of the dialog lie within it and apart from one another.
void expectApart() {
    RECT area{};
    GetClientRect(dialog(), &area);
    MapWindowPoints(dialog(), nullptr, reinterpret_cast<POINT*>(&area), 2);
    const auto children = childrenOf(dialog());
    for (auto child = children.begin(); child != children.end(); ++child) {
        const RECT place = placeOf(*child);
        RECT common{};
        IntersectRect(&common, &place, &area);
        EXPECT_TRUE(EqualRect(&common, &place) && !IsRectEmpty(&place)) << textOf(*child);
        for (auto other = child + 1; other != children.end(); ++other) {
            const RECT otherPlace = placeOf(*other);
            EXPECT_FALSE(IntersectRect(&common, &place, &otherPlace)) << textOf(*child) << ", " << textOf(*other);
        }
    }
}

TEST(FormatDialog, EveryKindShowsItsAttributesInOrder) {
    Program program;
    for (std::size_t index = 0; index < formatKinds.size(); ++index) {
        SCOPED_TRACE(formatKinds[index].title);
        const auto kind = static_cast<FormatKind>(index);
        open(program, modifyAutomatic + static_cast<unsigned>(index));
        ASSERT_NE(dialog(), nullptr);
        EXPECT_EQ(textOf(dialog()), formatKinds[index].title);
        EXPECT_EQ(GetWindow(dialog(), GW_OWNER), program.handle());
        expectApart();
        std::vector<HWND> expected;
        for (const Attribute* const attribute : attributesOf(kind)) {
            const HWND control = controlOf(attribute->letter, kind);
            ASSERT_NE(control, nullptr) << attribute->label;
            expected.push_back(control);
            const std::uint32_t value = getField(defaultFormats[index], attribute->field);
            if (attribute->control == AttributeControl::NumberField) {
                EXPECT_EQ(textOf(control), std::to_string(value));
            } else if (attribute->control == AttributeControl::Selector) {
                EXPECT_EQ(SendMessageW(control, CB_GETCURSEL, 0, 0), static_cast<LRESULT>(value));
            } else {
                EXPECT_EQ(isOn(control), value != 0) << attribute->label;
            }
        }
        expected.push_back(childNamed("Ok"));
        expected.push_back(childNamed("Cancel"));
        // From Cancel, which has the focus, Tab comes to the first control and then to each in its order.
        EXPECT_EQ(GetFocus(), expected.back());
        std::vector<HWND> visited(expected.size());
        for (HWND& window : visited) {
            press(VK_TAB);
            window = GetFocus();
        }
        EXPECT_EQ(visited, expected);
        press(VK_ESCAPE);
        EXPECT_EQ(dialog(), nullptr);
    }
}

TEST(FormatDialog, AppliesWithEnterWhereverTheFocusIs) {
    for (const char* const focused : {"field", "box", "Ok", "Cancel"}) {
        SCOPED_TRACE(focused);
        Program program;
        open(program, modifyAutomatic);
        type(controlOf('D'), "2");
        click(controlOf('+'));
        const std::string name = focused;
        SetFocus(name == "field" ? controlOf('X') : name == "box" ? controlOf('W') : childNamed(name));
        // A button that called itself a push button to the system would get Enter for itself.
        EXPECT_EQ(SendMessageW(GetFocus(), WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON), 0);
        press(VK_RETURN);
        EXPECT_EQ(dialog(), nullptr);
        EXPECT_EQ(wordOf(program), 0x03121045u);
        // The next result shows it.
        EXPECT_EQ(settledFocus(), program.workArea());
        program.setText(L"10000/3");
        SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_EQ(program.text(), L"10000/3 = +3,333.33\n\n+3,333.33");
    }
}

TEST(FormatDialog, ClosesWithoutApplying) {
    const std::function<void()> ways[] = {[] { press(VK_ESCAPE); }, [] { click(childNamed("Cancel")); },
                                          [] { SendMessageW(dialog(), WM_CLOSE, 0, 0); }};
    Program program;
    for (const auto& close : ways) {
        open(program, modifyAutomatic);
        // It shows the word, not what was typed the last time.
        EXPECT_EQ(textOf(controlOf('D')), "5");
        EXPECT_FALSE(isOn(controlOf('+')));
        type(controlOf('D'), "2");
        click(controlOf('+'));
        close();
        EXPECT_EQ(dialog(), nullptr);
        EXPECT_EQ(wordOf(program), defaultFormats[0]);
        EXPECT_EQ(settledFocus(), program.workArea());
    }
    open(program, modifyAutomatic);
    type(controlOf('D'), "2");
    program.close();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(wordOf(program), defaultFormats[0]);
}

TEST(FormatDialog, EachControlSetsItsAttribute) {
    struct Row {
        FormatKind kind;
        char letter;
        int value;
        NumericFormat expected;
    };
    const Row rows[] = {
        {FormatKind::Automatic, 'G', 8, 0x082A1044},  {FormatKind::Automatic, 'S', 31, 0x032FD044},
        {FormatKind::Automatic, 'D', 0, 0x03021044},  {FormatKind::Automatic, 'X', 15, 0x032A1E44},
        {FormatKind::Automatic, 'I', 0, 0x032A1004},  {FormatKind::Automatic, 'Z', 1, 0x032A1054},
        {FormatKind::Automatic, 'W', 0, 0x032A1040},  {FormatKind::Automatic, 'F', 1, 0x032A104C},
        {FormatKind::Automatic, '.', 1, 0x032A1046},  {FormatKind::Automatic, '+', 1, 0x032A1045},
        {FormatKind::Scientific, 'E', 1, 0x13222044}, {FormatKind::Currency, '.', 1, 0x33122036},
        {FormatKind::Integer, 'T', 4, 0x4480200C},    {FormatKind::Fractional, 'D', 1, 0x63080004},
    };
    Program program;
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << formatKinds[static_cast<std::size_t>(row.kind)].title << ' ' << row.letter);
        program.command(resetFormats);
        open(program, modifyAutomatic + static_cast<unsigned>(row.kind));
        const HWND control = controlOf(row.letter, row.kind);
        const AttributeControl kind = attributeOf(row.kind, row.letter)->control;
        if (kind == AttributeControl::NumberField) {
            type(control, std::to_string(row.value));
        } else if (kind == AttributeControl::CheckBox) {
            click(control);
        } else {
            SetFocus(control);
            for (int step = 0; step < row.value; ++step) {
                press(VK_DOWN);
            }
        }
        click(childNamed("Ok"));
        EXPECT_EQ(dialog(), nullptr);
        EXPECT_EQ(wordOf(program, row.kind), row.expected);
        for (const FormatKind other : {FormatKind::FixedPoint, FormatKind::Rational}) {
            EXPECT_EQ(wordOf(program, other), defaultFormats[static_cast<std::size_t>(other)]);
        }
    }
}

TEST(FormatDialog, SaysWhatIsWrongWithANumber) {
    Program program;
    open(program, modifyAutomatic);
    EXPECT_EQ(message(), "");
    const std::string wanted = "Fixed point exponent limit: please enter a whole number from 2 to 15.";
    for (const char* const typed : {"16", "1", "", "x", "3.5", "-3"}) {
        type(controlOf('X'), typed);
        EXPECT_EQ(textOf(controlOf('X')), typed);
        EXPECT_EQ(message(), wanted) << typed;
        SetFocus(controlOf('I'));
        press(VK_RETURN);
        ASSERT_NE(dialog(), nullptr) << typed;
        EXPECT_EQ(GetFocus(), controlOf('X')) << typed;
        EXPECT_EQ(wordOf(program), defaultFormats[0]) << typed;
    }
    // With two faults, the first of them; and the second once that is mended.
    type(controlOf('G'), "9");
    EXPECT_EQ(message(), "Number of digits in a group: please enter a whole number from 2 to 8.");
    type(controlOf('G'), "4");
    EXPECT_EQ(message(), wanted);
    type(controlOf('X'), "7");
    EXPECT_EQ(message(), "");
    press(VK_RETURN);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(wordOf(program), 0x042A0E44u);
}

/// Whether many pixels of a window are more red than anything else.
bool isMarked(HWND window) {
    UpdateWindow(window);
    RECT area{};
    GetClientRect(window, &area);
    const HDC context = GetDC(window);
    int count = 0;
    for (int place = 0; place < area.right * area.bottom; ++place) {
        const COLORREF pixel = GetPixel(context, place % area.right, place / area.right);
        count += GetRValue(pixel) > std::max(GetGValue(pixel), GetBValue(pixel)) + 80 ? 1 : 0;
    }
    ReleaseDC(window, context);
    return count > 5;
}

TEST(FormatDialog, MarksTheFaultInColour) {
    Program program;
    open(program, modifyAutomatic);
    const HWND field = controlOf('G'), other = controlOf('D'), said = GetWindow(childNamed("Ok"), GW_HWNDPREV);
    const auto marked = [&] {
        return std::string(isMarked(field) ? "G" : "") + (isMarked(other) ? "D" : "") + (isMarked(said) ? "!" : "");
    };
    EXPECT_EQ(marked(), "");
    type(field, "88");
    EXPECT_EQ(marked(), "G!");
    type(other, "88");
    EXPECT_EQ(marked(), "G!") << "the message is about another field";
    type(field, "8");
    EXPECT_EQ(marked(), "D!");
    type(other, "8");
    EXPECT_EQ(marked(), "");
}

TEST(FormatDialog, StopsAtWhatTheWordHasNoRoomFor) {
    Program program;
    open(program, modifyAutomatic);
    type(controlOf('X'), "15");
    type(controlOf('S'), "32");
    type(controlOf('D'), "7");
    type(controlOf('G'), "5");
    click(controlOf('+'));
    EXPECT_EQ(message(), "");
    press(VK_RETURN);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(message(), "Maximum significant digits: a format cannot keep more than 31.");
    EXPECT_EQ(GetFocus(), controlOf('S'));
    EXPECT_EQ(wordOf(program), 0x053A1044u) << "the group size and the digits stand ahead of it, and nothing else";
    type(controlOf('S'), "31");
    EXPECT_EQ(message(), "");
    press(VK_RETURN);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(wordOf(program), 0x053FDE45u);
}

TEST(FormatDialog, MarkedLettersLeadToTheControls) {
    Program program;
    open(program, modifyScientific);
    const auto at = [](char letter) { return controlOf(letter, FormatKind::Scientific); };
    pressWithAlt('s');
    EXPECT_EQ(GetFocus(), at('S'));
    PostMessageW(GetFocus(), WM_CHAR, '9', 1);
    Program::serveMessages();
    EXPECT_EQ(textOf(at('S')), "9") << "what stood there is to be replaced";
    pressWithAlt('e');
    pressWithAlt('z');
    press(VK_RETURN);
    EXPECT_EQ(wordOf(program, FormatKind::Scientific), 0x13226004u);
}

TEST(FormatDialog, ASecondOneBringsTheFirstForward) {
    Program program;
    open(program, modifyAutomatic);
    const HWND first = dialog();
    type(controlOf('D'), "9");
    clickInto(program);
    settle();
    ASSERT_EQ(GetActiveWindow(), program.handle());
    program.command(selectInteger);
    open(program, modifyInteger);
    EXPECT_EQ(dialog(), first);
    EXPECT_EQ(FindWindowExW(nullptr, first, L"Format", nullptr), nullptr);
    EXPECT_EQ(GetActiveWindow(), first);
    press(VK_RETURN);
    EXPECT_EQ(wordOf(program), 0x034A1044u);
    EXPECT_EQ(wordOf(program, FormatKind::Integer), defaultFormats[4]);
    EXPECT_EQ(program.settings().selectedFormat(), FormatKind::Integer);
}

TEST(FormatDialog, GetsTheFocusBackUnlessTheWindowIsClicked) {
    Program program;
    open(program, modifyAutomatic);
    SetFocus(controlOf('D'));
    SetFocus(dialog());
    EXPECT_EQ(GetFocus(), childNamed("Cancel"));
    SetActiveWindow(program.handle());
    EXPECT_EQ(GetFocus(), childNamed("Cancel"));
    clickInto(program);
    EXPECT_EQ(settledFocus(), program.workArea());
    SetActiveWindow(dialog());
    SetActiveWindow(program.handle());
    EXPECT_EQ(settledFocus(), program.workArea());
    program.setText(L"2+3");
    SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(program.text(), L"2+3 = 5\n\n5");
}

TEST(FormatDialog, StandsOverTheWorkAreaAndOnTheScreen) {
    for (const LONG left : {200, -250, 900}) {
        MemoryStorage storage;
        Settings(storage).setWindowRect({left, 100, left + 500, 500});
        Program program(std::move(storage));
        // Before the window manager moves the window onto the screen.
        const Rectangle around = windowRectangle(program.workArea());
        open(program, modifyFractional);
        const Rectangle stands = windowRectangle(dialog());
        EXPECT_EQ(stands, dialogRectangle({stands.width, stands.height}, around, screenOf(dialog()).usableArea));
    }
}

TEST(FormatDialog, LeavesNothingBehind) {
    Program program;
    Resources before;
    for (int round = 0; round < 3; ++round) {
        for (unsigned command = modifyAutomatic; command <= modifyFractional; ++command) {
            open(program, command);
            type(GetWindow(childNamed("&Number of digits in a group"), GW_HWNDNEXT), "9");
            SendMessageW(GetFocus(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));  // the tooltip
            press(VK_RETURN);
            press(VK_ESCAPE);
        }
        before = round == 0 ? heldResources() : before;  // what is made once and shared stays
    }
    EXPECT_EQ(heldResources().drawingObjects, before.drawingObjects);
    EXPECT_EQ(heldResources().windows, before.windows);
    EXPECT_EQ(heldResources().allocations, before.allocations);
}

}  // namespace
}  // namespace calquo
