// The keys of the work area, and the way between its text and the engine's.
#include "workarea/work_area.h"

#include <algorithm>
#include <utility>

#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr CharacterStyle normalStyle{RGB(0, 0, 0), false};
constexpr CharacterStyle resultStyle{RGB(0, 0, 139), true};

/// A character that the language does not have and no setting can give it.
constexpr char foreignCharacter = '\x7F';

/// The line as the engine reads it: one character for each UTF-16 unit, so that positions are those of the control.
std::string languageText(std::wstring_view line) {
    std::string text(line.size(), foreignCharacter);
    std::transform(line.begin(), line.end(), text.begin(),
                   [](wchar_t unit) { return unit < 0x100 ? static_cast<char>(unit) : foreignCharacter; });
    return text;
}

/// The engine's text as the control takes it.
std::wstring controlText(std::string_view text) {
    std::wstring wide(text.size(), L' ');
    std::transform(text.begin(), text.end(), wide.begin(),
                   [](char character) { return static_cast<wchar_t>(static_cast<unsigned char>(character)); });
    return wide;
}

StyledRun controlRun(const StyledText& piece) {
    return {controlText(piece.text), piece.style == TextStyle::Result ? resultStyle : normalStyle};
}

bool fits(Modifiers wanted, const KeyEvent& event) {
    const bool any = event.shift || event.control || event.alt;
    switch (wanted) {
        case Modifiers::None:
            return !any;
        case Modifiers::Some:
            return any;
        case Modifiers::Any:
            return true;
        case Modifiers::Control:
            return event.control && !event.shift && !event.alt;
        case Modifiers::ControlShift:
            return event.control && event.shift && !event.alt;
    }
    return false;
}

/// The place of a position in a line that starts at `start`, and the way back.
std::size_t offsetIn(std::int32_t start, std::int32_t position) { return static_cast<std::size_t>(position - start); }
std::int32_t positionOf(std::int32_t start, std::size_t offset) { return start + static_cast<std::int32_t>(offset); }

TextRange textRange(std::int32_t start, std::size_t begin, std::size_t end) {
    return {positionOf(start, begin), positionOf(start, end)};
}

/// Holds a mode on while it lives.
class ModeOn {
public:
    explicit ModeOn(bool& mode) : mode_(mode) { mode_ = true; }
    ~ModeOn() { mode_ = false; }
    ModeOn(const ModeOn&) = delete;
    ModeOn& operator=(const ModeOn&) = delete;

private:
    bool& mode_;
};

}  // namespace

const std::uint32_t WorkArea::resultReplaceQuery = WM_USER + 3;

/// What a key does.
struct WorkArea::KeyRow {
    std::uint32_t key;
    Modifiers modifiers;
    void (WorkArea::*act)();
};

const WorkArea::KeyRow WorkArea::keyRows[] = {
    {VK_RETURN, Modifiers::None, &WorkArea::evaluate},
    // Left to itself, the control makes line breaks of several kinds, by the modifier held.
    {VK_RETURN, Modifiers::Some, &WorkArea::insertLineEnd},
    {VK_F9, Modifiers::None, &WorkArea::evaluateIntoSelection},
};

WorkArea::WorkArea(WindowHandle parent, std::uint16_t command, std::vector<KeyCommand> keyCommands, FormatSource format,
                   WorkAreaListener listener)
    : TextArea(parent, command, normalStyle),
      keyCommands_(std::move(keyCommands)),
      format_(std::move(format)),
      listener_(std::move(listener)) {}

bool WorkArea::onKey(const KeyEvent& event) {
    keyIsDealtWith_ = !event.released && listener_.takesKey(event);
    if (event.released || keyIsDealtWith_) {
        return keyIsDealtWith_ || TextArea::onKey(event);
    }
    listener_.keyPressed();
    const auto isMeant = [&](const auto& row) { return row.key == event.key && fits(row.modifiers, event); };
    if (const auto* const row = std::ranges::find_if(keyRows, isMeant); row != std::end(keyRows)) {
        (this->*row->act)();
        return true;
    }
    if (const auto row = std::ranges::find_if(keyCommands_, isMeant); row != keyCommands_.end()) {
        keyIsDealtWith_ = true;
        sendCommand(parent(), {row->command});
        return true;
    }
    return TextArea::onKey(event);
}

