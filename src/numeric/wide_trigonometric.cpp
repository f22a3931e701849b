// Tables and series of the circular and hyperbolic functions.
#include "numeric/wide_trigonometric.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "numeric/wide_logarithm.h"
#include "numeric/wide_series.h"

namespace calquo {
namespace {

// Numbers up to 1 are held in units of 2^-127, fractions of series in units of 2^-128.
constexpr UInt128 one = {std::uint64_t{1} << 63, 0};

/// product of a number in units of 2^-127 and another one.
constexpr UInt128 timesUnits(UInt128 a, UInt128 b) { return shiftLeft(multiplyHigh(a, b), 1); }

constexpr int seriesTerms = 9;
using Coefficients = std::array<UInt128, seriesTerms + 1>;

/// 1/3!, 1/5!, ... and 1/2!, 1/4!, ... and 1/3, 1/5, ..., from the first row on; row 0 is not used.
constexpr Coefficients oddFactorials = [] {
    Coefficients rows;
    UInt128 term = ~UInt128{};
    for (std::uint32_t n = 1; n <= seriesTerms; ++n) {
        divideInPlace(term, 2 * n * (2 * n + 1));
        rows[n] = term;
    }
    return rows;
}();
constexpr Coefficients evenFactorials = [] {
    Coefficients rows;
    UInt128 term = ~UInt128{};
    for (std::uint32_t n = 1; n <= seriesTerms; ++n) {
        divideInPlace(term, (2 * n - 1) * 2 * n);
        rows[n] = term;
    }
    return rows;
}();
constexpr Coefficients oddNumbers = [] {
    Coefficients rows;
    for (std::uint32_t n = 1; n <= seriesTerms; ++n) {
        rows[n] = fractionOf(1, 2 * n + 1);
    }
    return rows;
}();

/// From this term on 64 bits are precise enough: the factor before it is at most 2^-56.
constexpr int firstShortTerm = 4;

enum class Signs { Alternating, Same };

/// c1 q -+ c2 q^2 + c3 q^3 ... for a fraction q of at most 2^-14.
template <Signs signs>
UInt128 series(const Coefficients& coefficients, int terms, UInt128 q) {
    std::uint64_t shortSum = coefficients[static_cast<std::size_t>(terms)].high;
    for (int n = terms - 1; n >= firstShortTerm; --n) {
        const std::uint64_t next = multiply(q.high, shortSum).high;
        const std::uint64_t coefficient = coefficients[static_cast<std::size_t>(n)].high;
        shortSum = signs == Signs::Same ? coefficient + next : coefficient - next;
    }
    UInt128 sum = {shortSum, 0};
    for (int n = firstShortTerm - 1; n >= 1; --n) {
        const UInt128 next = multiplyHigh(q, sum);
        const UInt128 coefficient = coefficients[static_cast<std::size_t>(n)];
        sum = signs == Signs::Same ? coefficient + next : coefficient - next;
    }
    return multiplyHigh(q, sum);
}

/// How many terms of the series of sine and cosine, and of the arc tangent, count.
constexpr int factorialTerms = 7;
constexpr int arcTangentTerms = seriesTerms;

/// a times 1 - deficit, or 1 + excess.
WideFloat lessBy(const WideFloat& a, UInt128 deficit) {
    return multiply(a, normalized(one - shiftRight(deficit, 1), -127));
}
WideFloat moreBy(const WideFloat& a, UInt128 excess) {
    return multiply(a, normalized(one + shiftRight(excess, 1), -127));
}

struct Point {
    UInt128 sine;
    UInt128 cosine;
};

constexpr std::array<Point, 102> computePoints() {
    // Of 1/128, by their series.
    Point step = {{}, one};
    UInt128 term = one;
    for (std::uint32_t n = 1; n < 20; ++n) {
        term = shiftRight(term, 7);
        divideInPlace(term, n);
        UInt128& sum = n % 2 != 0 ? step.sine : step.cosine;
        sum = n % 4 < 2 ? sum + term : sum - term;
    }
    std::array<Point, 102> rows;
    rows[0] = {{}, one};
    for (std::size_t j = 1; j < rows.size(); ++j) {
        const Point& last = rows[j - 1];
        rows[j].sine = timesUnits(last.sine, step.cosine) + timesUnits(last.cosine, step.sine);
        rows[j].cosine = timesUnits(last.cosine, step.cosine) - timesUnits(last.sine, step.sine);
    }
    return rows;
}

/// Sine and cosine of j/128 up to pi/4 and one more, in units of 2^-127.
constexpr std::array<Point, 102> points = computePoints();

/// atan(j/64), a fraction.
constexpr std::uint32_t arcTangentSteps = 64;
constexpr std::array<UInt128, arcTangentSteps + 1> arcTangents = [] {
    std::array<UInt128, arcTangentSteps + 1> rows;
    for (std::uint32_t j = 0; j < arcTangentSteps; ++j) {
        // The angle between two rows has the tangent (1/64) / (1 + j/64 (j + 1)/64).
        const UInt128 tangent = fractionOf(arcTangentSteps, arcTangentSteps * arcTangentSteps + j * (j + 1));
        const UInt128 square = multiplyHigh(tangent, tangent);
        UInt128 power = tangent;
        UInt128 angle = tangent;
        for (std::uint32_t n = 3; n < 24; n += 2) {
            power = multiplyHigh(power, square);
            UInt128 term = power;
            divideInPlace(term, n);
            angle = n % 4 == 3 ? angle - term : angle + term;
        }
        rows[j + 1] = rows[j] + angle;
    }
    return rows;
}();

/// Sine and cosine of an angle from 0 to pi/4.
SineCosine ofAngle(const WideFloat& angle) {
    const UInt128 fraction = asFraction(angle);
    const std::uint64_t j = fraction.high >> (64 - 7);
    const UInt128 s = {fraction.high & ~std::uint64_t{0} >> 7, fraction.low};
    const UInt128 q = multiplyHigh(s, s);
    const UInt128 sineDeficit = series<Signs::Alternating>(oddFactorials, factorialTerms, q);
    const UInt128 cosineDeficit = series<Signs::Alternating>(evenFactorials, factorialTerms, q);
    if (j == 0) {
        return {lessBy(angle, sineDeficit), normalized(one - shiftRight(cosineDeficit, 1), -127)};
    }
    const Point& point = points[static_cast<std::size_t>(j)];
    const UInt128 sine = s - multiplyHigh(s, sineDeficit);
    const UInt128 ofSum = point.sine - multiplyHigh(point.sine, cosineDeficit) + multiplyHigh(point.cosine, sine);
    const UInt128 cosineOfSum =
        point.cosine - multiplyHigh(point.cosine, cosineDeficit) - multiplyHigh(point.sine, sine);
    return {normalized(ofSum, -127), normalized(cosineOfSum, -127)};
}

/// The angle of a point whose coordinates are above 0, y not above x.
SignedWide angleBelowDiagonal(const SignedWide& y, const SignedWide& x) {
    const int distance = y.magnitude.exponent - x.magnitude.exponent;
    std::uint32_t j = 0;
    if (distance > -8) {
        const Real ratio = static_cast<Real>(y.magnitude.mantissa.high) / static_cast<Real>(x.magnitude.mantissa.high);
        j = static_cast<std::uint32_t>(std::ldexp(ratio, distance) * arcTangentSteps + 0.5L);
    }
    SignedWide tangent;
    if (j == 0) {
        tangent = y / x;
    } else {
        const auto row = static_cast<Real>(j);
        tangent = (scaled(y, 6) - x * row) / (scaled(x, 6) + y * row);
    }
    SignedWide angle;
    if (!tangent.zero) {
        const UInt128 u = asFraction(tangent.magnitude);
        const UInt128 deficit = series<Signs::Alternating>(oddNumbers, arcTangentTerms, multiplyHigh(u, u));
        angle = {lessBy(tangent.magnitude, deficit), tangent.negative};
    }
    return j == 0 ? angle : asWide(arcTangents[j]) + angle;
}

bool below(const SignedWide& a, const SignedWide& b) { return signOf(a - b) < 0; }

}  // namespace

SineCosine wideSineCosine(const ReducedAngle& reduced) {
    SineCosine result = {reduced.angle, SignedWide(1)};
    if (!reduced.angle.zero) {
        result = ofAngle(reduced.angle.magnitude);
        result.sine.negative = reduced.angle.negative;
    }
    switch (reduced.quadrant) {
        case 1:
            return {result.cosine, -result.sine};
        case 2:
            return {-result.sine, -result.cosine};
        case 3:
            return {-result.cosine, result.sine};
        default:
            return result;
    }
}

SineCosine wideHyperbolic(Real x) {
    if (x == 0) {
        return {x, 1};
    }
    const SignedWide wide(x);
    if (std::fabs(x) < 0x1p-7L) {
        const UInt128 s = asFraction(wide.magnitude);
        const UInt128 q = multiplyHigh(s, s);
        const UInt128 cosineExcess = series<Signs::Same>(evenFactorials, factorialTerms, q);
        return {{moreBy(wide.magnitude, series<Signs::Same>(oddFactorials, factorialTerms, q)), wide.negative},
                normalized(one + shiftRight(cosineExcess, 1), -127)};
    }
    const SignedWide rising = wideExponential(absolute(wide));
    const SignedWide falling = reciprocal(rising.magnitude);
    SineCosine result = {scaled(rising - falling, -1), scaled(rising + falling, -1)};
    result.sine.negative = wide.negative;
    return result;
}

SignedWide wideArcTangent(const SignedWide& y, const SignedWide& x) {
    if (y.zero) {
        return signOf(x) < 0 ? widePi : 0;
    }
    const SignedWide height = absolute(y);
    const SignedWide width = absolute(x);
    SignedWide angle;
    if (width.zero) {
        angle = wideHalfPi;
    } else if (below(width, height)) {
        angle = wideHalfPi - angleBelowDiagonal(width, height);
    } else {
        angle = angleBelowDiagonal(height, width);
    }
    if (signOf(x) < 0) {
        angle = widePi - angle;
    }
    angle.negative = y.negative;
    return angle;
}

SignedWide wideInverseSine(const SignedWide& x) {
    const SignedWide size = absolute(x);
    const SignedWide square = size * size;
    const SignedWide root = squareRoot(1 + square);
    const bool small = size.zero || size.magnitude.exponent + 128 < -4;
    SignedWide result = small ? wideLogarithmOfOnePlus(size + square / (1 + root)) : wideLogarithm(size + root);
    result.negative = x.negative;
    return result;
}

SignedWide wideInverseCosine(const SignedWide& excess) {
    return wideLogarithmOfOnePlus(excess + squareRoot(excess * (2 + excess)));
}

}  // namespace calquo
