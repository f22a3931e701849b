// When tips come, change and go.
#include "shell/work_area_tips.h"

#include <algorithm>

#include "engine/characters.h"
#include "shell/tip_contents.h"
#include "widgets/clipboard.h"
#include "widgets/painting.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// How long the mouse rests on a result before its details show, and how often a tip that shows looks whether its line
/// and the mouse are still there, in milliseconds.
constexpr int restingTime = 500;
constexpr int watchingTime = 100;

/// How far the arrow keys go in a list.
constexpr std::ptrdiff_t rowsOfPage = 9;

bool isModifier(const KeyEvent& event) {
    const bool isAltGr = event.key == VK_MENU && event.control;
    return event.key == VK_SHIFT || event.key == VK_CONTROL || event.key == VK_CAPITAL || isAltGr;
}

bool isPlain(const KeyEvent& event) { return !event.shift && !event.control && !event.alt; }

bool contains(const Rectangle& area, Point point) {
    return point.left >= area.left && point.left < area.left + area.width && point.top >= area.top &&
           point.top < area.top + area.height;
}

Point mouseOnScreen() {
    POINT place{};
    GetCursorPos(&place);
    return {static_cast<int>(place.x), static_cast<int>(place.y)};
}

/// Where the mouse is in a window.
Point mouseIn(WindowHandle window) {
    const Point screen = mouseOnScreen();
    POINT place{screen.left, screen.top};
    ScreenToClient(window, &place);
    return {static_cast<int>(place.x), static_cast<int>(place.y)};
}

/// The offset of a line's result, after the "=" and the blanks; the line's length when it has none.
std::size_t resultOffset(std::string_view line) {
    const std::size_t equals = std::min(line.find(markCharacter(TokenClass::Equals)), line.size());
    return std::min(line.find_first_not_of("= ", equals), line.size());
}

}  // namespace

WorkAreaTips::WorkAreaTips(WindowHandle window, WorkArea& workArea, std::function<void(const std::wstring&)> tell)
    : window_(window), workArea_(workArea), tell_(std::move(tell)) {}

Tip& WorkAreaTips::tip() {
    if (tip_ == nullptr) {
        tip_ = std::make_unique<Tip>(
            window_, TipListener{[this](std::size_t row) { choose(row); }, [this] { onTime(); }, [this] { update(); }});
    }
    return *tip_;
}

// --- Showing and hiding ---------------------------------------------------------------------------------------------

Rectangle WorkAreaTips::rectangleOf(const Anchor& anchor) const {
    const Rectangle& area = workArea_.rectangle();
    const int first = workArea_.pointOf(anchor.lineStart).top;
    const int last = workArea_.pointOf(anchor.lineEnd).top;
    const int next = workArea_.pointOf(anchor.lineEnd + 1).top;  // the same after the last line of the text
    const int height = (next > last ? next : last + TextArea::lineHeight()) - first;
    const Point at = workArea_.pointOf(anchor.position);
    // A line that is wrapped so often that it fills the window leaves no room for a tip outside it.
    const bool isHigh = height > area.height / 2;
    const int top = isHigh ? at.top : first;
    return {area.left + at.left, area.top + top, 0, isHigh ? TextArea::lineHeight() : height};
}

bool WorkAreaTips::hasMoved() const { return workArea_.scrolled() != scrolled_; }

void WorkAreaTips::tell(Shown what, TipContent content, const Anchor& anchor) {
    shown_ = what;
    anchor_ = anchor;
    place_ = rectangleOf(anchor);
    scrolled_ = workArea_.scrolled();
    const Size client = clientSize(window_);
    tip().tell(std::move(content), place_, {0, 0, client.width, client.height});
    tip().startTime(watchingTime);
}

void WorkAreaTips::hide() {
    shown_ = Shown::Nothing;
    tellsArguments_ = false;
    if (tip_ != nullptr) {
        tip_->stopTime();
        tip_->hideTip();
    }
    // The system tells the work area of the mouse where the tip was, as if it had moved there.
    mouse_ = mouseIn(workArea_.handle());
}

void WorkAreaTips::onTime() {
    if (shown_ == Shown::Nothing) {
        showDetailsUnderMouse();
        return;
    }
    const bool isLeft = shown_ == Shown::DetailsUnderMouse && !isMouseOnTipOrLine();
    if (isLeft || GetActiveWindow() != window_ || hasMoved()) {
        hide();
    } else {
        tip().startTime(watchingTime);
    }
}

