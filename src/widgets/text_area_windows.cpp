// The rich edit control of the text area: its looks, its keys and its places. What it streams is in
// text_area_streams_windows.cpp, and what exchanges it for another control in text_area_controls_windows.cpp.
#include "widgets/text_area.h"

#include <algorithm>
#include <cwchar>
#include <limits>
#include <utility>

#include "widgets/fonts.h"
#include "widgets/painting.h"
#include "widgets/screens.h"
#include "widgets/text_control.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr wchar_t controlLibrary[] = L"Riched20.dll";
constexpr wchar_t controlClass[] = L"RichEdit20A";
constexpr wchar_t unicodeClass[] = L"RichEdit20W";
constexpr DWORD controlStyle =
    WS_VSCROLL | WS_CLIPSIBLINGS | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL | ES_WANTRETURN;
constexpr LPARAM largestText = std::numeric_limits<std::int32_t>::max() - 1;

/// The fonts to choose from: the first that is installed is taken. All have digits of equal width, so that results
/// stand one below the other.
constexpr const wchar_t* fontNames[] = {L"Consolas", L"DejaVu Sans Mono", L"Liberation Mono", L"Courier New"};
constexpr int fontPoints = 12;
constexpr int twipsPerPoint = 20;
constexpr int margin = 8;  // at 96 dots per inch

/// The style as the control takes it, with its font and without anything that a style does not say.
CHARFORMAT2W formatOf(CharacterStyle style, const std::wstring& fontName) {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    format.dwMask = CFM_EFFECTS2 | CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_OFFSET;
    format.crTextColor = style.color;
    format.dwEffects = CFE_AUTOBACKCOLOR | (style.bold ? CFE_BOLD : 0U);
    format.yHeight = fontPoints * twipsPerPoint;
    format.bCharSet = DEFAULT_CHARSET;
    std::wcsncpy(format.szFaceName, fontName.c_str(), LF_FACESIZE - 1);
    return format;
}

/// Whether the whole selection, or what would be typed at the caret, has this format.
bool isSelectionOf(HWND window, const CHARFORMAT2W& wanted) {
    constexpr DWORD compared = CFM_EFFECTS2 | CFM_FACE | CFM_SIZE | CFM_OFFSET;
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    SendMessageW(window, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return (format.dwMask & compared) == compared && ((format.dwEffects ^ wanted.dwEffects) & CFM_EFFECTS2) == 0 &&
           format.crTextColor == wanted.crTextColor && format.yHeight == wanted.yHeight &&
           format.yOffset == wanted.yOffset && std::wcscmp(format.szFaceName, wanted.szFaceName) == 0;
}

void format(HWND window, WPARAM what, const CHARFORMAT2W& wanted) {
    SendMessageW(window, EM_SETCHARFORMAT, what, reinterpret_cast<LPARAM>(&wanted));
}

/// The format of the paragraphs that the selection touches.
PARAFORMAT2 paragraphFormatOf(HWND window) {
    PARAFORMAT2 paragraph{};
    paragraph.cbSize = sizeof paragraph;
    SendMessageW(window, EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&paragraph));
    return paragraph;
}

constexpr DWORD paragraphParts = PFM_ALIGNMENT | PFM_NUMBERING | PFM_STARTINDENT | PFM_RIGHTINDENT | PFM_OFFSET;

/// Aligned and indented like the program's own paragraphs: not at all.
bool isPlain(const PARAFORMAT2& paragraph) {
    return (paragraph.dwMask & paragraphParts) == paragraphParts && paragraph.wAlignment == PFA_LEFT &&
           paragraph.wNumbering == 0 && paragraph.dxStartIndent == 0 && paragraph.dxRightIndent == 0 &&
           paragraph.dxOffset == 0;
}

