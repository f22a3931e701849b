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
    /// Reads the base prefix; digits must follow it.
    Scanner(std::string_view line, std::size_t start) : line_(line), index_(start) {
        const BasePrefix prefix = readBasePrefix(line_, index_);
        literal_.base = prefix.base;
        prefixed_ = prefix.length != 0;
        index_ += prefix.length;
        if (prefixed_ && !digitHere() && !at(TokenClass::DecimalMark)) {
            if (isNameCharacter(here())) {
                raiseAt(ErrorCode::InvalidDigit, index_ + 1);
            }
            raiseAt(ErrorCode::Incomplete, index_);
        }
    }

    Real scan() {
        const std::size_t start = index_;
        scanDigits();
        if (at(TokenClass::DecimalMark)) {
            ++index_;
            scanFraction();
        }
        literal_.text = line_.substr(start, index_ - start);
        if (at(TokenClass::ExponentMark)) {
            ++index_;
            literal_.exponent += scanExponent();
        }
        checkEnd();
        const Real number = literalValue(literal_);
        if (number > largestFinite) {
            raiseAt(ErrorCode::DomainRange, index_);
        }
        return number;
    }

    [[nodiscard]] std::size_t end() const { return index_; }

private:
    [[nodiscard]] char here() const { return characterAt(line_, index_); }
    /// Where "e" is a digit it has been read as one.
    [[nodiscard]] bool at(TokenClass mark) const { return tokenLength(mark, line_, index_) != 0; }
    [[nodiscard]] bool digitAt(std::size_t index) const {
        return digitValue(characterAt(line_, index)) < literal_.base;
    }
    [[nodiscard]] bool digitHere() const { return digitAt(index_); }

    void scanDigits() {
        while (digitHere()) {
            takeDigit();
            if (at(TokenClass::GroupMark)) {
                if (!digitAt(index_ + 1)) {
                    raiseAt(ErrorCode::MisplacedGroupMark, index_);
                }
                ++index_;
            }
        }
    }

    void takeDigit() {
        const std::uint32_t digit = digitValue(here());
        literal_.significandFits =
            literal_.significandFits &&
            !__builtin_mul_overflow(literal_.significand, literal_.base, &literal_.significand) &&
            !__builtin_add_overflow(literal_.significand, digit, &literal_.significand);
        ++literal_.count;
        ++index_;
    }

    void scanFraction() {
        if (at(TokenClass::GroupMark)) {
            raiseAt(ErrorCode::MisplacedGroupMark, index_);
        }
        const std::int64_t wholeDigits = literal_.count;
        scanDigits();
        if (literal_.count == 0) {
            raiseAt(ErrorCode::Incomplete, index_);
        }
        if (at(TokenClass::DecimalMark)) {
            raiseAt(ErrorCode::InvalidFormat, index_);
        }
        literal_.exponent = wholeDigits - literal_.count;
    }

    std::int64_t scanExponent() {
        const Sign sign = readSign(line_, index_, Blanks::Keep);
        index_ += sign.length;
        // After a base prefix a letter is a digit in any case, if a wrong one.
        if (!digitHere() && !(prefixed_ && isNameCharacter(here()))) {
            raiseAt(ErrorCode::MissingExponent, index_);
        }
        std::int64_t exponent = 0;
        for (; digitHere(); ++index_) {
            exponent = exponent < hugeExponent / 64 ? exponent * literal_.base + digitValue(here()) : hugeExponent;
        }
        return sign.factor * exponent;
    }

    void checkEnd() const {
        if (at(TokenClass::GroupMark)) {
            raiseAt(ErrorCode::MisplacedGroupMark, index_);
        }
        if (isNameCharacter(here()) && (prefixed_ || !keywordAt(line_, index_))) {
            raiseAt(ErrorCode::InvalidDigit, index_ + 1);
        }
    }

    std::string_view line_;
    std::size_t index_;
    bool prefixed_ = false;
    LiteralDigits literal_;
};

}  // namespace

std::size_t readNumber(std::string_view line, std::size_t index, Real& number) {
    // Every literal begins with a decimal digit or the decimal mark; most places where one is looked for have neither.
    if (!isDecimalDigit(characterAt(line, index)) &&
        characterAt(line, index) != markCharacter(TokenClass::DecimalMark)) {
        return 0;
    }
    Scanner scanner(line, index);
    number = scanner.scan();
    return scanner.end() - index;
}

}  // namespace calquo
