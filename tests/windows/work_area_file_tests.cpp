// Real files and the real control: what comes back, and what is left when something goes wrong.
#include "workarea/work_area_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <tuple>

#include "file_folder.h"
#include "support/allocations.h"
#include "support/repeated.h"
#include "widgets/handles.h"
#include "work_area_fixture.h"
#include "workarea/code_page.h"
#include "workarea/file_fault.h"
#include "workarea/line_breaks.h"
#include "workarea/plain_text.h"
#include "workarea/text_cost.h"

namespace calquo {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

/// A work area with its files in a folder.
struct Sheet {
    std::optional<FileFailure> read(std::wstring_view name) {
        return failureOf([&] { file.read(folder.path(name)); });
    }
    std::optional<FileFailure> write(std::wstring_view name) {
        return failureOf([&] { file.write(folder.path(name)); });
    }

    template <typename Action>
    static std::optional<FileFailure> failureOf(Action action) {
        try {
            action();
            return std::nullopt;
        } catch (const FileFault& fault) {
            return fault.failure;
        }
    }

    FileFolder folder;
    WorkAreaFixture fixture;
    WorkAreaFile file{fixture.workArea()};
};

/// Holds a file open, as another program might.
class OpenFile {
public:
    OpenFile(const std::wstring& name, DWORD access, DWORD sharing)
        : handle_(CreateFileW(name.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { CloseHandle(handle_); }

private:
    HANDLE handle_;
};
constexpr DWORD shareNothing = 0;
constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Every character of the first plane that breaks no line and is not for UTF-16 itself, in lines of different lengths,
/// as UTF-16.
std::string everyCharacter() {
    std::string bytes = "\xFF\xFE";
    for (unsigned code = 1; code <= 0xFFFF; ++code) {
        if (!breaksLine(code) && (code < 0xD800 || code > 0xDFFF)) {
            bytes += {static_cast<char>(code & 0xFF), static_cast<char>(code >> 8)};
            bytes += code % 61 == 0 ? "\r\0\n\0"sv : ""sv;
        }
    }
    return bytes;
}

// --- What comes back ------------------------------------------------------------------------------------------------

TEST(WorkAreaFile, PlainTextComesBackByteForByte) {
    const std::string files[] = {
        "",
        "2+3 = 5\r\n\r\n5\r\n",
        "\r\n\r\n",
        "\t2\n\n3\n",
        "2\r3\r",
        "{\\rtf1 2+3\\par}",
        "\xC2\xB5 \xE2\x88\x9E \xF0\x9F\x98\x80\r\n",
        "5 \x80 \x81\xFF\r\n",
        everyCharacter(),
        // Pairs of units, and of line ends, across every boundary of the control's own pieces.
        repeated(5'000, "\xF0\x9F\x98\x80+\r\n\xF0\x9F\x98\x80\r\n"),
    };
    for (const std::string& bytes : files) {
        SCOPED_TRACE(testing::PrintToString(bytes.substr(0, 40)));
        Sheet sheet;
        sheet.fixture.type("8 = 8");
        sheet.folder.put(L"in.txt", bytes);
        ASSERT_EQ(sheet.read(L"in.txt"), std::nullopt);
        ASSERT_EQ(sheet.write(L"out.txt"), std::nullopt);
        EXPECT_TRUE(sheet.folder.bytes(L"out.txt") == bytes);
    }
}

TEST(WorkAreaFile, TheSystemsCodePagesGoBothWays) {
    for (const auto& [number, bytes, characters] :
         {std::tuple{1251u, "\xCF\xE8"sv, u"\u041F\u0438"sv}, std::tuple{932u, "\x83\xCE"sv, u"\u03C0"sv}}) {
        const CodePage page = codePageOf(number);
        EXPECT_EQ(page.decode(bytes), characters);
        EXPECT_EQ(page.encode(characters), bytes);
    }
    EXPECT_EQ(codePageOf(932).decode("\x83"), std::nullopt);
}

TEST(WorkAreaFile, WhatIsSavedIsReadAgain) {
    // Numbers as wide as fixed point writes them: the control wraps each over a hundred rows.
    Sheet sheet;
    sheet.fixture.format = defaultFormats[static_cast<std::size_t>(FormatKind::FixedPoint)];
    for (int count = 0; count < 4; ++count) {
        sheet.fixture.type("1e4900");
        sheet.fixture.press(VK_RETURN);
    }
    const std::wstring text = sheet.fixture.text();
    EXPECT_GT(text.size(), 4 * 6'000U);
    for (const wchar_t* name : {L"x.rtf", L"x.txt"}) {
        ASSERT_EQ(sheet.write(name), std::nullopt);
        Sheet other;
        other.file.read(sheet.folder.path(name));
        EXPECT_EQ(other.fixture.text(), text);
    }
    // Of sixty such lines the control takes a minute for what is done here.
    std::u16string sixty;
    for (int count = 0; count < 15; ++count) {
        sixty.append(text.begin(), text.end());
    }
    EXPECT_NO_THROW(refuseTooMuchText(sixty, mostInWine));
}

TEST(WorkAreaFile, WhatCouldNotBeReadAgainIsToldBeforeItIsSaved) {
    Sheet sheet;
    sheet.fixture.workArea().replaceContentByPlainText(L"a\xFFFE\0b"s);
    sheet.folder.put(L"x.txt", "old");
    std::optional<FileFailure> told;
    bool wanted = false;
    const auto save = [&] {
        sheet.file.write(sheet.folder.path(L"x.txt"), [&](const FileFault& fault) {
            told = fault.failure;
            return wanted;
        });
    };
    EXPECT_THROW(save(), SaveCancelled);
    EXPECT_EQ(told, FileFailure::NotText);
    EXPECT_EQ(sheet.folder.bytes(L"x.txt"), "old");
    EXPECT_EQ(sheet.folder.names().size(), 1u);
    wanted = true;
    save();
    EXPECT_NE(sheet.folder.bytes(L"x.txt"), "old");
}

TEST(WorkAreaFile, TheFormOfTheTextThatWasReadHoldsForTheNextSave) {
    Sheet sheet;
    sheet.folder.put(L"legacy.txt", "5 \x80\n");
    ASSERT_EQ(sheet.read(L"legacy.txt"), std::nullopt);
    EXPECT_EQ(sheet.fixture.text(), L"5 \u20AC\n");
    sheet.fixture.type("+\n");
    ASSERT_EQ(sheet.write(L"legacy.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"legacy.txt"), "5 \x80\n+\n");
    // A failure to read is no reading.
    ASSERT_EQ(sheet.read(L"none.rtf"), FileFailure::Missing);
    ASSERT_EQ(sheet.write(L"legacy.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"legacy.txt"), "5 \x80\n+\n");
    sheet.folder.put(L"rich.rtf", "{\\rtf1 5\\'80\\par\\par}");
    ASSERT_EQ(sheet.read(L"rich.rtf"), std::nullopt);
    ASSERT_EQ(sheet.write(L"new"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"new"), "5\xE2\x82\xAC\r\n");
}

TEST(WorkAreaFile, RichTextKeepsItsStyles) {
    Sheet sheet;
    for (const wchar_t* line : {L"2+3", L"2+", L"\u221E+\u0100\u4E2D\U0001F600{\\b}", L""}) {
        sheet.fixture.type(line);
        sheet.fixture.press(VK_RETURN);
        sheet.fixture.select(1'000, 1'000);
        sheet.fixture.press(VK_RETURN, VK_CONTROL);
    }
    const std::wstring picture = sheet.fixture.picture();
    ASSERT_EQ(sheet.write(L"Sheet.RTF"), std::nullopt);
    const std::string bytes = sheet.folder.bytes(L"Sheet.RTF");
    EXPECT_TRUE(bytes.starts_with("{\\rtf1"));
    EXPECT_EQ(bytes.find_first_of("\0\x80\xC2\xE2\xF0"sv), std::string::npos);

    Sheet other;
    other.fixture.type("8 = 8");
    other.folder.put(L"x.rtf", bytes);
    ASSERT_EQ(other.read(L"x.rtf"), std::nullopt);
    EXPECT_EQ(other.fixture.picture(), picture);
    ASSERT_EQ(other.write(L"x.rtf"), std::nullopt);
    EXPECT_EQ(other.folder.bytes(L"x.rtf"), bytes);
}

TEST(WorkAreaFile, AReadingIsOneStepAndOwesNothingToWhatWasThere) {
    const std::string foreign =
        "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red255\\green0\\blue0;}\\qc\\f0\\fs40\\cf1\\b\\ul\\super 8\\par}";
    for (const auto& [name, bytes, picture] :
         {std::tuple(L"x.txt", "\t2+3\x01{}\n7"s, L"\t2+3\x01{}\n7|"),
          std::tuple(L"x.rtf", "{\\rtf1 2+3\\par 7}"s, L"2+3\n7|"),
          std::tuple(L"y.rtf", "{\\rtf1{\\colortbl;\\red0\\green0\\blue139;}2+3{\\b\\cf1  = 5}}"s, L"2+3< = 5>|")}) {
        Sheet sheet;
        sheet.folder.put(L"foreign.rtf", foreign);
        sheet.folder.put(name, bytes);
        ASSERT_EQ(sheet.read(L"foreign.rtf"), std::nullopt);
        ASSERT_EQ(sheet.read(name), std::nullopt);
        EXPECT_EQ(sheet.fixture.picture(), picture);
        PARAFORMAT2 paragraph{};
        paragraph.cbSize = sizeof paragraph;
        SendMessageW(sheet.fixture.control(), EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&paragraph));
        EXPECT_EQ(paragraph.wAlignment, PFA_LEFT);
        sheet.fixture.undo();
        EXPECT_EQ(sheet.fixture.picture(), L"8?|");
        sheet.fixture.undo();
        EXPECT_EQ(sheet.fixture.text(), L"");
    }
}

TEST(WorkAreaFile, OtherProgramsStylesStayToo) {
    Sheet sheet;
    sheet.folder.put(L"x.rtf",
                     "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}{\\colortbl;\\red255\\green0\\blue0;}"
                     "\\f0\\fs40 large {\\f1\\i slanted} {\\cf1\\ul red}\\par}");
    ASSERT_EQ(sheet.read(L"x.rtf"), std::nullopt);
    ASSERT_EQ(sheet.write(L"y.rtf"), std::nullopt);
    ASSERT_EQ(sheet.read(L"y.rtf"), std::nullopt);
    EXPECT_EQ(sheet.fixture.text(), L"large slanted red");
    struct Row {
        std::size_t place;
        DWORD effects;
        COLORREF color;
        const wchar_t* font;
    };
    for (const Row& row : {Row{0, 0, 0, L"Arial"}, Row{8, CFE_ITALIC, 0, L"Courier New"},
                           Row{14, CFE_UNDERLINE, RGB(255, 0, 0), L"Arial"}}) {
        sheet.fixture.select(row.place, row.place + 1);
        CHARFORMAT2W format{};
        format.cbSize = sizeof format;
        SendMessageW(sheet.fixture.control(), EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
        EXPECT_EQ(format.dwEffects & (CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE), row.effects) << row.place;
        EXPECT_EQ(format.yHeight, 400) << row.place;
        // Whatever the number beside it, the system's colour is black.
        const bool isOfSystem = (format.dwEffects & CFE_AUTOCOLOR) != 0;
        EXPECT_EQ(isOfSystem ? RGB(0, 0, 0) : format.crTextColor, row.color) << row.place;
        EXPECT_EQ(std::wstring(format.szFaceName), row.font);
    }
}

// --- Reading --------------------------------------------------------------------------------------------------------

TEST(WorkAreaFile, WhatIsReadDoesNotLookLikeWhatItReplacesAndUndoBringsThatBack) {
    for (const wchar_t* name : {L"x.rtf", L"x.txt"}) {
        SCOPED_TRACE(name);
        Sheet sheet;
        sheet.folder.put(L"x.txt", "new\r\ntext");
        sheet.folder.put(L"x.rtf", "{\\rtf1 new\\par text\\par}");
        sheet.fixture.type("2+3");
        sheet.fixture.press(VK_RETURN);
        const std::wstring before = sheet.fixture.picture();
        ASSERT_EQ(sheet.read(name), std::nullopt);
        EXPECT_EQ(sheet.fixture.picture(), L"new\ntext|");
        sheet.fixture.undo();
        EXPECT_EQ(sheet.fixture.picture(), before);
        sheet.fixture.select(0, 3);
        sheet.fixture.press(VK_DELETE);
        ASSERT_EQ(sheet.fixture.picture(), L"|< = 5>\n\n5");
        ASSERT_EQ(sheet.read(name), std::nullopt);
        EXPECT_EQ(sheet.fixture.picture(), L"new\ntext|");
        sheet.folder.put(name, "");
        ASSERT_EQ(sheet.read(name), std::nullopt);
        EXPECT_EQ(sheet.fixture.text(), L"");
    }
}

/// The work area before something that must not change it.
struct Snapshot {
    explicit Snapshot(WorkAreaFixture& fixture)
        : picture((fixture.select(1, 2), fixture.picture())),
          canUndo(SendMessageW(fixture.control(), EM_CANUNDO, 0, 0)),
          canRedo(SendMessageW(fixture.control(), EM_CANREDO, 0, 0)) {}
    friend bool operator==(const Snapshot&, const Snapshot&) = default;

    std::wstring picture;
    LRESULT canUndo, canRedo;
};

TEST(WorkAreaFile, AFileThatCannotBeReadLeavesTheWorkAreaAsItWas) {
    struct Row {
        const wchar_t* name;
        std::string bytes;
        FileFailure failure;
    };
    const Row rows[] = {
        {L"text.rtf", "2+3 = 5\r\n", FileFailure::NotRichText},
        {L"start.rtf", "{\\rt", FileFailure::NotRichText},
        {L"zeros.rtf", std::string(100, '\0'), FileFailure::NotRichText},
        {L"cut.rtf", "{\\rtf1 2+3{\\b  = 5", FileFailure::CutOff},
        {L"zeros.txt", std::string("2\0+3", 4), FileFailure::NotText},
        {L"program.exe", std::string("MZ\x90\0\x03\0\0\0", 8), FileFailure::NotText},
        {L"line.txt", std::string(3'000'000, '1'), FileFailure::TooMuchText},
        {L"large.txt", repeated(10'000'000, "2+3*4\r\n"), FileFailure::TooLarge},
    };
    Sheet sheet;
    sheet.fixture.type("2+3");
    sheet.fixture.press(VK_RETURN);
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(row.name)));
        const Snapshot before(sheet.fixture);
        sheet.folder.put(row.name, row.bytes);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(sheet.read(row.name), row.failure);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
        EXPECT_EQ(Snapshot(sheet.fixture).picture, before.picture);
        EXPECT_EQ(Snapshot(sheet.fixture).canUndo, before.canUndo);
    }
    sheet.fixture.undo();
    EXPECT_EQ(sheet.fixture.text(), L"2+3");
}

// --- Saving ---------------------------------------------------------------------------------------------------------

TEST(WorkAreaFile, ASaveReplacesTheProgramsOwnFileAndKeepsAForeignOne) {
    Sheet sheet;
    const std::string old(100'000, 'x');
    sheet.fixture.type("2+3");
    sheet.folder.put(L"x.txt", old);
    ASSERT_EQ(sheet.write(L"x.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"x.txt"), "2+3");
    EXPECT_EQ(sheet.folder.bytes(L"x.txt.bak"), old);
    sheet.fixture.type("+4");
    ASSERT_EQ(sheet.write(L"X.TXT"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"x.txt"), "2+3+4");
    EXPECT_EQ(sheet.folder.bytes(L"x.txt.bak"), old);
    EXPECT_EQ(sheet.folder.names().size(), 2u);
    ASSERT_EQ(sheet.write(L"\u221E \u4E2D.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"\u221E \u4E2D.txt"), "2+3+4");
}

TEST(WorkAreaFile, AnUnchangedTextIsNotWritten) {
    Sheet sheet;
    sheet.folder.put(L"x.rtf", "{\\rtf1 {\\i of another program\\par}}");
    sheet.folder.put(L"y.txt", "a\r\nb\n");
    for (const wchar_t* name : {L"x.rtf", L"y.txt"}) {
        const std::string bytes = sheet.folder.bytes(name);
        ASSERT_EQ(sheet.read(name), std::nullopt);
        ASSERT_EQ(sheet.write(name), std::nullopt);
        EXPECT_EQ(sheet.folder.bytes(name), bytes);
    }
    // Undo brings another text back, which no file holds.
    sheet.fixture.undo();
    ASSERT_EQ(sheet.write(L"y.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"y.txt"), "of another program");
    sheet.fixture.press(VK_RETURN, VK_CONTROL);
    ASSERT_EQ(sheet.write(L"y.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"y.txt").find("of another program"), 0u);
    EXPECT_NE(sheet.folder.bytes(L"y.txt"), "of another program");
    EXPECT_EQ(sheet.folder.names().size(), 2u);
}

TEST(WorkAreaFile, AFileKeepsItsAttributes) {
    Sheet sheet;
    sheet.folder.put(L"x.txt", "old");
    constexpr DWORD attributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE;
    SetFileAttributesW(sheet.folder.path(L"x.txt").c_str(), attributes);
    sheet.fixture.type("2+3");
    ASSERT_EQ(sheet.write(L"x.txt"), std::nullopt);
    EXPECT_EQ(sheet.folder.bytes(L"x.txt"), "2+3");
    EXPECT_EQ(GetFileAttributesW(sheet.folder.path(L"x.txt").c_str()), attributes);
}

TEST(WorkAreaFile, MemoryThatRunsOutLosesNothing) {
    struct Row {
        const wchar_t* name;
        bool isSave, isForeign;
    };
    for (const Row& row : {Row{L"x.txt", false, false}, Row{L"x.rtf", false, false}, Row{L"x.txt", true, false},
                           Row{L"x.rtf", true, false}, Row{L"x.txt", true, true}}) {
        Sheet sheet;
        sheet.folder.put(row.name, fileKindOf(row.name) == FileKind::RichText ? "{\\rtf1 old}" : "old");
        int calls = 0;
        for (bool failed = true; failed; ++calls) {
            SCOPED_TRACE(testing::Message() << testing::PrintToString(row.name) << ", " << row.isSave << ", " << calls);
            if (row.isSave && !row.isForeign) {
                ASSERT_EQ(sheet.read(row.name), std::nullopt);
            }
            sheet.fixture.type("+");
            const Snapshot before(sheet.fixture);
            const std::string bytes = sheet.folder.bytes(row.name);
            std::optional<FileFailure> failure;
            const std::wstring path = sheet.folder.path(row.name);
            {
                const FailingAllocation allocation(calls);
                failure = Sheet::failureOf([&] { row.isSave ? void(sheet.file.write(path)) : sheet.file.read(path); });
                failed = allocation.hasFailed();
            }
            ASSERT_TRUE(failed || !failure);
            if (failure) {
                EXPECT_EQ(failure, FileFailure::OutOfMemory);
                EXPECT_EQ(Snapshot(sheet.fixture), before);
                EXPECT_EQ(sheet.folder.bytes(row.name), bytes);
                EXPECT_EQ(sheet.folder.names(), std::vector<std::wstring>{row.name});
            }
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_GT(calls, 5);
        EXPECT_EQ(sheet.folder.bytes(L"x.txt.bak"), row.isForeign ? "old" : "(none)");
    }
}

TEST(WorkAreaFile, WhatCannotBeReadOrReplacedStaysAsItWas) {
    Sheet sheet;
    sheet.fixture.type("2+3");
    for (const wchar_t* name : {L"readonly.txt", L"held.txt", L"locked.txt", L"written.txt", L"file"}) {
        sheet.folder.put(name, "old");
    }
    std::filesystem::create_directory(sheet.folder.path(L"folder.txt"));
    const std::vector<std::wstring> names = sheet.folder.names();
    SetFileAttributesW(sheet.folder.path(L"readonly.txt").c_str(), FILE_ATTRIBUTE_READONLY);
    struct Row {
        const wchar_t* name;
        std::optional<FileFailure> reading;
        std::optional<FileFailure> saving;
    };
    using enum FileFailure;
    const std::wstring longName(300, L'x');
    const Row rows[] = {
        {longName.c_str(), PathTooLong, PathTooLong},
        {L"none.txt", Missing, {}},
        {L"none\\x.txt", FolderMissing, FolderMissing},
        {L"file\\x.txt", FolderMissing, FolderMissing},
        {L"folder.txt", IsFolder, IsFolder},
        {L"a<b.txt", InvalidName, InvalidName},
        {L"locked.txt", InUse, InUse},
        {L"written.txt", InUse, {}},
        {L"held.txt", std::nullopt, InUse},
        {L"readonly.txt", std::nullopt, ReadOnly},
    };
    {
        const OpenFile locked(sheet.folder.path(L"locked.txt"), GENERIC_READ, shareNothing);
        const OpenFile written(sheet.folder.path(L"written.txt"), GENERIC_READ | GENERIC_WRITE, shareAll);
        const OpenFile held(sheet.folder.path(L"held.txt"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
        const Snapshot before(sheet.fixture);
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::PrintToString(std::wstring(row.name)));
            EXPECT_TRUE(!row.reading || sheet.read(row.name) == row.reading);
            EXPECT_TRUE(!row.saving || sheet.write(row.name) == row.saving);
            EXPECT_EQ(sheet.folder.names(), names);
            EXPECT_EQ(Snapshot(sheet.fixture), before);
        }
    }
    for (const wchar_t* name : {L"readonly.txt", L"held.txt", L"locked.txt", L"written.txt", L"file"}) {
        EXPECT_EQ(sheet.folder.bytes(name), "old");
    }
    for (const wchar_t* name : {L"NUL", L"X:\\none\\x.txt"}) {
        const FileFailure failure = name[0] == L'N' ? IsDevice : Unreachable;
        EXPECT_EQ(Sheet::failureOf([&] { sheet.file.read(name); }), failure);
        EXPECT_EQ(Sheet::failureOf([&] { sheet.file.write(name); }), failure);
    }
}

}  // namespace
}  // namespace calquo
