// The real work area: keys go in, and its text, styles and caret are looked at.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "work_area_fixture.h"
#include "workarea/record.h"

namespace calquo {
namespace {

// "<...>" stands around text in the result style, "|" for the caret.

/// A line with the caret at its end, and what Enter makes of it.
struct EnterRow {
    std::string_view line, after;
};

constexpr EnterRow enterRows[] = {
    {"", "\n|"},
    {"2+3", "2+3< = 5>\n\n5|"},
    {"2+3 = 9", "2+3< = 5>\n\n5|"},
    {"2+3   ", "2+3< = 5>\n\n5|"},
    {"  2+3= Error (incomplete)", "  2+3< = 5>\n\n5|"},
    {"14", "14\n|"},
    {"14 = 15", "14\n|"},
    {"14  ", "14\n|"},
    {" 14", " 14< = 14>\n\n14|"},
    {"= 14", "= 14|"},
    {"5=9", "5=9|"},
    {"   = 14", "   = 14|"},
    {"2+3 \t= 9 = 10", "2+3< = 5>\n\n5|"},
    {"55=9", "55\n|"},
    {"'16 255", "'16 255< = 16'FF>\n\n16'FF|"},
    {"(1; 2)^2", "(1; 2)^2< = (-3; 4)>\n\n(-3; 4)|"},
    {"1/4", "1/4< = 0.25>\n\n0.25|"},
    {"2+", "2+|< = Error (invalid format)>"},
    {"2) = 4", "2|)< = Error (parentheses)>"},
    {"  ", "  |< = Error (invalid format)>"},
    {"2+\xE9", "2+|\xE9< = Error (invalid format)>"},
    {"2\\{3}", "2|\\{3}< = Error (invalid format)>"},
};

TEST(WorkArea, EnterRewritesTheLineInOneStepForUndo) {
    for (const EnterRow& row : enterRows) {
        SCOPED_TRACE(row.line);
        WorkAreaFixture fixture;
        fixture.type(row.line);
        fixture.press(VK_RETURN);
        EXPECT_EQ(fixture.picture(), wide(row.after));
        if (fixture.text() == wide(row.line)) {
            continue;
        }
        const std::wstring after = fixture.text();
        fixture.undo();
        EXPECT_EQ(fixture.text(), wide(row.line));
        fixture.redo();
        EXPECT_EQ(fixture.text(), after);
    }
}

/// A line with a selection from `begin` to `end`, and what evaluating it into the selection makes of it.
struct InPlaceRow {
    std::string_view line;
    std::size_t begin, end;
    std::string_view after;
};

constexpr InPlaceRow inPlaceRows[] = {
    {"2+3", 3, 3, "2+35|"},
    {"2+3", 0, 3, "5|"},
    {"2+3 = 9", 6, 7, "2+3 = 5|"},
    {"2+3*4", 2, 5, "2+14|"},
    {"2+", 2, 2, "2+|< = Error (invalid format)>"},
    {"= 4", 3, 3, "= 4|"},
    {"", 0, 0, "|"},
};

TEST(WorkArea, EvaluationIntoTheSelectionReplacesNothingElse) {
    for (const InPlaceRow& row : inPlaceRows) {
        SCOPED_TRACE(row.line);
        WorkAreaFixture fixture;
        fixture.type(row.line);
        fixture.select(row.begin, row.end);
        fixture.press(VK_F9);
        EXPECT_EQ(fixture.picture(), wide(row.after));
        if (fixture.text() != wide(row.line)) {
            fixture.undo();
        }
        EXPECT_EQ(fixture.text(), wide(row.line));
    }
}

/// Text with the caret at `place`, a key, and what stands there then.
struct KeyRow {
    const wchar_t* text;
    std::size_t place;
    int key, modifier;
    const wchar_t* after;
};

TEST(WorkArea, KeysActAtTheCaretOnly) {
    const KeyRow rows[] = {
        // A line in the middle is rewritten between its neighbours, wherever the caret stands in it.
        {L"1+1\n2+3\n4+4", 4, VK_RETURN, 0, L"1+1\n2+3< = 5>\n\n5|\n4+4"},
        {L"1+1\n2+3\n4+4", 7, VK_RETURN, 0, L"1+1\n2+3< = 5>\n\n5|\n4+4"},
        {L"1+1\n2+3 = 9\n4+4", 9, VK_RETURN, 0, L"1+1\n2+3< = 5>\n\n5|\n4+4"},
        {L"1+1\n2+x\n4+4", 4, VK_RETURN, 0, L"1+1\n2+x|< = Error (unknown name)>\n4+4"},
        {L"1+1\n\n4+4", 4, VK_RETURN, 0, L"1+1\n\n|\n4+4"},
        {L"2+3\n4+4", 0, VK_RETURN, 0, L"2+3< = 5>\n\n5|\n4+4"},
        // With a modifier, Enter is an ordinary new line.
        {L"2+3", 2, VK_RETURN, VK_CONTROL, L"2+\n|3"},
        {L"2+3", 2, VK_RETURN, VK_SHIFT, L"2+\n|3"},
        {L"2+3", 3, VK_RETURN, VK_MENU, L"2+3\n|"},
        // Keys that are the control's own.
        {L"2+3", 3, VK_BACK, 0, L"2+|"},
        {L"2+3", 0, VK_DELETE, 0, L"|+3"},
        {L"2+3", 3, VK_F9, VK_SHIFT, L"2+3|"},
    };
    for (const KeyRow& row : rows) {
        SCOPED_TRACE(row.text);
        WorkAreaFixture fixture;
        fixture.type(row.text);
        fixture.select(row.place, row.place);
        fixture.press(row.key, row.modifier);
        EXPECT_EQ(fixture.picture(), row.after);
    }
}

TEST(WorkArea, TypingGoesOnFromTheCarriedResultInNormalStyle) {
    WorkAreaFixture fixture;
    fixture.type("2+3");
    fixture.press(VK_RETURN);
    fixture.type("*4");
    EXPECT_EQ(fixture.picture(), L"2+3< = 5>\n\n5*4|");
    fixture.press(VK_RETURN);
    // Each evaluation and each stretch of typing is one step back.
    for (const wchar_t* before : {L"2+3 = 5\n\n5*4", L"2+3 = 5\n\n5", L"2+3", L""}) {
        fixture.undo();
        EXPECT_EQ(fixture.text(), before);
    }
}

TEST(WorkArea, WhatIsTypedBesideAResultIsNormal) {
    WorkAreaFixture fixture;
    fixture.type("2+3");
    fixture.press(VK_RETURN);
    // The expression is deleted and another typed, right before the old result.
    fixture.select(0, 3);
    fixture.press(VK_DELETE);
    fixture.type("4*5");
    EXPECT_EQ(fixture.picture(), L"4*5|< = 5>\n\n5");
    fixture.select(7, 7);
    fixture.type("\n6");
    EXPECT_EQ(fixture.picture(), L"4*5< = 5>\n6|\n\n5");
    fixture.select(0, 0);
    fixture.press(VK_RETURN);
    EXPECT_EQ(fixture.picture(), L"4*5< = 20>\n\n20|\n6\n\n5");
}

DWORD CALLBACK readPiece(DWORD_PTR rest, LPBYTE buffer, LONG room, LONG* count) {
    auto& text = *reinterpret_cast<std::string_view*>(rest);
    *count = static_cast<LONG>(text.copy(reinterpret_cast<char*>(buffer), static_cast<std::size_t>(room)));
    text.remove_prefix(static_cast<std::size_t>(*count));
    return 0;
}

/// Puts rich text at the caret as pasting with its formats does.
void streamIn(const WorkAreaFixture& fixture, std::string_view text) {
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&text), 0, readPiece};
    SendMessageW(fixture.control(), EM_STREAMIN, SF_RTF | SFF_SELECTION, reinterpret_cast<LPARAM>(&stream));
}

