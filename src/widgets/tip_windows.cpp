// The window and the looks of a tip.
#include "widgets/tip.h"

#include <algorithm>
#include <string_view>

#include "widgets/fonts.h"
#include "widgets/painting.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::uintptr_t timerNumber = 1;
constexpr UINT wakeMessage = WM_USER + 1;

/// How many lines of a list show at most.
constexpr int mostLinesOfList = 10;

/// Between the text and the tip's edges, between columns, and as much text as is good to read, in pixels.
int padding() { return buttonSize() / 4; }
int gap() { return buttonSize() / 2; }
int mostWidth() { return 34 * buttonSize(); }

int lineHeight() {
    return std::max(extentOf(textFont(), L"Ag").height, extentOf(boldTextFont(), L"Ag").height) + buttonSize() / 10;
}

/// The parts of a span before, in and after another.
std::array<TextSpan, 3> splitAt(TextSpan span, TextSpan inner) {
    const std::size_t begin = std::clamp(inner.begin, span.begin, span.end);
    const std::size_t end = std::clamp(inner.end, begin, span.end);
    return {{{span.begin, begin}, {begin, end}, {end, span.end}}};
}

/// Calls `act` with each piece of a cell's part that is written in one font, and that font selected.
template <typename Act>
void forEachPiece(HDC context, const TipCell& cell, TextSpan part, const Act& act) {
    bool isBold = false;
    for (const TextSpan piece : splitAt(part, cell.bold)) {
        if (piece.begin != piece.end) {
            const Selection font(context, isBold ? boldTextFont() : textFont());
            act(std::wstring_view(cell.text).substr(piece.begin, piece.end - piece.begin));
        }
        isBold = !isBold;
    }
}

int widthIn(HDC context, std::wstring_view text) {
    SIZE size{};
    GetTextExtentPoint32W(context, text.data(), static_cast<int>(text.size()), &size);
    return static_cast<int>(size.cx);
}

TipLayout layOutOnScreen(const std::vector<TipRow>& rows, int width) {
    const HDC screen = GetDC(nullptr);
    const CellMeasure measure = [&](const TipCell& cell, TextSpan part) {
        int sum = 0;
        forEachPiece(screen, cell, part, [&](std::wstring_view piece) { sum += widthIn(screen, piece); });
        return sum;
    };
    TipLayout layout = layOutTip(rows, {width, lineHeight(), gap()}, measure);
    ReleaseDC(nullptr, screen);
    return layout;
}

}  // namespace

const Component::WidgetClass& Tip::widgetClass() {
    static const WidgetClass registered = registerClass(L"STATIC", L"CalquoTip");
    return registered;
}

Tip::Tip(WindowHandle parent, TipListener listener)
    : Component(widgetClass(), {parent, 0, WS_CLIPSIBLINGS, {}, WS_EX_NOPARENTNOTIFY}),
      listener_(std::move(listener)) {}

void Tip::tell(TipContent content, const Rectangle& line, const Rectangle& area) {
    content_ = std::move(content);
    line_ = line;
    area_ = area;
    selected_ = 0;
    first_ = 0;
    underMouse_.reset();
    layout_ = layOutOnScreen(content_.rows, std::min(area.width - 2 * padding(), mostWidth()));
    place();
    speak();
    if (!isShown_) {
        SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        show();
        isShown_ = true;
    }
    InvalidateRect(handle(), nullptr, FALSE);
}

void Tip::hideTip() {
    if (isShown_) {
        isShown_ = false;
        hide();
        SetWindowTextW(handle(), L"");
    }
}

void Tip::place() {
    const int footer = content_.footer.empty() ? 0 : lineHeight();
    const int around = 2 * padding() + footer;
    const int wanted = content_.rows.empty() ? 0 : heightOfRows(0, content_.rows.size());
    const int most = content_.isList ? std::min(wanted, mostLinesOfList * lineHeight()) : wanted;
    mostHeightOfRows_ = std::min(most, roomBeside(line_, most + around, area_) - around);
    const int footerWidth = content_.footer.empty() ? 0 : extentOf(textFont(), content_.footer).width;
    const int width = std::min(std::max(layout_.width, footerWidth) + 2 * padding(), area_.width);
    moveTo(placeBeside(line_, {width, mostHeightOfRows_ + around}, area_));
}

int Tip::heightOfRows(std::size_t first, std::size_t end) const {
    const PlacedRow& last = layout_.rows[end - 1];
    return last.top + last.height - layout_.rows[first].top;
}

