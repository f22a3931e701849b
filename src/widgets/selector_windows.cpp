// The system's combo boxes and list boxes.
#include "widgets/selector.h"

#include <algorithm>

#include "widgets/fonts.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr int mostLinesShown = 8;
constexpr int spareWidth = 12;  // at 96 dots per inch

}  // namespace

/// What the two looks differ in.
struct Selector::LookRow {
    WidgetClass widgetClass;
    UINT style;
    UINT add, selected, select, lineHeight;
};

const Selector::LookRow& Selector::rowOf(Look look) {
    static const LookRow comboBox{registerClass(L"COMBOBOX", L"CalquoComboBox"),
                                  CBS_DROPDOWNLIST | WS_VSCROLL,
                                  CB_ADDSTRING,
                                  CB_GETCURSEL,
                                  CB_SETCURSEL,
                                  CB_GETITEMHEIGHT};
    static const LookRow listBox{registerClass(L"LISTBOX", L"CalquoListBox"),
                                 LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL,
                                 LB_ADDSTRING,
                                 LB_GETCURSEL,
                                 LB_SETCURSEL,
                                 LB_GETITEMHEIGHT};
    return look == Look::ComboBox ? comboBox : listBox;
}

Selector::Selector(WindowHandle parent, std::uint16_t command, Look look, std::span<const std::string_view> choices)
    : Component(rowOf(look).widgetClass, {parent, command, rowOf(look).style | WS_TABSTOP, {}}),
      row_(rowOf(look)),
      look_(look) {
    for (const std::string_view choice : choices) {
        choices_.push_back(wideText(choice));
        SendMessageW(handle(), row_.add, 0, reinterpret_cast<LPARAM>(choices_.back().c_str()));
    }
    Selector::fitToScale();
}

void Selector::fitToScale() {
    showIn(textFont());
    int widest = 0;
    for (const std::wstring& choice : choices_) {
        widest = std::max(widest, extentOf(textFont(), choice).width);
    }
    const int lines = std::min(static_cast<int>(choices_.size()), mostLinesShown);
    const int border = 2 * GetSystemMetrics(SM_CYBORDER);
    const int list = lines * static_cast<int>(SendMessageW(handle(), row_.lineHeight, 0, 0)) + border;
    const int width = widest + GetSystemMetrics(SM_CXVSCROLL) + scaled(spareWidth);
    if (look_ == Look::ComboBox) {
        RECT closed{};
        GetWindowRect(handle(), &closed);
        setPreferredSize({width, closed.bottom - closed.top});
        setDropHeight(list);
    } else {
        setPreferredSize({width, list});
    }
}

int Selector::selected() const { return static_cast<int>(SendMessageW(handle(), row_.selected, 0, 0)); }

void Selector::select(int index) { SendMessageW(handle(), row_.select, static_cast<WPARAM>(index), 0); }

}  // namespace calquo