/// Rich text that is as unlike the program's own as it can be.
std::string loud(std::string_view text) {
    return "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red255\\green0\\blue0;\\red255\\green255\\blue0;}"
           "\\f0\\fs40\\i\\ul\\strike\\super\\v\\cf1\\highlight2 " +
           std::string(text) + "}";
}

int alignmentAt(WorkAreaFixture& fixture, std::size_t place) {
    fixture.select(place, place);
    PARAFORMAT2 paragraph{};
    paragraph.cbSize = sizeof paragraph;
    SendMessageW(fixture.control(), EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&paragraph));
    return paragraph.wAlignment;
}

/// What is done after "7*8", all pasted with formats and centred, and what stands there then; "?" is after each
/// character in another style.
struct LoudRow {
    std::size_t begin, end;
    std::string_view typed;
    int key;
    std::string_view after;
};

TEST(WorkArea, WhatIsWrittenIsInTheProgramsStyleAfterPastedText) {
    constexpr LoudRow rows[] = {
        {3, 3, "", VK_RETURN, "7?*?8?< = 56>\n\n56|"},
        {3, 3, "+1", 0, "7?*?8?+1|"},
        {0, 0, "1+", 0, "1+|7?*?8?"},
        {1, 2, "-3+", 0, "7?-3+|8?"},
        {0, 3, "12", 0, "12|"},
        {1, 1, "", VK_F9, "7?56|*?8?"},
        {3, 3, "\n9", 0, "7?*?8?\n9|"},

    };
    for (const LoudRow& row : rows) {
        SCOPED_TRACE(row.after);
        WorkAreaFixture fixture;
        streamIn(fixture, loud("7*8"));
        PARAFORMAT2 centred{};
        centred.cbSize = sizeof centred;
        centred.dwMask = PFM_ALIGNMENT;
        centred.wAlignment = PFA_CENTER;
        SendMessageW(fixture.control(), EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&centred));
        const std::wstring before = fixture.text();
        fixture.select(row.begin, row.end);
        fixture.type(row.typed);
        if (row.key != 0) {
            fixture.press(row.key);
        }
        EXPECT_EQ(fixture.picture(), wide(row.after));
        // The pasted line stays centred; the lines below it are the program's.
        const std::size_t lineEnd = fixture.text().find(L'\n');
        if (fixture.text().starts_with(L"7")) {
            EXPECT_EQ(alignmentAt(fixture, 0), PFA_CENTER);
        }
        if (lineEnd != std::wstring::npos) {
            EXPECT_EQ(alignmentAt(fixture, lineEnd + 1), PFA_LEFT);
            EXPECT_EQ(alignmentAt(fixture, fixture.text().size()), PFA_LEFT);
        }
        if (row.key != 0) {
            fixture.undo();
            EXPECT_EQ(fixture.text(), before);
            EXPECT_EQ(alignmentAt(fixture, 0), PFA_CENTER);
        }
    }
}

