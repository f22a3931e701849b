// What a text area gives and takes in a stream: rich text and plain text, of a part or of the whole.
#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "widgets/text_area.h"
#include "widgets/text_control.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr char plainParagraph[] = "\\pard\\ql ";

/// Appends text to a rich text: its special characters escaped, everything that is not printed in ASCII by number.
void appendEscaped(std::string& richText, std::wstring_view text) {
    for (const wchar_t unit : text) {
        if (unit == L'\n' || unit == L'\r') {
            richText.append("\\par").append(plainParagraph);  // aligned like none of its neighbours
        } else if (unit == L'\t') {
            richText += "\\tab ";
        } else if (unit == L'\\' || unit == L'{' || unit == L'}') {
            richText += '\\';
            richText += static_cast<char>(unit);
        } else if (unit >= L' ' && unit < 0x7F) {
            richText += static_cast<char>(unit);
        } else {
            richText += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + ' ';
        }
    }
}

/// A color table's entry.
std::string colorEntry(COLORREF color) {
    return "\\red" + std::to_string(GetRValue(color)) + "\\green" + std::to_string(GetGValue(color)) + "\\blue" +
           std::to_string(GetBValue(color)) + ";";
}

/// Hands the control the next piece of the text that `rest`, a string_view's address, still holds.
DWORD CALLBACK readPiece(DWORD_PTR rest, LPBYTE buffer, LONG room, LONG* count) {
    std::string_view& text = *reinterpret_cast<std::string_view*>(rest);
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(room));
    std::memcpy(buffer, text.data(), length);
    text.remove_prefix(length);
    *count = static_cast<LONG>(length);
    return 0;
}

/// Takes a piece of the control's text to the end of `text`, a string's address.
DWORD CALLBACK takePiece(DWORD_PTR text, LPBYTE piece, LONG length, LONG* count) {
    try {
        reinterpret_cast<std::string*>(text)->append(reinterpret_cast<const char*>(piece),
                                                     static_cast<std::size_t>(length));
    } catch (const std::bad_alloc&) {
        return ERROR_NOT_ENOUGH_MEMORY;
    }
    *count = length;
    return 0;
}

/// Whether the whole text shows in the window, scrolled or not.
bool fits(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    POINTL first{}, last{};
    SendMessageW(window, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&first), 0);
    SendMessageW(window, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&last), lengthOfText(window));
    return last.y - first.y < client.bottom;
}

/// Shows the scroll bar before a text that will need it. When the bar takes its room after the text, the control
/// breaks all lines a second time, which in Wine's takes the square of their number where some are wrapped.
class EarlyScrollBar {
public:
    EarlyScrollBar(HWND window, std::size_t bytes) : window_(window), isShown_(bytes >= much) {
        if (isShown_) {
            ShowScrollBar(window_, SB_VERT, TRUE);
        }
    }
    ~EarlyScrollBar() {
        // Many bytes may show little.
        if (isShown_ && fits(window_)) {
            ShowScrollBar(window_, SB_VERT, FALSE);
        }
    }
    EarlyScrollBar(const EarlyScrollBar&) = delete;
    EarlyScrollBar& operator=(const EarlyScrollBar&) = delete;

private:
    static constexpr std::size_t much = 20'000;

    HWND window_;
    bool isShown_;
};

}  // namespace

std::string TextArea::richTextIn(TextRange range) {
    const PaintingPause pause(handle());
    const TextRange before = selection();
    select(range);
    std::string text = streamOut(SF_RTF | SFF_SELECTION | SF_USECODEPAGE | CP_UTF8 << 16);
    select(before);
    return text;
}

bool TextArea::replaceByRichText(TextRange range, std::string_view text) {
    const PaintingPause pause(handle());
    const TextRange before = selection();
    const std::int32_t length = lengthOfText(handle());
    select(range);
    const bool taken = streamIntoSelection(text, SF_RTF);
    if (!taken) {
        // Where nothing was taken out or in, the last step is the user's own.
        if (range.begin != range.end || lengthOfText(handle()) != length) {
            SendMessageW(handle(), EM_UNDO, 0, 0);
        }
        select(before);
    }
    return taken;
}

