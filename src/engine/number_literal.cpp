// The scanner of numeric literals.
#include "engine/number_literal.h"

#include <algorithm>

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
            const std::int64_t wholeDigits = literal_.count;
            scanDigits();
            literal_.exponent = wholeDigits - literal_.count;
        }
        literal_.text = line_.substr(start, index_ - start);
        checkDigits();
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
    [[nodiscard]] bool digitHere() const { return digitValue(here()) < literal_.base; }

    /// Takes digits, and the group marks among and around them.
    void scanDigits() {
        do {
            while (digitHere()) {
                takeDigit();
            }
        } while (takeGroupMark());
    }

    bool takeGroupMark() {
        if (!at(TokenClass::GroupMark)) {
            return false;
        }
        firstGroupMark_ = std::min(firstGroupMark_, index_);
        ++index_;
        return true;
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

    void checkDigits() const {
        if (firstGroupMark_ != noGroupMark && !marksMakeGroups()) {
            raiseAt(ErrorCode::MisplacedGroupMark, firstGroupMark_);
        }
        if (literal_.count == 0) {
            raiseAt(ErrorCode::Incomplete, index_);
        }
        if (at(TokenClass::DecimalMark)) {
            raiseAt(ErrorCode::InvalidFormat, index_);
        }
    }

    /// Whether the groups, counted from the decimal mark outwards, all have one length that the table allows, but for
    /// the outermost, which may be shorter. A part without group marks may stand beside one with them.
    [[nodiscard]] bool marksMakeGroups() const {
        const std::string_view text = literal_.text;
        const char groupMark = markCharacter(TokenClass::GroupMark);
        const std::size_t decimalMark = std::min(text.find(markCharacter(TokenClass::DecimalMark)), text.size());
        const auto distance = [&](std::size_t index) {
            return index < decimalMark ? decimalMark - index : index - decimalMark;
        };
        const std::size_t lastInWhole = text.substr(0, decimalMark).rfind(groupMark);
        const std::size_t firstInFraction = text.find(groupMark, decimalMark);
        const bool groupsWhole = lastInWhole != std::string_view::npos;
        const std::size_t step = distance(groupsWhole ? lastInWhole : firstInFraction);
        const auto areGroups = [&](std::size_t begin, std::size_t end) {
            for (std::size_t index = begin; index < end; ++index) {
                if ((text[index] == groupMark) != (distance(index) % step == 0)) {
                    return false;
                }
            }
            return true;
        };
        return characterTable.allowsGroup(step - 1, prefixed_) && text.back() != groupMark &&
               (!groupsWhole || (text.front() != '0' && areGroups(0, decimalMark))) &&
               (firstInFraction == std::string_view::npos || areGroups(decimalMark + 1, text.size()));
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

    void checkEnd() {
        if (takeGroupMark()) {
            raiseAt(ErrorCode::MisplacedGroupMark, firstGroupMark_);
        }
        // After the exponent an "e" begins no name either.
        if (isNameCharacter(here()) && (prefixed_ || at(TokenClass::ExponentMark) || !keywordAt(line_, index_))) {
            raiseAt(ErrorCode::InvalidDigit, index_ + 1);
        }
    }

    static constexpr std::size_t noGroupMark = std::string_view::npos;

    std::string_view line_;
    std::size_t index_;
    bool prefixed_ = false;
    std::size_t firstGroupMark_ = noGroupMark;
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