TEST(WorkArea, AnEmptyLineIsPlainAgainWhenItIsTypedIn) {
    WorkAreaFixture fixture;
    PARAFORMAT2 centred{};
    centred.cbSize = sizeof centred;
    centred.dwMask = PFM_ALIGNMENT;
    centred.wAlignment = PFA_CENTER;
    SendMessageW(fixture.control(), EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&centred));
    fixture.type("7");
    EXPECT_EQ(alignmentAt(fixture, 1), PFA_LEFT);
}

TEST(WorkArea, ManyNewResultsAreOneStepAmongTheOthers) {
    constexpr std::size_t lines = 500, lineLength = 9;
    std::wstring wrong, right = L"7\n";
    for (std::size_t line = 0; line < lines; ++line) {
        wrong += line == 0 ? L"2+3 = 99" : L"\n2+3 = 99";
        right += L"2+3 = 5\n";
    }
    WorkAreaFixture fixture;
    const HWND first = fixture.control();
    fixture.workArea().replaceContentByPlainText(wrong);
    // Italics in the second line, and a step of one's own, in a line that has no result.
    fixture.select(lineLength, lineLength + 1);
    CHARFORMAT2W italic{};
    italic.cbSize = sizeof italic;
    italic.dwMask = CFM_ITALIC;
    italic.dwEffects = CFE_ITALIC;
    SendMessageW(fixture.control(), EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&italic));
    fixture.select(0, 0);
    fixture.type("7\n");
    const std::wstring typed = fixture.text();
    fixture.select(2 + 3 * lineLength, 2 + 4 * lineLength + 1);
    fixture.workArea().evaluateAll();
    right.pop_back();
    EXPECT_TRUE(fixture.text() == right);
    EXPECT_EQ(GetFocus(), fixture.control());
    const TextRange selected = fixture.workArea().selection();
    EXPECT_EQ(selected.begin, 2 + 3 * 8);
    EXPECT_EQ(selected.end, 2 + 4 * 8 + 1);
    const auto isItalic = [&](std::size_t place) {
        fixture.select(place, place + 1);
        CHARFORMAT2W format{};
        format.cbSize = sizeof format;
        SendMessageW(fixture.control(), EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
        return (format.dwEffects & CFE_ITALIC) != 0;
    };
    EXPECT_TRUE(isItalic(2 + 8));
    EXPECT_FALSE(isItalic(2 + 8 + 6));
    EXPECT_FALSE(fixture.workArea().canRedo());
    fixture.type("8");
    const std::wstring after = fixture.text();
    fixture.press('Z', VK_CONTROL);
    EXPECT_TRUE(fixture.text() == right);
    fixture.press('Z', VK_CONTROL);
    EXPECT_TRUE(fixture.text() == typed);
    EXPECT_EQ(GetFocus(), first);
    // What is typed and undone now comes before what the other control shows.
    fixture.type("3");
    const std::wstring other = fixture.text();
    fixture.press('Z', VK_CONTROL);
    EXPECT_TRUE(fixture.text() == typed);
    fixture.press('Y', VK_CONTROL);
    EXPECT_TRUE(fixture.text() == other);
    fixture.press('Z', VK_CONTROL);
    fixture.workArea().evaluateAll();
    EXPECT_TRUE(fixture.text() == right);
    fixture.select(2 + 8 + 6, 2 + 8 + 7);
    fixture.type("8");
    EXPECT_TRUE(fixture.text() == after);
    fixture.press('Z', VK_CONTROL);
    fixture.press('Z', VK_CONTROL);
    EXPECT_TRUE(fixture.text() == typed);
    fixture.undo();
    EXPECT_FALSE(fixture.text() == typed);
    for (const std::wstring& text : {typed, right, after}) {
        fixture.press('Y', VK_CONTROL);
        EXPECT_TRUE(fixture.text() == text);
    }
    EXPECT_FALSE(fixture.workArea().canRedo());
    // A change makes another course of it.
    fixture.press('Z', VK_CONTROL);
    fixture.press('Z', VK_CONTROL);
    fixture.type("9");
    EXPECT_FALSE(fixture.workArea().canRedo());
}