/// Keys with Control that the control would take for formats, or may in another version of it: all of characters, but
/// for those of its editing commands.
bool isFormatKey(const KeyEvent& event) {
    constexpr std::wstring_view editing = L"ACVXYZ";
    const bool isCharacter = (event.key >= '0' && event.key <= 'Z') || event.key == VK_SPACE ||
                             (event.key >= VK_OEM_1 && event.key <= VK_OEM_102);
    const bool edits = !event.shift && editing.find(static_cast<wchar_t>(event.key)) != std::wstring_view::npos;
    return event.control && !event.alt && !event.released && isCharacter && !edits;
}

}  // namespace

const Component::WidgetClass& TextArea::widgetClass() {
    static const LibraryOwner library(loadSystemLibrary(controlLibrary));
    static const WidgetClass registered = registerClass(unicodeClass, controlClass);
    return registered;
}

bool TextArea::isAvailable() { return static_cast<bool>(loadSystemLibrary(controlLibrary)); }

TextArea::TextArea(WindowHandle parent, std::uint16_t command, CharacterStyle normal, Color paper)
    : Component(widgetClass(), {parent, command, controlStyle, {}}),
      normal_(normal),
      paper_(paper),
      fontName_(installedFont(fontNames)) {
    setUp();
}

void TextArea::setUp() {
    chooseLook();
    SendMessageW(handle(), EM_EXLIMITTEXT, 0, largestText);
    SendMessageW(handle(), EM_EMPTYUNDOBUFFER, 0, 0);
    SendMessageW(handle(), EM_SETMODIFY, FALSE, 0);
}

int TextArea::fontHalfPoints() { return 2 * fontPoints; }

void TextArea::fitToScale() {
    // The control counts a font's points at the dots per inch of the system.
    const int usual = systemDotsPerInch();
    const bool isUsual = scale() == usual;
    SendMessageW(handle(), EM_SETZOOM, isUsual ? 0 : static_cast<WPARAM>(scale()), isUsual ? 0 : usual);
    onPlaced();
}

bool TextArea::onKey(const KeyEvent& event) {
    // The keys of the main menu are the top-level window's, although the control would keep them.
    const bool menuKey =
        event.system && !event.released && (event.key == VK_MENU || (event.key == VK_F10 && !event.shift));
    if (menuKey) {
        passToTopLevel(event);
    }
    if (isFormatKey(event)) {
        return true;
    }
    if (event.shift && event.alt && !event.released && event.key == VK_BACK) {
        redo();
        return true;
    }
    if (!event.shift && event.control != event.alt && !event.released) {
        if (event.key == (event.control ? 'Z' : VK_BACK)) {
            undo();
            return true;
        }
        if (event.control && event.key == 'Y') {
            redo();
            return true;
        }
    }
    return menuKey;
}

bool TextArea::onCharacter(wchar_t character) {
    // The keys of control characters, such as Enter, have done their work when they went down.
    if (character < L' ' && character != L'\t' && character != L'\b') {
        return true;
    }
    if (character != L'\t' && (character < L' ' || character == L'\x7F')) {
        return false;
    }
    // What keys with Control still leave of characters, a tab for I and a blank for itself, nobody means to type.
    const bool isOfCommand = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    return isOfCommand || typeInNormalStyle(character);
}

std::optional<std::intptr_t> TextArea::onSimpleMessage(std::uint32_t message) {
    const bool goes = message == WM_UNDO || message == EM_UNDO || message == EM_REDO;
    hasGoneBack_ = hasGoneBack_ || goes;
    return goes ? stepBetweenControls(message) : std::nullopt;
}

void TextArea::chooseLook() {
    format(handle(), SCF_DEFAULT, formatOf(normal_, fontName_));
    SendMessageW(handle(), EM_SETBKGNDCOLOR, 0, static_cast<LPARAM>(colorReference(paper_)));
}

/// Lets what is typed look normal, although the control takes its look from its neighbours or from what it replaces.
/// True where it has put the character into the text itself.
bool TextArea::typeInNormalStyle(wchar_t character) {
    const TextRange selected = selection();
    const bool selects = selected.begin != selected.end;
    if (!selects) {
        makeEmptyParagraphPlain(selected.begin);
    }
    const CHARFORMAT2W normal = formatOf(normal_, fontName_);
    if (isSelectionOf(handle(), normal)) {
        return false;
    }
    if (selects) {
        replace(selected, {{std::wstring(1, character), normal_}}, selected.begin + 1);
        return true;
    }
    format(handle(), SCF_SELECTION, normal);
    return false;
}

