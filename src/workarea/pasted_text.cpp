// How a pasted character is read depends on its neighbours.
#include "workarea/pasted_text.h"

#include <algorithm>

#include "engine/characters.h"
#include "engine/keywords.h"
#include "workarea/line_breaks.h"
#include "workarea/pasted_characters.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr char32_t lastAscii = 0x7F;

bool isAsciiOf(char32_t code, bool (*fits)(char)) { return code <= lastAscii && fits(static_cast<char>(code)); }
bool isDigit(char32_t code) {
    return isAsciiOf(code, [](char ascii) { return isDecimalDigit(ascii); });
}
bool isNamePart(char32_t code) {
    return isAsciiOf(code, [](char ascii) { return isNameCharacter(ascii); });
}
bool isBlankOrTab(char32_t code) { return code == U' ' || code == U'\t'; }
bool isMark(char32_t code) {
    return isAsciiOf(code, [](char ascii) {
        const TokenClass kind = classOfCharacter(ascii);
        return kind == TokenClass::DecimalMark || kind == TokenClass::GroupMark;
    });
}

/// What a character is first taken for; 0 where that is nothing.
char32_t meaningOf(char32_t code) {
    const PastedCharacter meant = pastedCharacter(code);
    if (meant.kind == PastedKind::Itself) {
        return code;
    }
    return meant.text.empty() ? U'\0' : static_cast<char32_t>(meant.text.front());
}

/// Whether the text of a cell is a number, or what is left of it: of digits and what stands in numbers.
bool isNumber(std::u32string_view cell) {
    constexpr std::u32string_view others = U"+-()%'@eE \0";
    bool hasDigit = false;
    for (const char32_t code : cell) {
        const char32_t meant = meaningOf(code);
        hasDigit = hasDigit || isDigit(meant);
        if (!isDigit(meant) && !isMark(meant) && others.find(meant) == std::u32string_view::npos) {
            return false;
        }
    }
    return hasDigit;
}

/// A line on its way into the language's characters.
class Line {
public:
    explicit Line(std::u32string_view line) : line_(line) {}

    std::u32string translated() {
        while (place_ < line_.size()) {
            take(line_[place_++]);
        }
        return std::move(text_);
    }

private:
    void take(char32_t code);
    void takeBeside(char32_t code, const PastedCharacter& meant);
    void takeTab();
    void takeNoBreakBlank();
    void takeSuperscript(char32_t code);
    void takeDegrees();
    void takeName(std::string_view name);
    void append(char32_t code);
    void append(std::string_view ascii);
    void joinToNumber(std::string_view before, std::string_view after);

    std::size_t numberBefore() const;
    std::u32string_view nameBefore() const;
    char32_t before(std::size_t distance) const {
        return distance <= text_.size() ? text_[text_.size() - distance] : U'\0';
    }
    char32_t after(std::size_t distance) const {
        return place_ + distance < line_.size() ? meaningOf(line_[place_ + distance]) : U'\0';
    }
    bool hasOperandBefore() const;
    bool hasOperandAfter() const;

    std::u32string_view line_;
    std::size_t place_ = 0;  ///< Of the first character that has not been taken.
    std::u32string text_;
    std::size_t cellBegin_ = 0;  ///< In the text, after the last tab.
    std::size_t groupEnd_ = 0;   ///< In the text, where the last group of digits was joined to a number.
    bool endsName_ = false;      ///< A name or number that follows must not become a part of what stands there.
};

void Line::take(char32_t code) {
    if (code == U'\t') {
        takeTab();
    } else if (code > lastAscii) {
        takeBeside(code, pastedCharacter(code));
    } else if (code >= U' ' && code != lastAscii) {
        append(code);
    }
}

void Line::takeBeside(char32_t code, const PastedCharacter& meant) {
    switch (meant.kind) {
        case PastedKind::Itself:
            append(code);
            break;
        case PastedKind::Text:
            append(meant.text);
            break;
        case PastedKind::NoBreakBlank:
            takeNoBreakBlank();
            break;
        case PastedKind::Dash:
            hasOperandAfter() || after(0) == U'>' ? append(meant.text) : append(code);
            break;
        case PastedKind::Dot:
            hasOperandBefore() && hasOperandAfter() ? append(meant.text) : append(code);
            break;
        case PastedKind::Superscript:
            takeSuperscript(code);
            break;
        case PastedKind::Name:
            takeName(meant.text);
            break;
        case PastedKind::Degrees:
            takeDegrees();
            break;
        case PastedKind::Fraction:
            numberBefore() > 0 ? joinToNumber("(", "+" + meant.text + ")") : append("(" + meant.text + ")");
            break;
    }
}

/// Between two cells of numbers the separator of lists, so that a function can be put around the line.
void Line::takeTab() {
    const std::size_t begin = std::min(line_.find_first_not_of(U" \t", place_), line_.size());
    const std::u32string_view next = line_.substr(begin, line_.find(U'\t', begin) - begin);
    if (isNumber(std::u32string_view(text_).substr(cellBegin_)) && isNumber(next)) {
        text_.erase(text_.find_last_not_of(U' ') + 1);
        append(std::string{markCharacter(TokenClass::ListSeparator), ' '});
    } else if (begin < line_.size()) {
        text_ += line_.substr(place_ - 1, begin - place_ + 1);
    }
    endsName_ = false;
    place_ = begin;
    cellBegin_ = text_.size();
}