bool TextArea::replaceSelectionByRichText(std::string_view text) {
    const PaintingPause pause(handle());
    const TextRange selected = selection();
    const std::int32_t after = lengthOfText(handle()) - selected.end;
    const bool taken = replaceByRichText(selected, text);
    if (taken) {
        const std::int32_t caret = lengthOfText(handle()) - after;
        select({caret, caret});
    }
    return taken;
}

std::string TextArea::richText(const std::vector<StyledRun>& runs, std::string begin) const {
    std::string body = std::move(begin);
    std::string head = "{\\rtf1\\ansi\\deff0\\uc0{\\fonttbl{\\f0\\fnil ";
    appendEscaped(head, fontName_);
    head += ";}}{\\colortbl;";
    // Set back first whatever the neighbours have; "plain" alone leaves raised and hidden characters so in Wine's
    // control.
    const std::string font = "{\\plain\\v0\\nosupersub\\f0\\fs" + std::to_string(fontHalfPoints());
    int color = 0;
    for (const StyledRun& run : runs) {
        head += colorEntry(run.style.color);
        body += font + (run.style.bold ? "\\b" : "\\b0") + "\\cf" + std::to_string(++color) + ' ';
        appendEscaped(body, run.text);
        body += '}';
    }
    return head + "}" + body + "}";
}

bool TextArea::streamIn(std::string_view bytes, std::uint32_t format) {
    const EarlyScrollBar scrollBar(handle(), bytes.size());
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&bytes), 0, readPiece};
    SendMessageW(handle(), EM_STREAMIN, format, reinterpret_cast<LPARAM>(&stream));
    return stream.dwError == 0;
}

bool TextArea::streamIntoSelection(std::string_view bytes, std::uint32_t format) {
    return streamIn(bytes, format | SFF_SELECTION);
}

std::string TextArea::streamOut(std::uint32_t format) const {
    std::string text;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&text), 0, takePiece};
    SendMessageW(handle(), EM_STREAMOUT, format, reinterpret_cast<LPARAM>(&stream));
    if (stream.dwError != 0) {
        throw std::bad_alloc();
    }
    return text;
}

std::string TextArea::contentAsRichText() const { return streamOut(SF_RTF | SF_USECODEPAGE | CP_UTF8 << 16); }

std::wstring TextArea::contentAsPlainText() const {
    const std::string bytes = streamOut(SF_TEXT | SF_UNICODE);
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    return text;
}

bool TextArea::replaceContentByRichText(std::string_view text) { return replaceContent(text, SF_RTF); }

bool TextArea::replaceContentByPlainText(std::wstring_view text) {
    const PaintingPause pause(handle());
    if (!givesNormalStyle()) {
        // Another style of what is there would be a step of its own.
        return replaceContent(richText({{std::wstring(text), normal_}}, plainParagraph), SF_RTF);
    }
    const auto* const bytes = reinterpret_cast<const char*>(text.data());
    return replaceContent({bytes, text.size() * sizeof(wchar_t)}, SF_TEXT | SF_UNICODE);
}

bool TextArea::replaceContent(std::string_view bytes, std::uint32_t format) {
    const PaintingPause pause(handle());
    const TextRange before = selection();
    const bool wasEmpty = lengthOfText(handle()) == 0;
    // In place of a selection, the stream is one step for undo.
    SendMessageW(handle(), EM_SETSEL, 0, -1);
    const bool taken = streamIntoSelection(bytes, format);
    const std::int32_t length = lengthOfText(handle());
    if (taken) {
        SendMessageW(handle(), EM_SETMODIFY, TRUE, 0);
        select({length, length});
        return true;
    }
    if (!wasEmpty || length != 0) {
        SendMessageW(handle(), EM_UNDO, 0, 0);
    }
    select(before);
    return false;
}

}  // namespace calquo