/// Nothing is left of a paragraph at the caret but its alignment and its indents: these go as well.
void TextArea::makeEmptyParagraphPlain(std::int32_t caret) {
    if (isPlain(paragraphFormatOf(handle())) || !paragraphAt(caret).text.empty()) {
        return;
    }
    PARAFORMAT2 plain{};
    plain.cbSize = sizeof plain;
    plain.dwMask = paragraphParts;
    plain.wAlignment = PFA_LEFT;
    SendMessageW(handle(), EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&plain));
}

void TextArea::onPlaced() {
    const int space = scaled(margin);
    RECT inside{space, space, rectangle().width - space, rectangle().height - space};
    // The control breaks its lines anew for every rectangle.
    SendMessageW(handle(), EM_SETRECT, 0, reinterpret_cast<LPARAM>(&inside));
}

TextRange TextArea::selection() const {
    CHARRANGE range{};
    SendMessageW(handle(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return {range.cpMin, range.cpMax};
}

bool TextArea::hasSelection() const {
    const TextRange selected = selection();
    return selected.begin != selected.end;
}

void TextArea::select(TextRange range) {
    if (range == selection()) {
        return;  // the control searches for a position from the text's start
    }
    CHARRANGE wanted{range.begin, range.end};
    SendMessageW(handle(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&wanted));
}

std::wstring TextArea::charactersIn(TextRange range) const {
    std::wstring characters(static_cast<std::size_t>(range.end - range.begin), L'\0');
    TEXTRANGEW wanted{{range.begin, range.end}, characters.data()};
    const LRESULT length = SendMessageW(handle(), EM_GETTEXTRANGE, 0, reinterpret_cast<LPARAM>(&wanted));
    characters.resize(static_cast<std::size_t>(length));
    return characters;
}

std::wstring TextArea::characters() const { return charactersIn({0, lengthOfText(handle())}); }

Point TextArea::pointOf(std::int32_t position) const {
    POINTL point{};
    SendMessageW(handle(), EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&point), position);
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

int TextArea::lineHeight() {
    constexpr int pointsPerInch = 72;
    return fontPoints * scale() * 6 / 5 / pointsPerInch;
}

Point TextArea::scrolled() const {
    POINT place{};
    SendMessageW(handle(), EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&place));
    return {static_cast<int>(place.x), static_cast<int>(place.y)};
}

void TextArea::scrollTo(Point place) {
    POINT wanted{place.left, place.top};
    SendMessageW(handle(), EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&wanted));
}

Paragraph TextArea::paragraphAt(std::int32_t position) const {
    constexpr std::int32_t firstReach = 256;
    for (std::int64_t reach = firstReach;; reach *= 4) {
        const std::int64_t begin = std::max<std::int64_t>(0, position - reach);
        const std::int64_t end = std::min<std::int64_t>(position + reach, largestText);
        const std::wstring around = charactersIn({static_cast<std::int32_t>(begin), static_cast<std::int32_t>(end)});
        const std::size_t split = static_cast<std::size_t>(position - begin);
        const std::size_t endBefore = split == 0 ? std::wstring::npos : around.rfind(L'\r', split - 1);
        const std::size_t endAfter = around.find(L'\r', split);
        const bool reachesBack = endBefore != std::wstring::npos || begin == 0;
        const bool reachesOn = endAfter != std::wstring::npos || begin + std::ssize(around) < end;
        if (!reachesBack || !reachesOn) {
            continue;
        }
        const std::size_t first = endBefore == std::wstring::npos ? 0 : endBefore + 1;
        const std::size_t last = std::min(endAfter, around.size());
        const auto start = static_cast<std::int32_t>(begin);
        return {{start + static_cast<std::int32_t>(first), start + static_cast<std::int32_t>(last)},
                around.substr(first, last - first)};
    }
}