// --- Details --------------------------------------------------------------------------------------------------------

void WorkAreaTips::showDetails() {
    const CurrentLine line = workArea_.currentLine();
    details_ = detailsOfLine(line.text);
    const auto at = [&](std::size_t offset) { return line.start + static_cast<std::int32_t>(offset); };
    const std::size_t result = resultOffset(line.text);
    tell(details_.empty() ? Shown::Note : Shown::Details, contentOf(details_, DetailKeys::Letters),
         {line.start, at(line.text.size()), at(result == line.text.size() ? 0 : result)});
}

void WorkAreaTips::mouse(const MouseEvent& event) {
    // The system tells of moves when windows come and go, too.
    if (event.action != MouseAction::Move || event.position == mouse_) {
        return;
    }
    mouse_ = event.position;
    if (shown_ == Shown::Nothing) {
        tip().startTime(restingTime);
    }
}

void WorkAreaTips::showDetailsUnderMouse() {
    const Point point = mouseIn(workArea_.handle());
    if (point != mouse_ || GetActiveWindow() != window_ || GetKeyState(VK_LBUTTON) < 0) {
        return;
    }
    const CurrentLine line = workArea_.lineAt(workArea_.positionOnScreen(mouseOnScreen()));
    const auto at = [&](std::size_t offset) { return line.start + static_cast<std::int32_t>(offset); };
    const std::size_t result = resultOffset(line.text);
    const Point begin = workArea_.pointOf(at(result));
    const Point end = workArea_.pointOf(at(line.text.size()));
    const bool isAfterBegin = point.top >= begin.top + TextArea::lineHeight() || point.left >= begin.left;
    const bool isBeforeEnd = point.top < end.top || point.left <= end.left;
    if (point.top < begin.top || point.top >= end.top + TextArea::lineHeight() || !isAfterBegin || !isBeforeEnd) {
        return;
    }
    if (details_ = detailsOfLine(line.text); !details_.empty()) {
        tell(Shown::DetailsUnderMouse, contentOf(details_, DetailKeys::None),
             {line.start, at(line.text.size()), at(result)});
    }
}

bool WorkAreaTips::isMouseOnTipOrLine() const {
    const Point point = mouseIn(window_);
    const Rectangle& line = place_;
    const Rectangle besides{line.left - line.height, line.top, workArea_.rectangle().width, line.height};
    return contains(tip_->rectangle(), point) || (contains(besides, point) && contains(workArea_.rectangle(), point));
}

bool WorkAreaTips::takesKeyOfDetails(const KeyEvent& event) {
    const bool asksAgain = event.key == 'D' && event.control && !event.alt;  // not AltGr, which types
    const auto isMeant = [&](const Detail& detail) {
        return !event.control && !event.alt && static_cast<std::uint32_t>(detail.letter - 'a' + 'A') == event.key;
    };
    const auto detail = std::ranges::find_if(details_, isMeant);
    hide();
    if (detail != details_.end()) {
        copy(*detail);
    }
    return asksAgain || event.key == VK_ESCAPE || detail != details_.end();
}

void WorkAreaTips::copy(const Detail& detail) {
    const std::wstring text = wideText(detail.text);
    hide();
    const bool isCopied = copyToClipboard(workArea_.handle(), text);
    tell_(isCopied ? L"Copied: " + text : L"Another program is using the clipboard. Try again.");
}

// --- Names ----------------------------------------------------------------------------------------------------------

void WorkAreaTips::completeName() {
    const CurrentLine line = workArea_.currentLine();
    if (auto completion = completionAt(line.text, line.selectionEnd)) {
        showNames(line, std::move(*completion));
    }
}

void WorkAreaTips::showNames(const CurrentLine& line, Completion completion) {
    completion_ = std::move(completion);
    const auto at = [&](std::size_t offset) { return line.start + static_cast<std::int32_t>(offset); };
    tell(completion_->names.empty() ? Shown::Note : Shown::Names, contentOf(*completion_),
         {line.start, at(line.text.size()), at(completion_->begin)});
}

void WorkAreaTips::updateNames(const CurrentLine& line) {
    auto completion = completionAt(line.text, line.selectionEnd);
    const bool isSameWord = completion && line.start == anchor_.lineStart && completion->begin == completion_->begin &&
                            line.selectionBegin == line.selectionEnd;
    if (!isSameWord || completion->names.empty()) {
        shown_ = Shown::Nothing;
        tip().hideTip();
    } else if (completion->names != completion_->names) {
        showNames(line, std::move(*completion));
    }
}

