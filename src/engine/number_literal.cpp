// The scanner of numeric literals.
#include "engine/number_literal.h"

#include "engine/characters.h"
#include "engine/keywords.h"
#include "engine/lexer.h"
#include "engine/literal_value.h"
#include "values/errors.h"
#include "values/extended.h"

namespace calquo {
namespace {

/// Exponents stop growing here: far beyond the range, however many digits stand before the decimal mark.
constexpr std::int64_t hugeExponent = std::int64_t{1} << 60;

class Scanner {
public:
    Scanner(std::string_view text, std::size_t start) : line(text), index(start) {
        const BasePrefix prefix = readBasePrefix(line, index);
        literal.base = prefix.base;
        prefixed = prefix.length != 0;
        index += prefix.length;
    }

    /// Whether a literal begins here; behind a prefix it must.
    [[nodiscard]] bool begins() const {
        const bool found = at(TokenClass::DecimalMark) || digitHere();
        if (!found && prefixed) {
            if (isNameCharacter(here())) {
                raiseAt(ErrorCode::InvalidDigit, index + 1);
            }
            raiseAt(ErrorCode::Incomplete, index);
        }
        return found;
    }

    Real scan() {
        const std::size_t start = index;
        scanDigits();
        if (at(TokenClass::DecimalMark)) {
            ++index;
            scanFraction();
        }
        literal.text = line.substr(start, index - start);
        if (exponentMarkHere()) {
            ++index;
            literal.exponent += scanExponent();
        }
        checkEnd();
        const Real number = literalValue(literal);
        if (number > largestFinite) {
            raiseAt(ErrorCode::DomainRange, index);
        }
        return number;
    }

    [[nodiscard]] std::size_t end() const { return index; }

private:
    [[nodiscard]] char here() const { return characterAt(line, index); }
    [[nodiscard]] bool at(TokenClass mark) const { return here() == markCharacter(mark); }
    [[nodiscard]] bool digitAt(std::size_t place) const { return digitValue(characterAt(line, place)) < literal.base; }
    [[nodiscard]] bool digitHere() const { return digitAt(index); }

    [[nodiscard]] bool exponentMarkHere() const {
        return literal.base < firstBaseWithDigitE ? tokenLength(TokenClass::ExponentMark, line, index) != 0
                                                  : at(TokenClass::ExponentMark);
    }

    void scanDigits() {
        while (digitHere()) {
            takeDigit();
            if (at(TokenClass::GroupMark)) {
                if (!digitAt(index + 1)) {
                    raiseAt(ErrorCode::MisplacedGroupMark, index);
                }
                ++index;
            }
        }
    }

    void takeDigit() {
        const std::uint32_t digit = digitValue(here());
        literal.complete = literal.complete && literal.head <= (UINT64_MAX - digit) / literal.base;
        if (literal.complete) {
            literal.head = literal.head * literal.base + digit;
        }
        ++literal.count;
        ++index;
    }

    void scanFraction() {
        if (at(TokenClass::GroupMark)) {
            raiseAt(ErrorCode::MisplacedGroupMark, index);
        }
        const std::int64_t wholeDigits = literal.count;
        scanDigits();
        if (literal.count == 0) {
            raiseAt(ErrorCode::Incomplete, index);
        }
        if (at(TokenClass::DecimalMark)) {
            raiseAt(ErrorCode::InvalidFormat, index);
        }
        literal.exponent = wholeDigits - literal.count;
    }

    std::int64_t scanExponent() {
        const Sign sign = readSign(line, index, Blanks::Keep);
        index += sign.length;
        const bool wrongDigit = prefixed ? isNameCharacter(here()) : isDecimalDigit(here());
        if (!digitHere() && !wrongDigit) {
            raiseAt(ErrorCode::MissingExponent, index);
        }
        std::int64_t exponent = 0;
        for (; digitHere(); ++index) {
            exponent = exponent < hugeExponent / 64 ? exponent * literal.base + digitValue(here()) : hugeExponent;
        }
        return sign.factor * exponent;
    }

    void checkEnd() const {
        if (at(TokenClass::GroupMark)) {
            raiseAt(ErrorCode::MisplacedGroupMark, index);
        }
        if (isNameCharacter(here()) && (prefixed || !keywordAt(line, index))) {
            raiseAt(ErrorCode::InvalidDigit, index + 1);
        }
    }

    std::string_view line;
    std::size_t index;
    bool prefixed = false;
    LiteralDigits literal;
};

}  // namespace

std::size_t readNumber(std::string_view line, std::size_t index, Real& number) {
    // Every literal begins with a decimal digit or the decimal mark; most places where one is looked for have neither.
    if (!isDecimalDigit(characterAt(line, index)) &&
        characterAt(line, index) != markCharacter(TokenClass::DecimalMark)) {
        return 0;
    }
    Scanner scanner(line, index);
    if (!scanner.begins()) {
        return 0;
    }
    number = scanner.scan();
    return scanner.end() - index;
}

}  // namespace calquo