TEST(WorkArea, AResultThatIsTypedOverBecomesNormal) {
    WorkAreaFixture fixture;
    fixture.type("2+3");
    fixture.press(VK_RETURN);
    fixture.select(6, 7);
    fixture.type("78");
    EXPECT_EQ(fixture.picture(), L"2+3< = >78|\n\n5");
    fixture.undo();
    fixture.undo();
    EXPECT_EQ(fixture.text(), L"2+3 = 5\n\n5");
    EXPECT_EQ(fixture.picture().substr(0, 9), L"2+3< = 5>");
}

/// What is typed or done while a result is fresh, and what stands in its line then.
TEST(WorkArea, AFreshResultGivesWayToAnOperand) {
    struct Row {
        std::string_view typed, line, afterUndo;
    };
    for (const Row& row : {Row{"7*8", "7*8", "5"},
                           {".5", ".5", "5"},
                           {"(1+2)", "(1+2)", "5"},
                           {"*8", "5*8", "5"},
                           {" 7", "5 7", "5"},
                           {")", "5)", "5"},
                           {"pi", "pi", "5"}}) {
        SCOPED_TRACE(row.typed);
        WorkAreaFixture fixture;
        fixture.type("2+3");
        fixture.press(VK_RETURN);
        fixture.type(row.typed);
        EXPECT_EQ(fixture.picture(), L"2+3< = 5>\n\n" + wide(row.line) + L"|");
        fixture.undo();
        EXPECT_EQ(fixture.text(), L"2+3 = 5\n\n" + wide(row.afterUndo));
        // What has been brought back is no longer fresh.
        fixture.select(100, 100);
        fixture.type("7");
        EXPECT_EQ(fixture.text(), L"2+3 = 5\n\n57");
    }
}