/// Three digits after a number are a group of it, where no line may be broken between them.
void Line::takeNoBreakBlank() {
    constexpr std::size_t group = 3;
    std::size_t digitsBefore = 0;
    while (digitsBefore <= group && isDigit(before(digitsBefore + 1))) {
        ++digitsBefore;
    }
    const bool isAfterGroups = digitsBefore > 0 && (digitsBefore <= group || groupEnd_ == text_.size());
    if (isAfterGroups && isDigit(after(0)) && isDigit(after(1)) && isDigit(after(2)) && !isNamePart(after(3))) {
        for (std::size_t count = 0; count < group; ++count) {
            append(after(count));
        }
        place_ += group;
        groupEnd_ = text_.size();
    } else {
        append(U' ');
    }
}

void Line::takeSuperscript(char32_t code) {
    std::string exponent;
    std::u32string asTheyAre;
    for (;;) {
        const PastedCharacter meant = pastedCharacter(code);
        if (meant.kind == PastedKind::Superscript) {
            exponent += meant.text;
            asTheyAre += code;
        } else if (meant.kind != PastedKind::Text || !meant.text.empty()) {
            --place_;
            break;
        }
        if (place_ == line_.size()) {
            break;
        }
        code = line_[place_++];
    }
    std::string name;
    for (const char32_t part : nameBefore()) {
        name += static_cast<char>(part);
    }
    if (isBlankOrTab(before(1)) || !hasOperandBefore()) {
        text_ += asTheyAre;
        return;
    }
    const bool isOfName = !name.empty() && exponent.find_first_of("+-") == std::string::npos;
    text_ += isOfName && keywordAt(name + exponent, 0) ? U"" : U"^";
    text_.append(exponent.begin(), exponent.end());
    endsName_ = true;
}

/// The scale of a temperature has the sign for itself, and an angle needs it within reach of a function.
void Line::takeDegrees() {
    const std::size_t blanks = after(0) == U' ' ? 1 : 0;
    const char32_t scale = after(blanks);
    if ((scale == U'C' || scale == U'F') && !isNamePart(after(blanks + 1))) {
        return;
    }
    if (numberBefore() > 0) {
        joinToNumber("(", " deg)");
    } else {
        takeName("deg");
    }
}

void Line::takeName(std::string_view name) {
    if (!nameBefore().empty()) {
        append(U' ');
    }
    append(name);
    endsName_ = true;
}

void Line::append(char32_t code) {
    if (endsName_ && isNamePart(code)) {
        text_ += U' ';
    }
    endsName_ = false;
    text_ += code;
}

void Line::append(std::string_view ascii) {
    for (const char character : ascii) {
        append(static_cast<char32_t>(character));
    }
}

/// Puts text around the number that stands there.
void Line::joinToNumber(std::string_view before, std::string_view after) {
    const std::size_t length = numberBefore();
    text_.erase(text_.find_last_not_of(U' ') + 1);
    text_.insert(text_.end() - static_cast<std::ptrdiff_t>(length), before.begin(), before.end());
    append(after);
}

/// The length of the decimal number without an exponent that stands there, apart from one blank after it; 0 for none.
std::size_t Line::numberBefore() const {
    const std::size_t blanks = before(1) == U' ' ? 1 : 0;
    std::size_t length = 0;
    while (isDigit(before(blanks + length + 1)) || isMark(before(blanks + length + 1))) {
        ++length;
    }
    const char32_t other = before(blanks + length + 1);
    const bool isWhole = isDigit(before(blanks + 1)) && !isNamePart(other) && other != U'\'';
    return isWhole ? length : 0;
}

/// The name that stands there: letters and digits from the first letter on.
std::u32string_view Line::nameBefore() const {
    std::size_t begin = text_.size();
    while (begin > 0 && isNamePart(text_[begin - 1])) {
        --begin;
    }
    while (begin < text_.size() && isDigit(text_[begin])) {
        ++begin;
    }
    return std::u32string_view(text_).substr(begin);
}

bool Line::hasOperandBefore() const {
    const std::size_t end = text_.find_last_not_of(U" \t");
    if (end == std::u32string::npos) {
        return false;
    }
    constexpr std::u32string_view others = U")%!'";
    return isNamePart(text_[end]) || isMark(text_[end]) || others.find(text_[end]) != std::u32string_view::npos;
}

bool Line::hasOperandAfter() const {
    std::size_t distance = 0;
    while (place_ + distance < line_.size() && (isBlankOrTab(after(distance)) || after(distance) == U'\0')) {
        ++distance;
    }
    const char32_t next = after(distance);
    return isNamePart(next) || isMark(next) || next == U'(' || next == U'\'';
}

/// Whether all of a line is in the language's characters already.
bool isPlain(std::u16string_view line) {
    return std::ranges::all_of(line, [](char16_t unit) { return unit >= u' ' && unit < lastAscii; });
}

void appendTranslated(std::u16string& text, std::u16string_view line) {
    if (isPlain(line)) {
        text += line;
        return;
    }
    std::u32string characters;
    characters.reserve(line.size());
    while (!line.empty()) {
        const UtfCharacter first = firstUtf16Character(line);
        characters += first.code;
        line.remove_prefix(first.length);
    }
    for (const char32_t code : Line(characters).translated()) {
        appendUtf16(text, code);
    }
}

}  // namespace

std::u16string pastedText(std::u16string_view text) {
    std::u16string translated;
    translated.reserve(text.size());
    for (;;) {
        const auto end = static_cast<std::size_t>(std::ranges::find_if(text, breaksLine) - text.begin());
        appendTranslated(translated, text.substr(0, end));
        if (end == text.size()) {
            return translated;
        }
        translated += u'\n';
        text.remove_prefix(text.substr(end).starts_with(u"\r\n") ? end + 2 : end + 1);
    }
}

}  // namespace calquo
