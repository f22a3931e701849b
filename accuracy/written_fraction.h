// Holds a written fraction against its neighbours, in exact fractions.
#pragma once

#include <gmpxx.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

#include "format/numeric_format.h"
#include "numeral.h"

namespace calquo {

/// Whether no fraction with a denominator of at most `limit` is closer to x.
///
/// Method: p/q stands in the Farey sequence of that order between a/b with p b - q a = 1 and c/d with q c - p d = 1,
/// where b and d are the largest such denominators (Hardy and Wright, An Introduction to the Theory of Numbers, chapter
/// 3); it is closest when neither neighbour is closer.
inline bool isClosest(const mpq_class& fraction, const mpq_class& x, const mpz_class& limit) {
    const mpz_class& p = fraction.get_num();
    const mpz_class& q = fraction.get_den();
    mpz_class inverse = 0;
    if (q > 1) {
        mpz_invert(inverse.get_mpz_t(), p.get_mpz_t(), q.get_mpz_t());
    }
    // The largest number up to the limit that leaves the same remainder on division by q.
    const auto largestLike = [&](const mpz_class& remainder) {
        mpz_class steps;
        mpz_fdiv_q(steps.get_mpz_t(), mpz_class(limit - remainder).get_mpz_t(), q.get_mpz_t());
        return mpz_class(remainder + steps * q);
    };
    const mpz_class b = largestLike(inverse);
    const mpz_class d = largestLike(-inverse);
    const mpq_class before(mpz_class((p * b - 1) / q), b);
    const mpq_class after(mpz_class((p * d + 1) / q), d);
    const mpq_class distance = abs(x - fraction);
    return q <= limit && distance <= abs(x - before) && distance <= abs(x - after);
}

/// Without a sign. Throws std::runtime_error for anything else.
inline mpz_class wholeNumber(std::string_view text, std::uint32_t base) {
    const Numeral numeral = numeralFrom(text);
    const bool hasSign = text.starts_with('-') || text.starts_with('+');
    if (hasSign || numeral.base != base || !numeral.fraction.empty() || numeral.exponent != 0) {
        throw std::runtime_error("no whole number in base " + std::to_string(base) + ": " + std::string(text));
    }
    return mpz_class(numeral.whole, static_cast<int>(base));
}

/// Whether a text written for x under a word of one of the kinds that write fractions is the closest one, in lowest
/// terms.
inline bool isClosestFraction(std::string_view text, mpfr_srcptr x, NumericFormat word, std::uint32_t base) {
    mpq_class exact;
    mpfr_get_q(exact.get_mpq_t(), x);
    mpz_class limit;
    mpz_ui_pow_ui(limit.get_mpz_t(), base, getField(word, field::digits));
    // The search ends at 127 bits.
    limit = std::min(mpz_class(std::max(mpz_class(limit - 1), mpz_class(1))), mpz_class((mpz_class(1) << 127) - 1));

    const bool isNegative = text.starts_with('-');
    text = text.substr(isNegative || text.starts_with('+') ? 1 : 0);
    const std::size_t blank = text.find(' ');
    const std::size_t slash = text.find('/');
    if (blank != std::string_view::npos && slash == std::string_view::npos) {
        return false;
    }
    mpz_class whole = 0, numerator = 0, denominator = 1;
    if (slash == std::string_view::npos || blank != std::string_view::npos) {
        whole = wholeNumber(text.substr(0, blank), base);
    }
    if (slash != std::string_view::npos) {
        const std::size_t start = blank == std::string_view::npos ? 0 : blank + 1;
        numerator = wholeNumber(text.substr(start, slash - start), base);
        denominator = wholeNumber(text.substr(slash + 1), base);
    }
    if (denominator == 0 || gcd(numerator, denominator) != 1 ||
        (blank != std::string_view::npos && numerator >= denominator)) {
        return false;
    }
    mpq_class written(mpz_class(whole * denominator + numerator), denominator);
    const bool hasSign = isNegative == (exact < 0 && written != 0);
    return hasSign && isClosest(written, abs(exact), limit);
}

}  // namespace calquo