TEST(WorkArea, WhatIsComposedTakesThePlaceOfAFreshResult) {
    WorkAreaFixture fixture;
    fixture.type("2+3");
    fixture.press(VK_RETURN);
    SendMessageW(fixture.control(), WM_IME_STARTCOMPOSITION, 0, 0);
    SendMessageW(fixture.control(), WM_IME_ENDCOMPOSITION, 0, 0);
    fixture.type(L"\u4E03");
    EXPECT_EQ(fixture.text(), L"2+3 = 5\n\n\u4E03");
}

/// The keys that make formats in some version of the control or other; Control is held.
TEST(WorkArea, KeysOfFormatsDoNothing) {
    WorkAreaFixture fixture;
    fixture.type("2+3");
    fixture.select(0, 3);
    for (const int key : {int{'E'}, int{'J'}, int{'L'}, int{'R'}, int{'1'}, int{'2'}, int{'5'}, int{'B'}, int{'I'},
                          int{'U'}, int{VK_OEM_PLUS}, int{VK_OEM_COMMA}}) {
        fixture.press(key, VK_CONTROL);
        EXPECT_EQ(alignmentAt(fixture, 1), PFA_LEFT) << key;
        PARAFORMAT2 paragraph{};
        paragraph.cbSize = sizeof paragraph;
        SendMessageW(fixture.control(), EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&paragraph));
        EXPECT_EQ(paragraph.bLineSpacingRule, 0) << key;
        EXPECT_EQ(fixture.picture(), L"2|+3") << key;
        fixture.select(0, 3);
    }
}

TEST(WorkArea, CharactersBeyondTheCodePageStayAsTyped) {
    WorkAreaFixture fixture;
    const std::wstring line = L"8+\u221E+\u044F\u4E2D\U0001F600";
    fixture.type(line);
    ASSERT_EQ(fixture.text(), line);
    fixture.press(VK_RETURN);
    // An infinity sign is no 8, whatever a code page makes of it.
    EXPECT_EQ(fixture.picture(), L"8+|\u221E+\u044F\u4E2D\U0001F600< = Error (invalid format)>");
    fixture.undo();
    EXPECT_EQ(fixture.text(), line);
    fixture.select(line.size(), line.size());
    fixture.type(L" = \u221E");
    fixture.press(VK_RETURN);
    EXPECT_EQ(fixture.text(), line + L" = Error (invalid format)");
}

