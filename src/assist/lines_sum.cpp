// Finds the number in each line and lists them.
#include "assist/lines_sum.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "assist/line_value.h"
#include "engine/characters.h"
#include "workarea/language_text.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

constexpr bool isInRange(wchar_t character, wchar_t first, wchar_t last) {
    return character >= first && character <= last;
}

/// Blanks of any width, and control characters.
constexpr bool isSpace(wchar_t character) {
    return character <= L' ' || character == 0xA0 || isInRange(character, 0x2000, 0x200B) || character == 0x202F ||
           character == 0x205F || character == 0x3000 || character == 0xFEFF;
}

/// The currency signs of Latin-1 and the block that Unicode has for them.
constexpr bool isCurrencySign(wchar_t character) {
    return character == L'$' || isInRange(character, 0xA2, 0xA5) || isInRange(character, 0x20A0, 0x20CF);
}

constexpr bool isOrnament(wchar_t character) { return isSpace(character) || isCurrencySign(character); }

void dropOrnamentsBefore(std::wstring_view& text) {
    while (!text.empty() && isOrnament(text.front())) {
        text.remove_prefix(1);
    }
}

/// A number without what people put around it, "-" before it where it has that or a minus sign of its own; empty for
/// anything that is no number.
std::string bareNumber(std::wstring_view line) {
    constexpr wchar_t minusSign = 0x2212;
    std::string sign;
    dropOrnamentsBefore(line);
    if (!line.empty() && (line.front() == L'-' || line.front() == minusSign || line.front() == L'+')) {
        sign = line.front() == L'+' ? "" : "-";
        line.remove_prefix(1);
        dropOrnamentsBefore(line);
    }
    while (!line.empty() && isOrnament(line.back())) {
        line.remove_suffix(1);
    }
    const std::string number = sign + languageText(line);
    const bool hasDigit = std::ranges::any_of(number, isDecimalDigit);
    return hasDigit && isWrittenAnswer(number) && !number.starts_with("Error") ? number : "";
}

bool isBlankLine(std::wstring_view line) { return std::ranges::all_of(line, isSpace); }

/// A line of the selection, and what it gives to the sum.
struct Item {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t number = 0;  ///< Of the line among all lines.
    bool hasResult = false;
    std::string shown;
    std::string term;  ///< Empty where the line has no number.
};

Item itemOf(std::wstring_view line, NumericFormat format) {
    Item item;
    item.hasResult = line.find(L'=') != std::wstring_view::npos;
    const std::string text = item.hasResult ? languageText(line) : bareNumber(line);
    const std::optional<LineValue> value = text.empty() ? std::nullopt : valueOf(text, format);
    if (value && value->value) {
        item.shown = item.hasResult ? value->shown : text;
        item.term = textInFull(item.hasResult ? *value : LineValue{text, value->value});
    }
    return item;
}

std::vector<Item> itemsOf(std::wstring_view lines, NumericFormat format) {
    std::vector<Item> items;
    std::size_t number = 0;
    for (std::size_t begin = 0; begin <= lines.size(); ++number) {
        const std::size_t end = std::min(lines.find(L'\r', begin), lines.size());
        const std::wstring_view line = lines.substr(begin, end - begin);
        if (!isBlankLine(line)) {
            items.push_back(itemOf(line, format));
            items.back().begin = begin;
            items.back().end = end;
            items.back().number = number;
        }
        begin = end + 1;
    }
    return items;
}

/// Whether the last line is the result of the one before, an empty line between them, as Enter carries it on.
bool endsCarried(const std::vector<Item>& items) {
    if (items.size() < 2) {
        return false;
    }
    const Item& line = items[items.size() - 2];
    const Item& carried = items.back();
    return line.hasResult && !carried.hasResult && !carried.term.empty() && carried.shown == line.shown &&
           carried.number == line.number + 2;
}

}  // namespace

LinesSum sumOfLines(std::wstring_view lines, NumericFormat format) {
    std::vector<Item> items = itemsOf(lines, format);
    LinesSum sum;
    sum.replacesCarried = endsCarried(items);
    if (sum.replacesCarried) {
        sum.place = items.back().begin;
        items.pop_back();
    } else if (!items.empty()) {
        sum.place = items.back().end;
    }
    for (const Item& item : items) {
        if (item.term.empty()) {
            ++sum.leftOut;
        } else {
            sum.expression += (sum.expression.empty() ? "sum(" : "; ") + item.term;
        }
    }
    sum.expression += sum.expression.empty() ? "" : ")";
    return sum;
}

std::string hintAbout(const LinesSum& sum) {
    if (sum.expression.empty()) {
        return "The selected lines have no number.";
    }
    if (sum.leftOut == 0) {
        return {};
    }
    return sum.leftOut == 1 ? "1 line has no number and is left out."
                            : std::to_string(sum.leftOut) + " lines have no number and are left out.";
}

}  // namespace calquo
