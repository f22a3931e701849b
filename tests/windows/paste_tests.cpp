// Text of other programs on its way into the real work area: from the clipboard, and dropped.
#include <gtest/gtest.h>

#include <chrono>
#include <map>

#include "file_folder.h"
#include "held_key.h"
#include "support/allocations.h"
#include "support/repeated.h"
#include "work_area_fixture.h"
#include "workarea/foreign_text.h"
#include "workarea/text_drop.h"
#include "workarea/work_area_file.h"

#include <ole2.h>
#include <richole.h>

namespace calquo {
namespace {

using namespace std::string_literals;

/// What a program offers: bytes by the system's number of their format.
using Offer = std::map<std::uint32_t, std::string>;

std::string bytesOf(std::wstring_view text) {
    return std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)) +
           std::string(2, '\0');
}

Offer plain(std::wstring_view text) { return {{plainTextFormat(), bytesOf(text)}}; }
Offer rich(std::string_view text) { return {{richTextFormat(), std::string(text) + '\0'}}; }

HGLOBAL memoryOf(const std::string& bytes) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    bytes.copy(static_cast<char*>(GlobalLock(memory)), bytes.size());
    GlobalUnlock(memory);
    return memory;
}

void copyToClipboard(const Offer& offer) {
    ASSERT_NE(OpenClipboard(nullptr), 0);
    EmptyClipboard();
    for (const auto& [format, bytes] : offer) {
        SetClipboardData(format, memoryOf(bytes));
    }
    CloseClipboard();
}

