// The keys of the work area, and the way between its text and the engine's.
#include "workarea/work_area.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "engine/characters.h"
#include "widgets/clipboard.h"
#include "widgets/system_colors.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"
#include "workarea/carried_result.h"
#include "workarea/file_fault.h"
#include "workarea/language_text.h"
#include "workarea/result_edits.h"
#include "workarea/rich_text.h"
#include "workarea/text_cost.h"
#include "workarea/text_drop.h"

namespace calquo {
namespace {

bool fits(Modifiers wanted, const KeyEvent& event) {
    const bool any = event.shift || event.control || event.alt;
    switch (wanted) {
        case Modifiers::None:
            return !any;
        case Modifiers::Some:
            return any;
        case Modifiers::Any:
            return true;
        case Modifiers::Shift:
            return event.shift && !event.control && !event.alt;
        case Modifiers::Control:
            return event.control && !event.shift && !event.alt;
        case Modifiers::ControlShift:
            return event.control && event.shift && !event.alt;
    }
    return false;
}

/// Whether a key puts text in, or will when it is followed by others: after any other a result is no longer fresh.
bool belongsToTyping(const KeyEvent& event) {
    const bool pastes = (event.control && event.key == 'V') || (event.shift && event.key == VK_INSERT);
    const bool isModifier = event.key == VK_SHIFT || event.key == VK_CONTROL || event.key == VK_MENU ||
                            event.key == VK_CAPITAL || event.key == VK_NUMLOCK;
    const bool isOfInputMethod = event.key == VK_PROCESSKEY || event.key == VK_PACKET;
    if (pastes || isModifier || isOfInputMethod) {
        return true;
    }
    const bool isOfNumberPad = event.key >= VK_NUMPAD0 && event.key <= VK_DIVIDE;
    const bool isCharacter = isOfNumberPad || LOWORD(MapVirtualKeyW(event.key, MAPVK_VK_TO_CHAR)) >= L' ';
    // Control and Alt together are the key of further characters on many keyboards.
    return isCharacter && event.control == event.alt;
}

/// The place of a position in a line that starts at `start`, and the way back.
std::size_t offsetIn(std::int32_t start, std::int32_t position) { return static_cast<std::size_t>(position - start); }
std::int32_t positionOf(std::int32_t start, std::size_t offset) { return start + static_cast<std::int32_t>(offset); }

TextRange textRange(std::int32_t start, std::size_t begin, std::size_t end) {
    return {positionOf(start, begin), positionOf(start, end)};
}

/// For text that is in the sheet already.
constexpr std::uint64_t unlimitedCost = std::numeric_limits<std::uint64_t>::max();

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
    {VK_INSERT, Modifiers::Control, &WorkArea::copy},
    {'X', Modifiers::Control, &WorkArea::cut},
    {VK_DELETE, Modifiers::Shift, &WorkArea::cut},
    {'V', Modifiers::Control, &WorkArea::paste},
    {VK_INSERT, Modifiers::Shift, &WorkArea::paste},
    {'V', Modifiers::ControlShift, &WorkArea::pasteWithLooks},
};

WorkArea::WorkArea(WindowHandle parent, std::uint16_t command, std::vector<KeyCommand> keyCommands, FormatSource format,
                   WorkAreaListener listener)
    : TextArea(parent, command, {colorReference(palette().sheet.ink)}, palette().sheet.ground),
      colors_(palette()),
      keyCommands_(std::move(keyCommands)),
      format_(std::move(format)),
      listener_(std::move(listener)) {
    takeDroppedTextBy(*this);
}

CharacterStyle WorkArea::styleOf(TextStyle style) const {
    const bool isResult = style == TextStyle::Result;
    return {colorReference(isResult ? colors_.result() : colors_.normal()), isResult};
}

StyledRun WorkArea::runOf(const StyledText& piece) const { return {controlText(piece.text), styleOf(piece.style)}; }

StyledRun WorkArea::normalRun(std::wstring text) const { return {std::move(text), styleOf(TextStyle::Normal)}; }

std::string WorkArea::shownIn(ShownColors& colors, std::string_view richText, std::uint64_t mostCost) const {
    const UsualLook usual{languageText(fontName()), fontHalfPoints()};
    return cleanRichText(richText, mostCost, LastLineEnd::Dropped, colors.toScreen(), &usual);
}

std::string WorkArea::sheetAsRichText() const {
    std::string text = richTextToWrite(contentAsRichText());
    return colors_.areChanged() ? cleanRichText(text, unlimitedCost, LastLineEnd::Kept, colors_.toFile()) : text;
}

void WorkArea::takeColors() {
    ShownColors colors(palette());
    if (colors.looksLike(colors_)) {
        return;  // the colours that have changed are none of the sheet's
    }
    const std::string text = shownIn(colors, sheetAsRichText(), unlimitedCost);
    if (changeLooks({colorReference(colors.normal())}, palette().sheet.ground, text)) {
        colors_ = std::move(colors);
    }
}

bool WorkArea::onKey(const KeyEvent& event) {
    if (!event.released && !belongsToTyping(event)) {
        endFreshness();
    }
    keyIsDealtWith_ = !event.released && listener_.takesKey(event);
    if (event.released || keyIsDealtWith_) {
        return keyIsDealtWith_ || TextArea::onKey(event);
    }
    listener_.keyPressed();
    decimalKeyIsDown_ = event.key == VK_DECIMAL && !event.control && !event.alt;
    const auto isMeant = [&](const auto& row) { return row.key == event.key && fits(row.modifiers, event); };
    if (const auto* const row = std::ranges::find_if(keyRows, isMeant); row != std::end(keyRows)) {
        (this->*row->act)();
        return true;
    }
    if (const auto row = std::ranges::find_if(keyCommands_, isMeant); row != keyCommands_.end()) {
        keyIsDealtWith_ = true;
        // A key that is held a little too long is meant once.
        if (!event.repeated) {
            sendCommand(parent(), {row->command});
        }
        return true;
    }
    return TextArea::onKey(event);
}

bool WorkArea::onCharacter(wchar_t character) {
    if (std::exchange(keyIsDealtWith_, false)) {
        return true;
    }
    if (std::exchange(decimalKeyIsDown_, false)) {
        // The keyboard's layout has a mark of its own for this key.
        typeCharacters(std::string(1, markCharacter(TokenClass::DecimalMark)));
        return true;
    }
    // Keys such as Enter have done their work when they went down.
    if (character >= L' ') {
        makeWayFor({&character, 1});
    }
    listener_.textComes(languageText({&character, 1}));
    return TextArea::onCharacter(character);
}

bool WorkArea::onMouse(const MouseEvent& event) {
    listener_.mouse(event);
    if (event.action == MouseAction::Press) {
        endDragging();
        endFreshness();
    }
    return TextArea::onMouse(event);
}

bool WorkArea::onFilesDropped(std::uintptr_t drop) {
    SendMessageW(parent(), WM_DROPFILES, drop, 0);
    return true;
}

bool WorkArea::onContextMenu(std::optional<Point> point) {
    listener_.keyPressed();
    if (point) {
        giveFocus();
        // A click inside the selection is about it; any other is about its own place.
        const std::int32_t position = positionOnScreen(*point);
        const TextRange selected = selection();
        if (position < selected.begin || position > selected.end) {
            select({position, position});
        }
    }
    listener_.menuWanted(point ? *point : pointBelowCaret());
    return true;
}

std::optional<std::intptr_t> WorkArea::onSimpleMessage(std::uint32_t message) {
    switch (message) {
        case WM_PASTE:
        case EM_PASTESPECIAL:
            paste();
            return 0;
        case WM_UNDO:
        case EM_UNDO:
        case EM_REDO:
            endFreshness();
            return TextArea::onSimpleMessage(message);
        case WM_KILLFOCUS:
            endDragging();
            return TextArea::onSimpleMessage(message);
        case WM_IME_STARTCOMPOSITION:
            makeWayFor(L"\u3042");  // what is composed are letters
            return TextArea::onSimpleMessage(message);
        default:
            return message == resultReplaceQuery ? std::optional<std::intptr_t>(resultReplaces_ ? 1 : 0)
                                                 : TextArea::onSimpleMessage(message);
    }
}

bool WorkArea::isFresh() const {
    if (!fresh_) {
        return false;
    }
    const TextRange end{fresh_->range.end, fresh_->range.end};
    return selection() == end && charactersIn(fresh_->range) == fresh_->text;
}

/// What text that comes in at the caret takes the place of.
TextRange WorkArea::placeFor(std::wstring_view text) const {
    return isFresh() && beginsOperand(text) ? fresh_->range : selection();
}

void WorkArea::makeWayFor(std::wstring_view text) {
    select(placeFor(text));
    endFreshness();
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

void WorkArea::onOtherControl() { takeDroppedTextBy(*this); }

Reevaluation WorkArea::evaluateAll() {
    Reevaluation outcome = reevaluate(languageText(characters()), format_());
    outcome.isWritten = outcome.edits.empty() || writeResults(outcome.edits);
    return outcome;
}

/// Writes all results as one step for undo, in time in proportion to the text.
bool WorkArea::writeResults(const std::vector<ResultEdit>& edits) {
    const auto placeAfter = [&](std::int32_t place) {
        return static_cast<std::int32_t>(positionAfter(edits, static_cast<std::size_t>(place)));
    };
    const TextRange selected{placeAfter(selection().begin), placeAfter(selection().end)};
    // From here on Wine's control takes longer to replace the lines in between than to read all of the text.
    constexpr std::size_t manyCharacters = 4000;
    const TextRange changed = textRange(0, edits.front().begin, edits.back().end);
    if (edits.back().end - edits.front().begin < manyCharacters) {
        const Point place = scrolled();
        const auto text = richTextWith(edits, changed, richTextIn(changed), LastLineEnd::Dropped);
        const bool isTaken = text && replaceByRichText(changed, *text);
        select(isTaken ? selected : selection());
        scrollTo(place);
        return isTaken;
    }
    const TextRange all{0, static_cast<std::int32_t>(characters().size())};
    const auto text = richTextWith(edits, all, contentAsRichText(), LastLineEnd::Kept);
    return text && exchangeContent(*text, selected);
}

/// A range with new results, from what the control writes of it; nothing where it is too long.
std::optional<std::string> WorkArea::richTextWith(std::vector<ResultEdit> edits, TextRange range,
                                                  std::string_view richText, LastLineEnd lastLineEnd) const {
    for (ResultEdit& edit : edits) {
        edit.begin = offsetIn(range.begin, static_cast<std::int32_t>(edit.begin));
        edit.end = offsetIn(range.begin, static_cast<std::int32_t>(edit.end));
    }
    const Color color = colors_.result();
    const ResultLook look{languageText(fontName()),       fontHalfPoints(), color.red, color.green, color.blue,
                          styleOf(TextStyle::Result).bold};
    try {
        // For a while there are two such texts.
        const std::string old = cleanRichText(richTextToWrite(richText), mostTextCost() / 2, lastLineEnd);
        const std::size_t length = offsetIn(range.begin, range.end) + (lastLineEnd == LastLineEnd::Kept ? 1 : 0);
        return withResults(old, length, edits, look);
    } catch (const FileFault&) {
        return std::nullopt;
    }
}

Paragraph WorkArea::selectedLines() const {
    const TextRange selected = selection();
    const std::int32_t begin = paragraphAt(selected.begin).range.begin;
    // A selection of whole lines ends at the beginning of the next.
    const std::int32_t last = std::max(selected.begin, selected.end - 1);
    const std::int32_t end = paragraphAt(last).range.end;
    return {{begin, end}, charactersIn({begin, end})};
}

void WorkArea::addLine(std::int32_t position, LinePlace place, const std::string& expression) {
    LineEdit edit = editAfterEnter(expression, format_());
    TextRange range = paragraphAt(position).range;
    std::string before;
    if (place == LinePlace::Below) {
        const TextRange below = paragraphAt(position + 1).range;
        const bool isRoom = below.begin > position && below.begin == below.end;
        before.assign(isRoom ? 0 : 1, '\n');
        range = isRoom ? below : TextRange{position, position};
    }
    edit.begin = 0;
    edit.end = offsetIn(range.begin, range.end);
    edit.caret += before.size();
    edit.pieces.insert(edit.pieces.begin(), {before + expression, TextStyle::Normal});
    apply({range, {}}, edit);
    listener_.evaluated(expression, edit.answer ? &*edit.answer : nullptr);
}

CurrentLine WorkArea::currentLine() const { return lineAt(selection().begin); }

CurrentLine WorkArea::lineAt(std::int32_t position) const {
    const TextRange selected = selection();
    const Paragraph line = paragraphAt(position);
    const auto [start, end] = line.range;
    return {languageText(line.text), start, offsetIn(start, std::clamp(selected.begin, start, end)),
            offsetIn(start, std::clamp(selected.end, start, end)), isFresh() ? fresh_->text.size() : 0};
}

void WorkArea::typeCharacters(std::string_view characters) {
    keyIsDealtWith_ = false;
    for (const wchar_t unit : controlText(characters)) {
        SendMessageW(handle(), WM_CHAR, unit, 1);
    }
}

void WorkArea::pressKey(std::uint32_t virtualKey) { SendMessageW(handle(), WM_KEYDOWN, virtualKey, 1); }

void WorkArea::copy() {
    if (colors_.areChanged()) {
        copyInColorsOfFiles();
    } else {
        TextArea::copy();
    }
}

void WorkArea::cut() {
    if (!colors_.areChanged()) {
        TextArea::cut();
    } else if (copyInColorsOfFiles()) {
        deleteSelection();
    }
}

bool WorkArea::copyInColorsOfFiles() {
    if (!hasSelection()) {
        return false;
    }
    const std::string rich =
        cleanRichText(richTextToWrite(richTextIn(selection())), unlimitedCost, LastLineEnd::Kept, colors_.toFile());
    std::wstring plain;
    for (const wchar_t unit : charactersIn(selection())) {
        plain += unit == L'\r' ? L"\r\n" : std::wstring(1, unit);
    }
    return copyToClipboard(handle(), plain, rich);
}

void WorkArea::clear() {
    endFreshness();
    selectAll();
    deleteSelection();
}

void WorkArea::surround(const CurrentLine& line, LineRange range, std::string_view before, std::string_view after,
                        std::size_t caret) {
    endFreshness();
    const TextRange inside = textRange(line.start, range.begin, range.end);
    const std::wstring text = controlText(before) + charactersIn(inside) + controlText(after);
    listener_.textComes(before);
    replace(inside, {normalRun(text)}, positionOf(line.start, caret));
}

void WorkArea::replaceCharacters(const CurrentLine& line, LineRange range, std::string_view text, std::size_t caret) {
    endFreshness();
    listener_.textComes(text);
    replace(textRange(line.start, range.begin, range.end), {normalRun(controlText(text))},
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
    endFreshness();
    if (edit.goesToNextLine) {
        goToLineAfter(line);
    }
    if (!edit.changes) {
        return;
    }
    std::vector<StyledRun> runs(edit.pieces.size());
    std::ranges::transform(edit.pieces, runs.begin(), [this](const StyledText& piece) { return runOf(piece); });
    const std::int32_t start = line.range.begin;
    replace(textRange(start, edit.begin, edit.end), runs, positionOf(start, edit.caret));
    if (edit.carried != 0) {
        const std::int32_t end = positionOf(start, edit.caret);
        fresh_ = {{end - static_cast<std::int32_t>(edit.carried), end}, controlText(edit.answer->text)};
    }
}

}  // namespace calquo
