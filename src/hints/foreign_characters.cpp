// Characters that the language does not have; see foreign_characters.h.
#include "hints/foreign_characters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace calquo {
namespace {

struct Sign {
    std::string_view sign;
    std::string_view write;
};

constexpr auto signs = std::to_array<Sign>({
    {"×", "*"},         {"·", "*"},         {"⋅", "*"},      {"∙", "*"},      {"•", "*"},     {"✕", "*"},
    {"÷", "/"},         {"∕", "/"},         {"⁄", "/"},      {"−", "-"},      {"–", "-"},     {"—", "-"},
    {"→", "->"},        {"⇒", "->"},        {"π", "pi"},     {"∞", "inf"},    {"√", "sqrt"},  {"∛", "cbrt"},
    {"½", "(1/2)"},     {"⅓", "(1/3)"},     {"⅔", "(2/3)"},  {"¼", "(1/4)"},  {"¾", "(3/4)"}, {"⅛", "(1/8)"},
    {"⅜", "(3/8)"},     {"⅝", "(5/8)"},     {"⅞", "(7/8)"},  {"‰", "*0.001"}, {"ℯ", "e"},     {"∑", "sum"},
    {"’", "'"},         {"‘", "'"},         {"“", "\""},     {"”", "\""},     {"′", "'"},     {"″", "\""},
    {"Å", "(1e-10 m)"}, {"Å", "(1e-10 m)"}, {"τ", "(2 pi)"}, {"ⅈ", "i"},      {"％", "%"},    {"＋", "+"},
});

/// "²" and the like, and what each digit or sign is.
constexpr auto superscripts = std::to_array<Sign>({
    {"⁰", "0"},
    {"¹", "1"},
    {"²", "2"},
    {"³", "3"},
    {"⁴", "4"},
    {"⁵", "5"},
    {"⁶", "6"},
    {"⁷", "7"},
    {"⁸", "8"},
    {"⁹", "9"},
    {"⁻", "-"},
});

constexpr std::array<std::string_view, 8> currencySigns = {"$", "€", "£", "¥", "₹", "¢", "₽", "₩"};

/// Blanks that look like others.
constexpr std::array<std::string_view, 4> blanks = {"\u00A0", "\u202F", "\u2009", "\u2007"};

const Sign* rowOf(std::span<const Sign> rows, const DraftWord& word) {
    const auto row = std::ranges::find(rows, std::string_view(word.text), &Sign::sign);
    return row == rows.end() ? nullptr : &*row;
}

/// Makes one power of the superscripts at an index: "⁻¹" is "^-1".
void replaceSuperscripts(Draft& draft, std::size_t index) {
    std::string exponent;
    std::size_t count = 0;
    while (const Sign* row = rowOf(superscripts, draft.at(index + count))) {
        exponent += row->write;
        ++count;
    }
    draft.remove(index, count);
    const bool negative = exponent.starts_with('-');
    draft.insert(index, "^");
    if (negative) {
        draft.insert(index + 1, "-");
    }
    draft.words.insert(draft.words.begin() + static_cast<std::ptrdiff_t>(index + (negative ? 2 : 1)),
                       {WordKind::Number, exponent.substr(negative ? 1 : 0)});
}

/// "3√27": a whole number before the sign is the degree where the root is a whole number too.
bool isRootOfDegree(const Draft& draft, std::size_t index) {
    const auto isShort = [](const DraftWord& word, std::size_t digits) {
        return word.isNumber() && isWholeNumber(word.text) && word.text.size() <= digits;
    };
    if (!draft.at(index).is("√") || draft.at(index).afterBlank || index == 0 || !isShort(draft.at(index - 1), 1) ||
        !isShort(draft.at(index + 1), 9)) {
        return false;
    }
    const double degree = std::stod(draft.at(index - 1).text);
    const double radicand = std::stod(draft.at(index + 1).text);
    return degree > 2 && std::pow(std::round(std::pow(radicand, 1 / degree)), degree) == radicand;
}

}  // namespace

bool replaceBrackets(Draft& draft, Findings& findings) {
    const auto has = [&](std::string_view bracket) {
        return std::ranges::any_of(draft.words, [&](const DraftWord& word) { return word.is(bracket); });
    };
    if (!(has("[") && has("]")) && !(has("{") && has("}"))) {
        return false;
    }
    bool changed = false;
    for (DraftWord& word : draft.words) {
        if (word.kind != WordKind::Mark || word.text.size() != 1) {
            continue;
        }
        const bool opens = word.is("[") || word.is("{");
        if (opens || word.is("]") || word.is("}")) {
            findings[0] = changed ? findings[0] : word.text;
            word.text = opens ? "(" : ")";
            changed = true;
        }
    }
    return changed;
}

