// The program in high contrast: it draws in the system's colours, follows their change, and its sheets keep their own.
#include "high_contrast.h"

#include <gtest/gtest.h>

#include <optional>
#include <set>

#include "program.h"
#include "widgets/toolkit.h"
#include "workarea/foreign_text.h"
#include "workarea/work_area.h"

namespace calquo {
namespace {

constexpr unsigned basicKeypad = 0xA110, editing = 0xA111, automaticFormat = 0x4511, showAbout = 0xA60;

// Of no colour that the program has itself, so that each can be told from the others in a picture.
constexpr COLORREF ground = RGB(0, 0, 64), text = RGB(255, 255, 0), links = RGB(0, 255, 255), face = RGB(64, 0, 0),
                   faceText = RGB(255, 200, 255), caption = RGB(0, 64, 0), captionText = RGB(200, 255, 200);

const std::vector<std::pair<int, std::uint32_t>> scheme = {
    {COLOR_WINDOW, ground},
    {COLOR_WINDOWTEXT, text},
    {COLOR_HOTLIGHT, links},
    {COLOR_HIGHLIGHT, RGB(255, 255, 254)},
    {COLOR_HIGHLIGHTTEXT, 0},
    {COLOR_BTNFACE, face},
    {COLOR_BTNTEXT, faceText},
    {COLOR_ACTIVECAPTION, caption},
    {COLOR_CAPTIONTEXT, captionText},
    {COLOR_INACTIVECAPTION, caption},
    {COLOR_INACTIVECAPTIONTEXT, captionText},
};

/// The colours of a window's pixels, of every second row.
std::set<COLORREF> colorsOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const HDC context = GetDC(window);
    std::set<COLORREF> colors;
    for (LONG place = 0; place < client.right * client.bottom / 2; ++place) {
        colors.insert(GetPixel(context, place % client.right, place / client.right * 2));
    }
    ReleaseDC(window, context);
    return colors;
}

bool has(HWND window, COLORREF color) { return colorsOf(window).contains(color); }

/// A program with a sheet of a normal line and a result.
struct Sheet {
    Sheet() {
        program.command(basicKeypad);
        program.command(editing);
        area().typeCharacters("2+3");
        area().evaluate();
    }

    WorkArea& area() const { return dynamic_cast<WorkArea&>(*Component::of(program.workArea())); }
    COLORREF colorAt(std::int32_t position) const {
        area().select({position, position + 1});
        CHARFORMAT2W format{};
        format.cbSize = sizeof format;
        SendMessageW(program.workArea(), EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
        return format.crTextColor;
    }

    Program program;
};

TEST(HighContrast, EverythingIsInTheSystemsColorsAsLongAsItIsOn) {
    const Sheet sheet;
    const Program& program = sheet.program;
    const std::vector<HWND> parts{program.workArea(), program.child(basicKeypad), program.child(editing),
                                  program.child(0x9011), program.handle()};
    std::vector<std::set<COLORREF>> own;
    for (const HWND part : parts) {
        own.push_back(colorsOf(part));
    }
    {
        const HighContrast on(scheme);
        Program::serveMessages();
        for (const HWND panel : {parts[1], parts[2]}) {
            EXPECT_TRUE(has(panel, ground) && has(panel, face) && has(panel, faceText));
        }
        EXPECT_TRUE(has(parts[3], caption) && has(parts[3], face));
        EXPECT_TRUE(has(program.handle(), captionText));
        EXPECT_TRUE(has(program.workArea(), ground) && has(program.workArea(), text) && has(program.workArea(), links));
        EXPECT_FALSE(has(program.handle(), RGB(236, 239, 243))) << "the panels' usual ground";
        const Program started;
        EXPECT_TRUE(has(started.workArea(), ground));
    }
    Program::serveMessages();
    for (std::size_t part = 0; part < parts.size(); ++part) {
        EXPECT_EQ(colorsOf(parts[part]), own[part]) << part;
    }
}

TEST(HighContrast, ASheetKeepsItsCaretItsStateAndItsColorsInFiles) {
    Sheet sheet;
    WorkArea& area = sheet.area();
    area.select({3, 3});
    const std::string saved = area.sheetAsRichText();
    const std::uint32_t revision = area.revision();
    std::optional<HighContrast> on(scheme);
    Program::serveMessages();
    EXPECT_EQ(area.selection(), (TextRange{3, 3}));
    EXPECT_EQ(area.revision(), revision);
    EXPECT_EQ(sheet.colorAt(1), text);
    EXPECT_EQ(sheet.colorAt(6), links);
    area.select({10, 10});
    area.typeCharacters("*2");
    area.evaluate();
    EXPECT_EQ(sheet.colorAt(10), text);
    EXPECT_EQ(sheet.colorAt(14), links);
    const std::string more = area.sheetAsRichText();
    EXPECT_NE(more.find("\\red0\\green0\\blue139;"), std::string::npos) << more;
    EXPECT_EQ(more.find("\\red255\\green255\\blue0;"), std::string::npos) << more;
    area.select({0, 7});
    area.cut();
    const std::string onClipboard = clipboardText(area.handle(), ForeignForm::Rich).rich;
    EXPECT_NE(onClipboard.find("\\red0\\green0\\blue139;"), std::string::npos) << onClipboard;
    EXPECT_EQ(onClipboard.find("\\red255\\green255\\blue0;"), std::string::npos) << onClipboard;
    area.pasteWithLooks();
    on.reset();
    Program::serveMessages();
    EXPECT_EQ(sheet.colorAt(6), RGB(0, 0, 139));
    EXPECT_EQ(sheet.colorAt(14), RGB(0, 0, 139));
    EXPECT_EQ(sheet.program.text(), L"2+3 = 5\n\n5*2 = 10\n\n10");
    area.select({7, static_cast<std::int32_t>(sheet.program.text().size())});
    area.replace(area.selection(), {{L"\n\n5", {}}}, 0);
    EXPECT_EQ(area.sheetAsRichText(), saved);
}

TEST(HighContrast, OpenDialogsFollowIt) {
    Program program;
    program.command(automaticFormat);
    program.command(showAbout);
    const HWND format = FindWindowW(L"Format", nullptr), about = FindWindowW(L"CalquoAbout", nullptr);
    const HWND field = FindWindowExW(format, nullptr, L"CalquoNumberField", nullptr);
    {
        const HighContrast on(scheme);
        Program::serveMessages();
        SetWindowTextW(field, L"99");
        Program::serveMessages();
        EXPECT_TRUE(has(format, face) && has(format, links)) << "what is wrong";
        const std::set<COLORREF> colors = colorsOf(about);
        EXPECT_TRUE(colors.contains(face) && !colors.contains(RGB(240, 240, 240)));
    }
    SendMessageW(format, WM_CLOSE, 0, 0);
    SendMessageW(about, WM_CLOSE, 0, 0);
}

}  // namespace
}  // namespace calquo