/// Data that is dragged, as another program hands it over.
class Dragged final : public IDataObject {
public:
    explicit Dragged(Offer offer) : offer_(std::move(offer)) {}
    virtual ~Dragged() = default;

    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetData(FORMATETC* wanted, STGMEDIUM* medium) override {
        const auto found = offer_.find(wanted->cfFormat);
        if (found == offer_.end()) {
            return DV_E_FORMATETC;
        }
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = memoryOf(found->second);
        medium->pUnkForRelease = nullptr;
        return S_OK;
    }
    STDMETHODIMP QueryGetData(FORMATETC* wanted) override { return offer_.contains(wanted->cfFormat) ? S_OK : S_FALSE; }
    STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DUnadvise(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

private:
    Offer offer_;
};

/// What the control is told that drags `offer` over the work area, or drops it.
HRESULT askFor(WorkArea& workArea, const Offer& offer, DWORD operation, bool isMeant) {
    IRichEditOleCallback* const callback = newTextDrop(workArea);
    Dragged dragged(offer);
    CLIPFORMAT format = 0;
    const HRESULT answer = callback->QueryAcceptData(&dragged, &format, operation, isMeant ? TRUE : FALSE, nullptr);
    callback->Release();
    return answer;
}

using Fixture = WorkAreaFixture;

void pasteByKey(Fixture& fixture) { fixture.press('V', VK_CONTROL); }
void pasteByInsert(Fixture& fixture) { fixture.press(VK_INSERT, VK_SHIFT); }
void pasteByMessage(Fixture& fixture) { SendMessageW(fixture.control(), WM_PASTE, 0, 0); }
void pasteSpecial(Fixture& fixture) { SendMessageW(fixture.control(), EM_PASTESPECIAL, richTextFormat(), 0); }
void pasteWithLooks(Fixture& fixture) {
    const HeldKey shift(VK_SHIFT);
    fixture.press('V', VK_CONTROL);
}

TEST(Paste, EveryWayPutsTheLanguagesOwnTextInTheProgramsStyle) {
    Offer offer = plain(L"x\u00B2\u22121 \u00D7 2\v3");
    offer.merge(rich("{\\rtf1\\b other}"));
    for (const auto paste : {pasteByKey, pasteByInsert, pasteByMessage, pasteSpecial}) {
        copyToClipboard(offer);
        Fixture fixture;
        fixture.type("1+");
        fixture.press(VK_RETURN);
        fixture.select(2, 4);
        paste(fixture);
        EXPECT_EQ(fixture.picture(), L"1+x^2-1 * 2\n3|< Error (invalid format)>");
        fixture.undo();
        EXPECT_EQ(fixture.text(), L"1+ = Error (invalid format)");
        fixture.redo();
        EXPECT_EQ(fixture.text(), L"1+x^2-1 * 2\n3 Error (invalid format)");
    }
    Fixture fixture;
    EXPECT_EQ(askFor(fixture.workArea(), offer, RECO_DROP, false), S_FALSE);
    EXPECT_EQ(fixture.text(), L"");
    EXPECT_EQ(askFor(fixture.workArea(), offer, RECO_DROP, true), S_FALSE);
    EXPECT_EQ(fixture.picture(), L"x^2-1 * 2\n3|");
    EXPECT_EQ(askFor(fixture.workArea(), {{CF_BITMAP, "x"}}, RECO_DROP, false), E_FAIL);
}

TEST(Paste, NothingComesWhereThereIsNothing) {
    for (const Offer& offer : {Offer{}, Offer{{richTextFormat(), "no rich text"}}}) {
        copyToClipboard(offer);
        Fixture fixture;
        fixture.type("5");
        pasteByKey(fixture);
        pasteWithLooks(fixture);
        EXPECT_EQ(fixture.picture(), L"5|");
    }
}

TEST(Paste, LooksComeAlongWhereTheyAreWanted) {
    const Offer looks =
        rich("{\\rtf1{\\colortbl;\\red0\\green0\\blue139;}2\\u8722-3{\\b\\cf1  = -1}\\line{\\pict 00}6\\par}");
    copyToClipboard(looks);
    struct Row {
        std::function<void(Fixture&)> paste;
        const wchar_t* picture;
    };
    const Row rows[] = {
        {pasteWithLooks, L"12\x2212\x0033< = -1>\n6|2"},
        {pasteByKey, L"12-3 = -1\n6|2"},
        {[&](Fixture& fixture) { askFor(fixture.workArea(), looks, RECO_PASTE, true); }, L"12-3 = -1\n6|2"},
    };
    for (const Row& row : rows) {
        Fixture fixture;
        fixture.type("1;2");
        fixture.select(1, 2);
        row.paste(fixture);
        EXPECT_EQ(fixture.picture(), row.picture);
        fixture.undo();
        EXPECT_EQ(fixture.text(), L"1;2");
    }
    // Nothing of the neighbours' looks.
    Fixture fixture;
    fixture.type("2+3");
    fixture.press(VK_RETURN);
    fixture.select(6, 7);
    copyToClipboard(rich("{\\rtf1 4}"));
    pasteWithLooks(fixture);
    EXPECT_EQ(fixture.picture(), L"2+3< = >4|\n\n5");
    // Without rich text, or with a damaged one, the plain one comes.
    Offer offer = plain(L"2\u22123");
    for (const char* damaged : {"", "{\\rtf1 4", "no rich text"}) {
        offer[richTextFormat()] = std::string(damaged) + '\0';
        copyToClipboard(offer);
        Fixture fixture;
        pasteWithLooks(fixture);
        EXPECT_EQ(fixture.picture(), L"2-3|");
    }
}

TEST(Paste, ALineEndAfterOneLineIsWantedBeforeAnotherAlone) {
    struct Row {
        const wchar_t* before;
        std::size_t place;
        const wchar_t* pasted;
        const wchar_t* after;
    };
    for (const Row& row : {Row{L"2+", 2, L"42\r\n", L"2+42|"}, Row{L"", 0, L"42\r\n", L"42|"},
                           Row{L"2*3", 2, L"42\r\n", L"2*42|3"}, Row{L"2*3", 0, L"42\r\n", L"42\n|2*3"},
                           Row{L"", 0, L"1\r\n2\r\n", L"1\n2\n|"}, Row{L"1", 1, L"\r\n", L"1|"}}) {
        copyToClipboard(plain(row.pasted));
        Fixture fixture;
        fixture.type(row.before);
        fixture.select(row.place, row.place);
        pasteByKey(fixture);
        EXPECT_EQ(fixture.picture(), row.after);
    }
}

/// Rich text with whatever no sheet is made of, between the lines "2+3" and "4".
std::string foreignRichText() {
    return "{\\rtf1\\ansi{\\stylesheet{\\s1 style;}}2+3\\par{\\object\\objemb{\\*\\objdata " +
           repeated(10'000, "0105") + "}{\\result result}}{\\pict\\wmetafile8 " + repeated(10'000, "d7cd") +
           "}{\\pict\\bin1000 " + repeated(1'000, "{") + "}{\\field{\\*\\fldinst HYPERLINK \"file:x\"}{\\fldrslt 4}}" +
           repeated(2'000, "\\" + repeated(2'000, "x") + " ") + repeated(5'000, "{") + repeated(5'000, "}") + "\\par}";
}

void expectWithinASecond(const std::function<void()>& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(Paste, NothingComesButText) {
    const std::string text = foreignRichText();
    const FileFolder folder;
    folder.put(L"x.rtf", text);
    copyToClipboard(rich(text));
    for (const auto& bring : std::initializer_list<std::function<void(Fixture&)>>{
             [&](Fixture& fixture) { WorkAreaFile(fixture.workArea()).read(folder.path(L"x.rtf")); },
             pasteWithLooks,
             pasteByKey,
             [&](Fixture& fixture) { askFor(fixture.workArea(), rich(text), RECO_DROP, true); },
         }) {
        Fixture fixture;
        expectWithinASecond([&] { bring(fixture); });
        EXPECT_EQ(fixture.picture(), L"2+3\n4|");
    }
}

TEST(Paste, FilesGoToTheParentAfterTheDrop) {
    Fixture fixture;
    const HWND parent = GetParent(fixture.control());
    MSG message{};
    EXPECT_EQ(askFor(fixture.workArea(), {{CF_HDROP, "some files\0"s}}, RECO_DROP, true), S_FALSE);
    ASSERT_NE(PeekMessageW(&message, parent, WM_DROPFILES, WM_DROPFILES, PM_REMOVE), 0);
    const auto files = reinterpret_cast<HGLOBAL>(message.wParam);
    EXPECT_STREQ(static_cast<const char*>(GlobalLock(files)), "some files");
    GlobalFree(files);
}

TEST(Paste, TheControlsOwnTextIsMovedForAsLongAsItIsDragged) {
    const Offer offer = plain(L"2+3");
    struct Row {
        std::function<void(Fixture&)> before;  ///< The drop.
        HRESULT answer;
    };
    const Row rows[] = {
        {[](Fixture&) {}, S_OK},
        {[](Fixture& fixture) { askFor(fixture.workArea(), plain(L"7"), RECO_DROP, true); }, S_FALSE},
        {[](Fixture& fixture) { SendMessageW(fixture.control(), WM_LBUTTONDOWN, 0, 0); }, S_FALSE},
        {[](Fixture&) { SetFocus(nullptr); }, S_FALSE},
    };
    for (const Row& row : rows) {
        Fixture fixture;
        fixture.type("2+3");
        IRichEditOleCallback* const callback = newTextDrop(fixture.workArea());
        CHARRANGE all{0, 3};
        callback->GetClipboardData(&all, RECO_DRAG, nullptr);
        callback->Release();
        row.before(fixture);
        fixture.workArea().replaceContentByPlainText(L"2+3");
        fixture.workArea().selectAll();
        EXPECT_EQ(askFor(fixture.workArea(), offer, RECO_DROP, false), row.answer);
    }
}

TEST(Paste, TooMuchIsRefusedHoweverItIsSpelt) {
    const std::string text = "{\\rtf1 " + repeated(3'000'000, "\\u49") + "}";
    Fixture fixture;
    fixture.type("2+3");
    fixture.press(VK_RETURN);
    const std::wstring picture = fixture.picture();
    const Offer offers[] = {rich(text), plain(std::wstring(3'000'000, L'1')), plain(std::wstring(40'000'000, L'1'))};
    for (const Offer& offer : offers) {
        copyToClipboard(offer);
        expectWithinASecond([&] { pasteByKey(fixture); });
        expectWithinASecond([&] { pasteWithLooks(fixture); });
        expectWithinASecond([&] { askFor(fixture.workArea(), offer, RECO_DROP, true); });
    }
    EXPECT_EQ(fixture.refusals, 9);
    EXPECT_EQ(fixture.picture(), picture);
    // The result that has been carried on still waits for an operand.
    fixture.type("7");
    EXPECT_EQ(fixture.picture(), L"2+3< = 5>\n\n7|");
    // Many short lines are none too many.
    std::wstring lines;
    for (int line = 0; line < 20'000; ++line) {
        lines += L"2\u22123 = -1\r\n";
    }
    copyToClipboard(plain(lines));
    fixture.workArea().selectAll();
    pasteByKey(fixture);
    EXPECT_EQ(fixture.text().size(), lines.size() - 20'000);
}

TEST(Paste, MemoryThatRunsOutChangesNothing) {
    for (const ForeignForm form : {ForeignForm::Plain, ForeignForm::Rich}) {
        int calls = 0;
        for (bool failed = true; failed; ++calls) {
            Fixture fixture;
            fixture.type("2+3");
            fixture.press(VK_RETURN);
            {
                const FailingAllocation allocation(calls);
                fixture.workArea().insertForeignText(
                    [] {
                        return ForeignText{u"4 \u00D7 5", "{\\rtf1{\\b 4*5}}"};
                    },
                    form);
                failed = allocation.hasFailed();
            }
            ASSERT_EQ(fixture.refusals, failed ? 1 : 0) << calls;
            const wchar_t* const taken = form == ForeignForm::Plain ? L"2+3 = 5\n\n4 * 5" : L"2+3 = 5\n\n4*5";
            EXPECT_EQ(fixture.text(), failed ? L"2+3 = 5\n\n5" : taken);
            fixture.type("7");
            EXPECT_EQ(fixture.text(), failed ? L"2+3 = 5\n\n7" : taken + std::wstring(L"7"));
        }
        EXPECT_GT(calls, 5);
    }
}

}  // namespace
}  // namespace calquo
