// The steps of a text area that are an exchange of its control for another. Wine's control takes the square of the
// length, or worse, to replace much of its text and to take that back, but reads a text quickly when it is empty.
#include <functional>
#include <utility>

#include "widgets/text_area.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// So much text may be hidden, the control that was hidden last apart: Wine's takes some 5 KB for each short line.
constexpr LRESULT mostHiddenCharacters = 2'000'000;

bool canStep(WindowHandle window, UINT question) { return SendMessageW(window, question, 0, 0) != 0; }

}  // namespace

bool TextArea::exchangeContent(std::string_view richText, TextRange selected) {
    const Point place = scrolled();
    WindowOwner old = giveUpControl();
    const auto goBack = [&] {
        destroy();
        attach(std::move(old));
    };
    std::size_t shownText = 0;
    try {
        makeHiddenControlLike(old.get());
        if (!fill(richText)) {
            goBack();
            return false;
        }
        shownText = hashOfText();
        earlier_.reserve(earlier_.size() + 1);
    } catch (...) {
        goBack();
        throw;
    }
    select(selected);
    scrollTo(place);
    showInPlaceOf(old.get());
    earlier_.push_back({std::move(old), shownText});
    later_.clear();
    hadOwnRedo_ = false;
    forgetOldest();
    return true;
}

WindowOwner TextArea::giveUpControl() {
    onDestroy();  // so that the next control gets its own name for screen readers, when one asks
    return detach();
}

void TextArea::makeHiddenControlLike(WindowHandle other) {
    const LONG_PTR style = (GetWindowLongPtrW(other, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_VISIBLE)) | WS_VSCROLL;
    const LONG_PTR extendedStyle = GetWindowLongPtrW(other, GWL_EXSTYLE);
    create(Window::Creation{widgetClass().name,
                            L"",
                            {static_cast<std::uint32_t>(style), static_cast<std::uint32_t>(extendedStyle)},
                            rectangle(),
                            parent(),
                            command()});
    setUp();
    fitToScale();
    onOtherControl();
}

void TextArea::showInPlaceOf(WindowHandle other) {
    const bool hasFocus = GetFocus() == other;
    SetWindowPos(handle(), other, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    if (hasFocus) {
        giveFocus();
    }
    ShowWindow(other, SW_HIDE);
    hasGoneBack_ = true;
}

void TextArea::forgetOldest() {
    LRESULT characters = 0;
    for (std::size_t rest = earlier_.size() - 1; rest-- > 0;) {
        characters += SendMessageW(earlier_[rest].window.get(), WM_GETTEXTLENGTH, 0, 0);
        if (characters > mostHiddenCharacters) {
            earlier_.erase(earlier_.begin(), earlier_.begin() + static_cast<std::ptrdiff_t>(rest) + 1);
            return;
        }
    }
}

std::size_t TextArea::hashOfText() const { return std::hash<std::wstring>{}(characters()); }

bool TextArea::isNext(const HiddenControls& controls) const {
    return !controls.empty() && controls.back().shownText == hashOfText();
}

void TextArea::takeNext(HiddenControls& from, HiddenControls& to) {
    to.reserve(to.size() + 1);
    WindowOwner old = giveUpControl();
    attach(std::move(from.back().window));
    from.pop_back();
    hadOwnRedo_ = canStep(handle(), EM_CANREDO);
    // The window may have another place or scale by now.
    const auto [left, top, width, height] = rectangle();
    SetWindowPos(handle(), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    fitToScale();
    showInPlaceOf(old.get());
    to.push_back({std::move(old), hashOfText()});
}

std::optional<std::intptr_t> TextArea::stepBetweenControls(std::uint32_t message) {
    // What was typed since, and undone, comes before the later control.
    const bool hasOwnStep =
        message == EM_REDO ? canStep(handle(), EM_CANREDO) && !hadOwnRedo_ : canStep(handle(), EM_CANUNDO);
    if (!hasOwnStep && isNext(message == EM_REDO ? later_ : earlier_)) {
        message == EM_REDO ? takeNext(later_, earlier_) : takeNext(earlier_, later_);
        return 1;
    }
    return std::nullopt;
}

bool TextArea::canUndo() const { return canStep(handle(), EM_CANUNDO) || isNext(earlier_); }
bool TextArea::canRedo() const { return canStep(handle(), EM_CANREDO) || isNext(later_); }

void TextArea::forgetSteps() {
    earlier_.clear();
    later_.clear();
    SendMessageW(handle(), EM_EMPTYUNDOBUFFER, 0, 0);
}

}  // namespace calquo