bool WorkArea::onCharacter(wchar_t character) {
    if (std::exchange(keyIsDealtWith_, false)) {
        return true;
    }
    listener_.textComes(languageText({&character, 1}));
    return TextArea::onCharacter(character);
}

bool WorkArea::onMouse(const MouseEvent& event) {
    listener_.mouse(event);
    return TextArea::onMouse(event);
}

bool WorkArea::onFilesDropped(std::uintptr_t drop) {
    SendMessageW(parent(), WM_DROPFILES, drop, 0);
    return true;
}

std::optional<std::intptr_t> WorkArea::onSimpleMessage(std::uint32_t message) {
    return message == resultReplaceQuery ? std::optional<std::intptr_t>(resultReplaces_ ? 1 : 0)
                                         : TextArea::onSimpleMessage(message);
}

void WorkArea::evaluate() {
    const TextRange selected = selection();
    const Paragraph line = paragraphAt(selected.begin);
    const std::string text = languageText(line.text);
    const std::int32_t start = line.range.begin;
    const bool replaces = SendMessageW(handle(), resultReplaceQuery, 0, 0) != 0;
    const LineEdit edit =
        replaces ? editWithResult(text, offsetIn(start, selected.begin), offsetIn(start, selected.end), format_())
                 : editAfterEnter(text, format_());
    apply(line, edit);
    UpdateWindow(handle());
    listener_.evaluated(utf8Text(line.text), edit.answer ? &*edit.answer : nullptr);
}

void WorkArea::evaluateIntoSelection() {
    const ModeOn replacing(resultReplaces_);
    evaluate();
}

CurrentLine WorkArea::currentLine() const { return lineAt(selection().begin); }

CurrentLine WorkArea::lineAt(std::int32_t position) const {
    const TextRange selected = selection();
    const Paragraph line = paragraphAt(position);
    const auto [start, end] = line.range;
    return {languageText(line.text), start, offsetIn(start, std::clamp(selected.begin, start, end)),
            offsetIn(start, std::clamp(selected.end, start, end))};
}

void WorkArea::typeCharacters(std::string_view characters) {
    keyIsDealtWith_ = false;
    for (const wchar_t unit : controlText(characters)) {
        SendMessageW(handle(), WM_CHAR, unit, 1);
    }
}

void WorkArea::pressKey(std::uint32_t virtualKey) { SendMessageW(handle(), WM_KEYDOWN, virtualKey, 1); }

void WorkArea::clear() {
    SendMessageW(handle(), EM_SETSEL, 0, -1);
    SendMessageW(handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

void WorkArea::undo() { SendMessageW(handle(), EM_UNDO, 0, 0); }

void WorkArea::redo() { SendMessageW(handle(), EM_REDO, 0, 0); }

void WorkArea::surround(const CurrentLine& line, LineRange range, std::string_view before, std::string_view after,
                        std::size_t caret) {
    const TextRange inside = textRange(line.start, range.begin, range.end);
    const std::wstring text = controlText(before) + charactersIn(inside) + controlText(after);
    listener_.textComes(before);
    replace(inside, {{text, normalStyle}}, positionOf(line.start, caret));
}

void WorkArea::replaceCharacters(const CurrentLine& line, LineRange range, std::string_view text, std::size_t caret) {
    listener_.textComes(text);
    replace(textRange(line.start, range.begin, range.end), {{controlText(text), normalStyle}},
            positionOf(line.start, caret));
}

void WorkArea::goToLineAfter(const Paragraph& line) {
    const std::int32_t end = line.range.end;
    select({end + 1, end + 1});
    if (selection().begin == end) {
        insertLineEnd();  // the control goes no further than its text
    }
}

void WorkArea::apply(const Paragraph& line, const LineEdit& edit) {
    if (edit.goesToNextLine) {
        goToLineAfter(line);
    }
    if (!edit.changes) {
        return;
    }
    std::vector<StyledRun> runs(edit.pieces.size());
    std::transform(edit.pieces.begin(), edit.pieces.end(), runs.begin(), controlRun);
    const std::int32_t start = line.range.begin;
    replace(textRange(start, edit.begin, edit.end), runs, positionOf(start, edit.caret));
}

}  // namespace calquo