void TextArea::replace(TextRange range, const std::vector<StyledRun>& runs, std::int32_t caret) {
    // Rich text is what the control takes in several styles and undoes in one step.
    const std::string text = richText(runs);
    const PaintingPause pause(handle());
    select(range);
    streamIntoSelection(text, SF_RTF);
    select({caret, caret});
}

void TextArea::insertLineEnd() {
    const std::int32_t begin = selection().begin;
    replace(selection(), {{L"\n", normal_}}, begin + 1);
}

/// Puts a rich text into a control that is empty, without a step for undo.
bool TextArea::fill(std::string_view richText) {
    format(handle(), SCF_SELECTION, formatOf(normal_, fontName_));
    const bool taken = streamIn(richText, SF_RTF);
    SendMessageW(handle(), EM_EMPTYUNDOBUFFER, 0, 0);
    return taken;
}

bool TextArea::isEmpty() const { return lengthOfText(handle()) == 0; }

std::uint32_t TextArea::revision() {
    if (hasGoneBack_ || SendMessageW(handle(), EM_GETMODIFY, 0, 0) != 0) {
        ++revision_;
        hasGoneBack_ = false;
        SendMessageW(handle(), EM_SETMODIFY, FALSE, 0);
    }
    return revision_;
}

/// Whether plain text in place of the whole text would look normal. It takes its look from the first character, or from
/// the caret where there is none, and its paragraphs from those that were there.
bool TextArea::givesNormalStyle() {
    const CHARFORMAT2W normal = formatOf(normal_, fontName_);
    const TextRange before = selection();
    SendMessageW(handle(), EM_SETSEL, 0, -1);
    const bool isInPlainParagraphs = isPlain(paragraphFormatOf(handle()));
    if (lengthOfText(handle()) == 0) {
        select({0, 0});
        format(handle(), SCF_SELECTION, normal);
        return isInPlainParagraphs;
    }
    select({0, 1});
    const bool isNormal = isInPlainParagraphs && isSelectionOf(handle(), normal);
    select(before);
    return isNormal;
}

bool TextArea::changeLooks(CharacterStyle normal, Color paper, std::string_view text) {
    const TextRange selected = selection();
    const Point place = scrolled();
    revision();
    const auto look = [&] {
        std::swap(normal_, normal);
        std::swap(paper_, paper);
        chooseLook();
    };
    look();
    const bool taken = replaceContentByRichText(text);
    if (taken) {
        forgetSteps();
    } else {
        look();
    }
    SendMessageW(handle(), EM_SETMODIFY, FALSE, 0);
    select(selected);
    scrollTo(place);
    return taken;
}

bool TextArea::canPaste() const { return SendMessageW(handle(), EM_CANPASTE, 0, 0) != 0; }
void TextArea::undo() { SendMessageW(handle(), EM_UNDO, 0, 0); }
void TextArea::redo() { SendMessageW(handle(), EM_REDO, 0, 0); }
void TextArea::cut() { SendMessageW(handle(), WM_CUT, 0, 0); }
void TextArea::copy() { SendMessageW(handle(), WM_COPY, 0, 0); }
void TextArea::deleteSelection() { SendMessageW(handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"")); }
void TextArea::selectAll() { SendMessageW(handle(), EM_SETSEL, 0, -1); }

std::int32_t TextArea::positionOnScreen(Point screen) const {
    POINT point{screen.left, screen.top};
    ScreenToClient(handle(), &point);
    POINTL inside{point.x, point.y};
    return static_cast<std::int32_t>(SendMessageW(handle(), EM_CHARFROMPOS, 0, reinterpret_cast<LPARAM>(&inside)));
}

Point TextArea::pointBelowCaret() const {
    POINTL place{};
    SendMessageW(handle(), EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place), selection().end);
    const Size client = clientSize(handle());
    const int lineHeight = 2 * scaled(fontPoints);
    POINT point{std::clamp<LONG>(place.x, 0, client.width), std::clamp<LONG>(place.y + lineHeight, 0, client.height)};
    ClientToScreen(handle(), &point);
    return {point.x, point.y};
}

}  // namespace calquo