std::size_t Tip::endOfShownRows() const {
    std::size_t end = std::min(first_ + 1, content_.rows.size());
    while (end < content_.rows.size() && heightOfRows(first_, end + 1) <= mostHeightOfRows_) {
        ++end;
    }
    return end;
}

void Tip::select(std::ptrdiff_t row) {
    selected_ = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(row, 0, std::ssize(content_.rows) - 1));
    first_ = std::min(first_, selected_);
    while (endOfShownRows() <= selected_) {
        ++first_;
    }
    speak();
    InvalidateRect(handle(), nullptr, FALSE);
}

void Tip::speak() {
    std::wstring text = content_.spoken;
    if (content_.isList && selected_ < content_.rows.size()) {
        for (const TipCell& cell : content_.rows[selected_]) {
            text += (text.empty() ? L"" : L" ") + cell.text;
        }
    }
    SetWindowTextW(handle(), text.c_str());
}

// --- Mouse and time -------------------------------------------------------------------------------------------------

std::optional<std::size_t> Tip::rowAt(Point point) const {
    int top = padding();
    for (std::size_t row = first_; row < endOfShownRows(); ++row) {
        const int bottom = top + layout_.rows[row].height;
        if (point.top >= top && point.top < bottom) {
            return row;
        }
        top = bottom;
    }
    return std::nullopt;
}

bool Tip::onMouse(const MouseEvent& event) {
    if (!content_.canBeChosen) {
        return true;
    }
    const std::optional<std::size_t> row = rowAt(event.position);
    if (event.action == MouseAction::Move && row != underMouse_) {
        underMouse_ = row;
        InvalidateRect(handle(), nullptr, FALSE);
    } else if (event.action == MouseAction::Press && row) {
        listener_.chosen(*row);
    }
    return true;
}

void Tip::startTime(int milliseconds) { SetTimer(handle(), timerNumber, static_cast<UINT>(milliseconds), nullptr); }

void Tip::stopTime() { KillTimer(handle(), timerNumber); }

bool Tip::onTimer(std::uintptr_t timer) {
    if (timer != timerNumber) {
        return false;
    }
    stopTime();
    listener_.timeOver();
    return true;
}

void Tip::wakeLater() { PostMessageW(handle(), wakeMessage, 0, 0); }

std::optional<std::intptr_t> Tip::onSimpleMessage(std::uint32_t message) {
    if (message != wakeMessage) {
        return std::nullopt;
    }
    listener_.woken();
    return 0;
}

// --- Painting -------------------------------------------------------------------------------------------------------

bool Tip::onPaint() {
    const Painting painting(handle());
    const Size size = clientSize(handle());
    const HDC context = painting.context();
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    const RECT whole{0, 0, size.width, size.height};
    SetDCBrushColor(context, colorReference(palette().hint.ground));
    FillRect(context, &whole, brush);
    SetBkMode(context, TRANSPARENT);
    int top = padding();
    for (std::size_t row = first_; row < endOfShownRows(); ++row) {
        const bool isMarked = (content_.isList && row == selected_) || (content_.canBeChosen && row == underMouse_);
        if (isMarked) {
            const RECT behind{0, top, size.width, top + layout_.rows[row].height};
            SetDCBrushColor(context, colorReference(palette().selectedRow.ground));
            FillRect(context, &behind, brush);
        }
        paintRow(context, row, top, isMarked ? palette().selectedRow.ink : palette().hint.ink);
        top += layout_.rows[row].height;
    }
    const Selection font(context, textFont());
    SetTextColor(context, colorReference(palette().faintInk.value_or(palette().hint.ink)));
    const int footerTop = size.height - padding() - lineHeight();
    TextOutW(context, padding(), footerTop, content_.footer.c_str(), static_cast<int>(content_.footer.size()));
    SetDCBrushColor(context, colorReference(palette().hintEdge));
    FrameRect(context, &whole, brush);
    return true;
}

void Tip::paintRow(DrawingContext context, std::size_t row, int top, Color ink) const {
    for (std::size_t column = 0; column < content_.rows[row].size(); ++column) {
        const TipCell& cell = content_.rows[row][column];
        const PlacedCell& placed = layout_.rows[row].cells[column];
        SetTextColor(context, colorReference(cell.faint ? palette().faintInk.value_or(ink) : ink));
        int lineTop = top;
        for (const TextSpan line : placed.lines) {
            int left = padding() + placed.place.left;
            forEachPiece(context, cell, line, [&](std::wstring_view piece) {
                TextOutW(context, left, lineTop, piece.data(), static_cast<int>(piece.size()));
                left += widthIn(context, piece);
            });
            lineTop += lineHeight();
        }
    }
}

}  // namespace calquo