TEST(WorkArea, ALongLineIsEvaluatedWhole) {
    std::wstring sum = L"1";
    for (int count = 1; count < 2000; ++count) {
        sum += L"+1";
    }
    for (const std::size_t place : {std::size_t{0}, std::size_t{1000}, sum.size()}) {
        SCOPED_TRACE(place);
        WorkAreaFixture fixture;
        fixture.type(L"1\n");
        SendMessageW(fixture.control(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(sum.c_str()));
        fixture.type(L"\n7");
        fixture.select(2 + place, 2 + place);
        fixture.press(VK_RETURN);
        EXPECT_EQ(fixture.text(), L"1\n" + sum + L" = 2,000\n\n2,000\n7");
        EXPECT_EQ(fixture.caret(), 2 + sum.size() + 8 + 2 + 5);
    }
}

TEST(WorkArea, TheHelpKeyIsTheMainWindowsCommand) {
    WorkAreaFixture fixture;
    fixture.type("2+3");
    fixture.press(VK_F1);
    fixture.press(VK_F1, VK_SHIFT);
    EXPECT_EQ(fixture.commands, (std::vector<unsigned>{2592, 2592}));
    EXPECT_EQ(fixture.picture(), L"2+3|");
}

WNDPROC beforeReplacing;

LRESULT CALLBACK answerThatResultsReplace(HWND window, UINT code, WPARAM first, LPARAM second) {
    if (code == WorkArea::resultReplaceQuery) {
        return 1;
    }
    return CallWindowProcW(beforeReplacing, window, code, first, second);
}

TEST(WorkArea, EnterAsksTheControlWhetherResultsReplace) {
    WorkAreaFixture fixture;
    EXPECT_EQ(SendMessageW(fixture.control(), WM_USER + 3, 0, 0), 0);
    beforeReplacing = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(fixture.control(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(answerThatResultsReplace)));
    fixture.type("2+3");
    fixture.select(0, 2);
    fixture.press(VK_RETURN);
    EXPECT_EQ(fixture.picture(), L"5|3");
}

/// The rows of the line files that need no options.
std::vector<std::string> plainRows() {
    std::vector<std::string> rows;
    for (const auto& entry : std::filesystem::directory_iterator(CALQUO_TEST_LINES)) {
        std::ifstream file(entry.path(), std::ios::binary);
        bool plain = true;
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("#:")) {
                plain = line.find("--") == std::string::npos;
            }
            if (plain && !line.empty() && line.front() != '#') {
                rows.push_back(line);
            }
        }
    }
    return rows;
}

/// The row's record as the work area shows it, with the caret where the row says that the error lies.
std::wstring expectedPicture(const std::string& row, std::string_view expression) {
    const std::string_view rest = std::string_view(row).substr(expression.size());
    if (rest.empty()) {
        return wide(row) + L"\n|";
    }
    const std::size_t place = rest.rfind(") at ");
    if (!rest.starts_with(" = Error (") || place == std::string_view::npos) {
        return wide(expression) + L"<" + wide(rest) + L">\n\n" + wide(rest.substr(3)) + L"|";
    }
    std::wstring drawn = wide(expression) + L"<" + wide(rest.substr(0, place + 1)) + L">";
    return drawn.insert(std::stoul(std::string(rest.substr(place + 5))), L"|");
}

TEST(WorkArea, ShowsTheRecordsOfTheLineFiles) {
    const std::vector<std::string> rows = plainRows();
    ASSERT_GT(rows.size(), 100u);
    constexpr std::size_t sampleSize = 100;
    WorkAreaFixture fixture;
    for (std::size_t index = 0; index < rows.size(); index += rows.size() / sampleSize + 1) {
        SCOPED_TRACE(rows[index]);
        const std::string_view expression = expressionOf(rows[index]);
        fixture.select(0, 10'000);
        fixture.press(VK_DELETE);
        fixture.type(expression);
        fixture.press(VK_RETURN);
        EXPECT_EQ(fixture.picture(), expectedPicture(rows[index], expression));
    }
}

}  // namespace
}  // namespace calquo