bool WorkAreaTips::takesKeyOfNames(const KeyEvent& event) {
    const auto selected = static_cast<std::ptrdiff_t>(tip().selected());
    if (!isPlain(event)) {
        lineMayHaveChanged();
        return false;
    }
    switch (event.key) {
        case VK_UP:
            tip().select(selected - 1);
            return true;
        case VK_DOWN:
            tip().select(selected + 1);
            return true;
        case VK_PRIOR:
            tip().select(selected - rowsOfPage);
            return true;
        case VK_NEXT:
            tip().select(selected + rowsOfPage);
            return true;
        case VK_RETURN:
        case VK_TAB:
            take(tip().selected());
            return true;
        case VK_ESCAPE:
            shown_ = Shown::Nothing;
            tip().stopTime();
            tip().hideTip();
            lineMayHaveChanged();
            return true;
        default:
            lineMayHaveChanged();
            return false;
    }
}

void WorkAreaTips::take(std::size_t row) {
    const CurrentLine line = workArea_.currentLine();
    const auto word = completionAt(line.text, line.selectionEnd);
    shown_ = Shown::Nothing;
    tip().stopTime();
    tip().hideTip();
    if (word) {
        const std::string text = textFor(completion_->names[row], line.text, *word);
        workArea_.replaceCharacters(line, {word->begin, word->end}, text, word->begin + text.size());
    }
    lineMayHaveChanged();
}

void WorkAreaTips::choose(std::size_t row) {
    if (shown_ == Shown::Names) {
        take(row);
    } else if (row < details_.size()) {
        copy(details_[row]);
    }
}

// --- Arguments ------------------------------------------------------------------------------------------------------

void WorkAreaTips::textComes(std::string_view text) {
    if (text.find(markCharacter(TokenClass::ListOpen)) != std::string_view::npos) {
        tellsArguments_ = true;
    }
    if (tellsArguments_) {
        lineMayHaveChanged();
    }
}

void WorkAreaTips::updateArguments(const CurrentLine& line) {
    const auto call = tellsArguments_ ? callAt(line.text, line.selectionEnd) : std::nullopt;
    if (!call) {
        hide();
        return;
    }
    if (shown_ == Shown::Arguments && call == call_ && line.start == anchor_.lineStart) {
        return;
    }
    call_ = call;
    const auto at = [&](std::size_t offset) { return line.start + static_cast<std::int32_t>(offset); };
    tell(Shown::Arguments, contentOf(*call), {line.start, at(line.text.size()), at(call->begin)});
}

bool WorkAreaTips::takesKeyOfArguments(const KeyEvent& event) {
    if (event.key == VK_RETURN || event.key == VK_ESCAPE) {
        hide();
        return event.key == VK_ESCAPE && isPlain(event);
    }
    lineMayHaveChanged();
    return false;
}

// --- What happens in the work area ----------------------------------------------------------------------------------

bool WorkAreaTips::takesKey(const KeyEvent& event) {
    if (tip_ == nullptr || isModifier(event)) {
        return false;
    }
    switch (shown_) {
        case Shown::Nothing:
            tip_->stopTime();  // who types is not waiting for what is under the mouse
            return false;
        case Shown::Details:
            return takesKeyOfDetails(event);
        case Shown::DetailsUnderMouse:
        case Shown::Note:
            hide();
            return false;
        case Shown::Names:
            return takesKeyOfNames(event);
        case Shown::Arguments:
            return takesKeyOfArguments(event);
    }
    return false;
}

void WorkAreaTips::pressed() {
    if (shown_ == Shown::Arguments) {
        lineMayHaveChanged();
    } else if (shown_ != Shown::Nothing) {
        hide();
    }
}

void WorkAreaTips::lineMayHaveChanged() {
    if (!willUpdate_ && (tellsArguments_ || shown_ == Shown::Names)) {
        willUpdate_ = true;
        tip().wakeLater();
    }
}

void WorkAreaTips::update() {
    willUpdate_ = false;
    const CurrentLine line = workArea_.currentLine();
    if (shown_ == Shown::Names) {
        updateNames(line);
    }
    if (shown_ == Shown::Nothing || shown_ == Shown::Arguments) {
        updateArguments(line);
    }
}

}  // namespace calquo
