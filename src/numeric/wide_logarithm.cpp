// Table-driven logarithm and exponential in 128-bit fixed point.
#include "numeric/wide_logarithm.h"

#include <array>
#include <cmath>

#include "numeric/wide_series.h"
#include "values/extended.h"

namespace calquo {
namespace {

// Fractions of 1 are held as multiples of 2^-128; sums that may reach 2^14 as multiples of 2^-112, in two's complement.
constexpr int sumFractionBits = 112;

/// atanh z = z + z^3/3 + z^5/5 + ... for a fraction z of at most 1/3.
constexpr UInt128 inverseHyperbolicTangent(UInt128 z) {
    const UInt128 square = multiplyHigh(z, z);
    UInt128 sum = z;
    UInt128 odd = z;
    for (std::uint32_t n = 3; n < 85; n += 2) {
        odd = multiplyHigh(odd, square);
        UInt128 term = odd;
        divideInPlace(term, n);
        sum = sum + term;
    }
    return sum;
}

/// |ln(a / b)| as a sum, for a/b between 1/2 and 2: 2 atanh(|a - b| / (a + b)).
constexpr UInt128 logarithmOfRatio(std::uint32_t a, std::uint32_t b) {
    return shiftRight(inverseHyperbolicTangent(fractionOf(a > b ? a - b : b - a, a + b)), 128 - sumFractionBits - 1);
}

constexpr UInt128 lnTwo = logarithmOfRatio(2, 1);

constexpr int tableSize = 128;
/// The short reciprocals c are multiples of 1/512.
constexpr std::uint32_t reciprocalUnit = 512;

struct Reciprocal {
    std::uint32_t numerator = 0;  ///< c times 512
    UInt128 logarithm;            ///< |ln c|; c below 1 for the lower half of the table, above 1 for the upper
};

/// Row i serves the mantissas whose leading bits are 1 + i/128; those from 3/2 on are taken as half of it.
constexpr std::array<Reciprocal, tableSize> reciprocals = [] {
    std::array<Reciprocal, tableSize> rows;
    for (std::uint32_t i = 0; i < tableSize; ++i) {
        // Middle of the interval times 256.
        const std::uint32_t middle = 2 * tableSize + 2 * i + 1;
        const std::uint32_t unit = (i < tableSize / 2 ? 256 : 512) * reciprocalUnit;
        rows[i].numerator = (2 * unit + middle) / (2 * middle);
        if (i == 0 || i == tableSize - 1) {
            rows[i].numerator = reciprocalUnit;
        }
        rows[i].logarithm = logarithmOfRatio(rows[i].numerator, reciprocalUnit);
    }
    return rows;
}();

/// 1/n as a fraction, for n from 2 on; the first two rows are not used.
constexpr int seriesTerms = 17;
constexpr std::array<UInt128, seriesTerms + 1> inverses = [] {
    std::array<UInt128, seriesTerms + 1> rows;
    for (std::uint32_t n = 2; n <= seriesTerms; ++n) {
        rows[n] = fractionOf(1, n);
    }
    return rows;
}();

/// 1/n! as a fraction, for n from 2 on.
constexpr int exponentialTerms = 13;
constexpr std::array<UInt128, exponentialTerms + 1> inverseFactorials = [] {
    std::array<UInt128, exponentialTerms + 1> rows;
    rows[2] = fractionOf(1, 2);
    for (std::uint32_t n = 3; n <= exponentialTerms; ++n) {
        rows[n] = rows[n - 1];
        divideInPlace(rows[n], n);
    }
    return rows;
}();

/// From this term on 64 bits are precise enough: the factor before it is below 2^-56.
constexpr int firstShortTerm = 9;

/// (1 - ln(1 + t)/t) for t = u or -u, u a fraction below 2^-7: u/2 - u^2/3 + ... or minus (u/2 + u^2/3 + ...).
UInt128 logarithmDeficit(UInt128 u, bool negative) {
    std::uint64_t shortSum = inverses[seriesTerms].high;
    for (int n = seriesTerms - 1; n >= firstShortTerm; --n) {
        const std::uint64_t next = multiply(u.high, shortSum).high;
        shortSum =
            negative ? inverses[static_cast<unsigned>(n)].high + next : inverses[static_cast<unsigned>(n)].high - next;
    }
    UInt128 sum = {shortSum, 0};
    for (int n = firstShortTerm - 1; n >= 2; --n) {
        const UInt128 next = multiplyHigh(u, sum);
        sum = negative ? inverses[static_cast<unsigned>(n)] + next : inverses[static_cast<unsigned>(n)] - next;
    }
    return multiplyHigh(u, sum);
}

/// e^s - 1 for a fraction s below 2^-7.
UInt128 exponentialExcess(UInt128 s) {
    std::uint64_t shortSum = inverseFactorials[exponentialTerms].high;
    for (int n = exponentialTerms - 1; n >= firstShortTerm; --n) {
        shortSum = inverseFactorials[static_cast<unsigned>(n)].high + multiply(s.high, shortSum).high;
    }
    UInt128 sum = {shortSum, 0};
    for (int n = firstShortTerm - 1; n >= 2; --n) {
        sum = inverseFactorials[static_cast<unsigned>(n)] + multiplyHigh(s, sum);
    }
    return s + multiplyHigh(s, multiplyHigh(s, sum));
}

constexpr std::array<UInt128, 90> computeExponentials() {
    constexpr UInt128 one = {std::uint64_t{1} << 63, 0};
    // e^(1/128), by the series in units of 2^-127.
    UInt128 term = shiftRight(one, 7);
    UInt128 step = one + term;
    for (std::uint32_t n = 2; n < 20; ++n) {
        term = shiftRight(term, 7);
        divideInPlace(term, n);
        step = step + term;
    }
    std::array<UInt128, 90> rows;
    rows[0] = one;
    for (std::size_t j = 1; j < rows.size(); ++j) {
        rows[j] = shiftLeft(multiplyHigh(rows[j - 1], step), 1);
    }
    return rows;
}

/// e^(j/128) in units of 2^-127, for every j with j/128 below ln 2 and one more.
constexpr std::array<UInt128, 90> exponentials = computeExponentials();

/// a n for a sum a and a count of at most 15 bits, in two's complement.
UInt128 timesCount(UInt128 a, int count) {
    const auto n = static_cast<std::uint64_t>(count < 0 ? -count : count);
    const UInt128 product = UInt128{a.high * n, 0} + multiply(a.low, n);
    return count < 0 ? UInt128{} - product : product;
}

/// Up to here the functions that vanish at 0 are summed as series, for the sake of their relative precision.
constexpr Real nextToZero = 0x1p-7L;

/// ln 2 with all its bits, from atanh(1/3).
constexpr WideFloat wideLnTwo = normalized(inverseHyperbolicTangent(fractionOf(1, 3)), -127);

bool negativeSum(UInt128 sum) { return sum.high >> 63 != 0; }

/// The number as a sum in two's complement.
UInt128 toSum(const SignedWide& a) {
    if (a.zero) {
        return {};
    }
    const int shift = -(a.magnitude.exponent + sumFractionBits);
    const UInt128 magnitude = shiftRight(a.magnitude.mantissa, shift);
    return a.negative ? UInt128{} - magnitude : magnitude;
}

SignedWide fromSum(UInt128 sum) {
    const bool negative = negativeSum(sum);
    return {normalized(negative ? UInt128{} - sum : sum, -sumFractionBits), negative};
}

}  // namespace

SignedWide wideLogarithm(Real x) {
    ExtendedBits bits = bitsOf(x);
    const int shift = std::countl_zero(bits.mantissa);
    const std::uint64_t mantissa = bits.mantissa << shift;
    int k = bits.exponent() - shift + 63;
    const Reciprocal& row = reciprocals[mantissa >> 56 & (tableSize - 1)];
    // m c in units of 2^-72, with m in [3/4, 3/2).
    UInt128 product = multiply(mantissa, row.numerator);
    UInt128 one = {std::uint64_t{1} << 8, 0};
    if (mantissa >> 62 == 3) {
        ++k;
        one = {std::uint64_t{1} << 9, 0};
    }
    const int unitBits = mantissa >> 62 == 3 ? 73 : 72;
    const bool below = product < one;
    const UInt128 t = below ? one - product : product - one;
    if (k == 0 && row.numerator == reciprocalUnit) {
        if (t == UInt128{}) {
            return {};
        }
        const UInt128 u = shiftLeft(t, 128 - unitBits);
        // ln(1 + t)/t in units of 2^-127.
        constexpr UInt128 unit = {std::uint64_t{1} << 63, 0};
        const UInt128 deficit = shiftRight(logarithmDeficit(u, below), 1);
        const UInt128 ratio = below ? unit + deficit : unit - deficit;
        return {multiply(normalized(t, -unitBits), normalized(ratio, -127)), below};
    }
    const UInt128 u = shiftLeft(t, 128 - unitBits);
    const UInt128 excess = multiplyHigh(u, logarithmDeficit(u, below));
    const UInt128 series = shiftRight(below ? u + excess : u - excess, 128 - sumFractionBits);
    UInt128 sum = timesCount(lnTwo, k);
    // - ln c is positive for c below 1.
    sum = row.numerator < reciprocalUnit ? sum + row.logarithm : sum - row.logarithm;
    sum = below ? sum - series : sum + series;
    return fromSum(sum);
}

WideFloat wideExponential(const SignedWide& a) {
    const UInt128 sum = toSum(a);
    constexpr Real logTwoOfE = 1.44269504088896340735992468100189214L;
    int k = static_cast<int>(std::floor(toReal(a) * logTwoOfE));
    UInt128 rest = sum - timesCount(lnTwo, k);
    // Next to a multiple of ln 2 the rounding of a may have put k on either side.
    if (negativeSum(rest)) {
        --k;
        rest = rest + lnTwo;
    } else if (rest >= lnTwo) {
        ++k;
        rest = rest - lnTwo;
    }
    const std::uint64_t j = rest.high >> (sumFractionBits - 64 - 7);
    const UInt128 s = shiftLeft(rest - UInt128{j << (sumFractionBits - 64 - 7), 0}, 128 - sumFractionBits);
    const UInt128 row = exponentials[static_cast<std::size_t>(j)];
    return normalized(row + multiplyHigh(row, exponentialExcess(s)), k - 127);
}

SignedWide wideLogarithm(const SignedWide& a) {
    // The mantissa's upper half as a number from 1 to 2, the lower half as what it grows by, and a power of two.
    const UInt128 mantissa = a.magnitude.mantissa;
    const Real leading = static_cast<Real>(mantissa.high) * 0x1p-63L;
    const Real growth = static_cast<Real>(mantissa.low) * 0x1p-64L / static_cast<Real>(mantissa.high);
    return wideLogarithm(leading) + (growth - growth * growth / 2) +
           wideLnTwo * static_cast<Real>(a.magnitude.exponent + 127);
}

SignedWide wideLogarithmOfOnePlus(const SignedWide& a) {
    if (std::fabs(toReal(a)) > nextToZero) {
        return wideLogarithm(1 + a);
    }
    // 2 atanh z for z = a / (2 + a), by the series z + z^3/3 + ...
    const SignedWide z = a / (2 + a);
    const SignedWide square = z * z;
    SignedWide sum = asWide(inverses[seriesTerms]);
    for (unsigned n = seriesTerms - 2; n >= 3; n -= 2) {
        sum = asWide(inverses[n]) + square * sum;
    }
    return 2 * z * (1 + square * sum);
}

SignedWide steepExponential(const SignedWide& a) {
    const int k = static_cast<int>(std::floor(toReal(a) / toReal(wideLnTwo)));
    WideFloat result = wideExponential(a - wideLnTwo * static_cast<Real>(k));
    result.exponent += k;
    return result;
}

SignedWide wideExponentialMinusOne(const SignedWide& a) {
    const Real estimate = toReal(a);
    if (std::fabs(estimate) > nextToZero) {
        return estimate < -0x1p28L ? -1 : steepExponential(a) - 1;
    }
    SignedWide sum = asWide(inverseFactorials[exponentialTerms]);
    for (unsigned n = exponentialTerms - 1; n >= 2; --n) {
        sum = asWide(inverseFactorials[n]) + a * sum;
    }
    return a * (1 + a * sum);
}

}  // namespace calquo