bool replaceBars(Draft& draft, Findings& /*findings*/) {
    const auto isBar = [](const DraftWord& word) { return word.is("|"); };
    if (draft.words.empty() || std::ranges::count_if(draft.words, isBar) != 2) {
        return false;
    }
    const auto first = std::ranges::find_if(draft.words, isBar);
    const auto index = static_cast<std::size_t>(first - draft.words.begin());
    const bool hasName = sameLetters(draft.at(index - 1).text, "abs");
    if (draft.endsOperand(index - 1) && !hasName) {
        return false;
    }
    std::ranges::find_if(first + 1, draft.words.end(), isBar)->text = ")";
    const bool afterBlank = std::exchange(first->afterBlank, false);
    first->text = "(";
    if (!hasName) {
        draft.words.insert(first, {WordKind::Name, "abs", afterBlank});
    }
    return true;
}

bool dropCurrencySigns(Draft& draft, Findings& findings) {
    const auto isCurrency = [](const DraftWord& word) {
        return std::ranges::find(currencySigns, word.text) != currencySigns.end();
    };
    const auto first = std::ranges::find_if(draft.words, isCurrency);
    if (first == draft.words.end()) {
        return false;
    }
    findings[0] = first->text;
    for (std::size_t i = 0; i + 1 < draft.words.size(); ++i) {
        if (isCurrency(draft.words[i])) {
            draft.words[i + 1].afterBlank = draft.words[i + 1].afterBlank || draft.words[i].afterBlank;
        }
    }
    std::erase_if(draft.words, isCurrency);
    return true;
}

bool replaceDegreeSigns(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        if (!draft.words[i].is("°") && !draft.words[i].is("º")) {
            continue;
        }
        const DraftWord& next = draft.at(i + 1);
        const bool isScale =
            !next.afterBlank && (next.is("C") || next.is("F") || next.is("K") || next.is("c") || next.is("f"));
        if (isScale) {
            draft.remove(i);
            draft.words[i].afterBlank = true;
            findings[1] = draft.words[i].text;
        } else {
            draft.replace(i, 1, "deg");
            draft.words[i].afterBlank = true;
            findings[1] = "deg";
        }
        changed = true;
    }
    return changed;
}

bool replaceSigns(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        if (draft.words[i].kind != WordKind::Foreign) {
            continue;
        }
        const std::string sign = draft.words[i].text;
        if (std::ranges::find(blanks, std::string_view(sign)) != blanks.end()) {
            draft.remove(i);
            if (i < draft.words.size()) {
                draft.words[i].afterBlank = true;
            }
            --i;
            continue;
        }
        std::string write;
        if (sign == "³" && draft.at(i + 1).is("√")) {
            draft.remove(i);
            draft.words[i].text = "∛";
        }
        if (isRootOfDegree(draft, i)) {
            const std::string degree = draft.at(i - 1).text;
            draft.replace(i - 1, 3, "root(" + draft.at(i + 1).text + "; " + degree + ")");
            findings = changed ? findings : Findings{degree + sign, "root", ""};
            changed = true;
            --i;
        } else if (const Sign* row = rowOf(signs, draft.words[i])) {
            write = row->write;
            const bool isOperand = write.size() > 1 && write[0] != '-' && write[0] != '*';
            if (isOperand && draft.at(i - 1).isNumber() && write.find('/') != std::string::npos) {
                // "2½" is the sum of both.
                const std::string number = draft.at(i - 1).text;
                draft.replace(i - 1, 2, "(" + number + "+" + write.substr(1));
                --i;
            } else {
                draft.replace(i, 1, write);
                draft.words[i].afterBlank = draft.words[i].afterBlank || (isOperand && draft.endsOperand(i - 1));
            }
        } else if (const Sign* digit = rowOf(superscripts, draft.words[i])) {
            write = "^" + std::string(digit->write);
            replaceSuperscripts(draft, i);
        } else if ((sign == "µ" || sign == "μ") && draft.at(i + 1).isName()) {
            write = "micro";
            draft.replace(i, 2, "u" + draft.at(i + 1).text);
        } else if (sign == "Ω" || sign == "Ω") {
            const bool hasPrefix = draft.at(i - 1).isName() && !draft.words[i].afterBlank;
            draft.replace(hasPrefix ? i - 1 : i, hasPrefix ? 2 : 1, (hasPrefix ? draft.at(i - 1).text : "") + "ohm");
            i -= hasPrefix ? 1 : 0;
        } else {
            continue;
        }
        if (!changed && !write.empty()) {
            findings[0] = sign;
            findings[1] = write;
            changed = true;
        }
    }
    return changed;
}

}  // namespace calquo
