// The token reader over the character table.
#include "engine/lexer.h"

#include "values/errors.h"

namespace calquo {
namespace {

constexpr std::uint32_t smallestBase = 2;
constexpr std::uint32_t largestBase = 36;

struct WholeNumber {
    std::uint32_t number = 0;  ///< too large a number stands as one above every base
    std::size_t length = 0;
};

WholeNumber readWholeNumber(std::string_view line, std::size_t index) {
    WholeNumber result;
    for (; isDecimalDigit(characterAt(line, index + result.length)); ++result.length) {
        result.number = result.number * 10 + digitValue(line[index + result.length]);
        if (result.number > largestBase) {
            result.number = largestBase + 1;
        }
    }
    return result;
}

void checkBase(std::uint32_t base, std::size_t index) {
    if (base < smallestBase || base > largestBase) {
        raiseAt(ErrorCode::WrongBase, index);
    }
}

}  // namespace

Sign readSign(std::string_view line, std::size_t index, Blanks blanks) {
    const bool skip = blanks == Blanks::Skip;
    const std::size_t start = skip ? index + blankLength(line, index) : index;
    const TokenClass kind = readOperatorHere(line, start).kind;
    if (kind != TokenClass::Plus && kind != TokenClass::Minus) {
        return {};
    }
    const std::size_t end = start + 1;
    return {kind == TokenClass::Minus ? -1 : 1, (skip ? end + blankLength(line, end) : end) - index};
}

BasePrefix readBasePrefix(std::string_view line, std::size_t index) {
    std::size_t digits = 0;
    while (digits < 2 && isDecimalDigit(characterAt(line, index + digits))) {
        ++digits;
    }
    if (digits == 0 || tokenLength(TokenClass::BaseMark, line, index + digits) == 0) {
        return {};
    }
    const std::uint32_t base = readWholeNumber(line, index).number;
    checkBase(base, index + digits);
    return {base, digits + 1};
}

OutputBase readOutputBaseDirective(std::string_view line, std::size_t index) {
    if (tokenLength(TokenClass::BaseMark, line, index) == 0) {
        return {};
    }
    const WholeNumber number = readWholeNumber(line, index + 1);
    const std::size_t end = index + 1 + number.length;
    if (number.length == 0 || !isBlank(characterAt(line, end))) {
        return {};
    }
    checkBase(number.number, index);
    return {number.number, end + blankLength(line, end) - index};
}

OutputBase readOutputBaseSuffix(std::string_view line, std::size_t index) {
    const std::size_t start = index + blankLength(line, index);
    if (start == index || tokenLength(TokenClass::BaseMark, line, start) == 0) {
        return {};
    }
    const WholeNumber number = readWholeNumber(line, start + 1);
    std::size_t end = start + 1 + number.length;
    end += blankLength(line, end);
    if (number.length == 0 || end != line.size()) {
        return {};
    }
    checkBase(number.number, start);
    return {number.number, end - index};
}

std::size_t nameLength(std::string_view line, std::size_t index) {
    if (!isLetter(characterAt(line, index))) {
        return 0;
    }
    std::size_t length = 1;
    while (isNameCharacter(characterAt(line, index + length))) {
        ++length;
        if (length > longestName) {
            raiseAt(ErrorCode::TooLong, index + longestName);
        }
    }
    return length;
}

}  // namespace calquo
