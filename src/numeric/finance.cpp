// The argument reader of the finance functions, and the balance equation solved for each of its quantities.
#include "numeric/finance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "numeric/checks.h"
#include "values/errors.h"
#include "values/extended.h"

namespace calquo {
namespace {

constexpr Real day = 86400;
constexpr Real year = 31556952;
constexpr Real month = year / 12;

constexpr std::size_t paymentPeriodPosition = 5;
constexpr std::size_t timingPosition = 6;

using Arguments = std::array<Real, 7>;

/// Reads and checks the arguments of a call and fills in the defaults.
Arguments readArguments(std::span<const Value> given, std::optional<std::size_t> durationPosition,
                        std::size_t compoundingPosition) {
    Arguments numbers = {};
    numbers[paymentPeriodPosition] = month;
    numbers[compoundingPosition] = month;
    for (std::size_t position = 0; position < std::min(given.size(), numbers.size()); ++position) {
        const Value& argument = given[position];
        const std::int32_t place = argument.positions.literalEnd;
        requireReal(argument, CheckFlags::Report);
        const Real number = argument.re;
        if ((position == durationPosition || position == paymentPeriodPosition) && number < day) {
            raise(ErrorCode::AtLeastOneDay, place);
        }
        if (position == compoundingPosition && number < 0) {
            raise(ErrorCode::NegativeNotAllowed, place);
        }
        if (position == timingPosition && !(number == 0 || number == 1)) {
            raise(ErrorCode::InvalidArgument, place);
        }
        numbers[position] = number;
    }
    return numbers;
}

/// The answer as a value; 18 for what is none.
Value finite(Real answer) {
    if (!std::isfinite(answer)) {
        raise(ErrorCode::NoSolution);
    }
    return {answer};
}

Real signOf(Real x) { return x > 0 ? Real{1} : x < 0 ? Real{-1} : Real{0}; }

/// amount * factor, where an amount of 0 stays 0 however large the factor has grown.
Real scaled(Real amount, Real factor) { return amount == 0 ? 0 : amount * factor; }

/// ln(a / b) without loss where a and b lie close together; their difference is given, since it may be known better.
Real logarithmOfRatio(Real a, Real b, Real difference) {
    const Real ratio = a / b;
    if (ratio > 0.5L && ratio < 2) {
        return std::log1p(difference / b);
    }
    // A quotient beyond the range of numbers still has a logarithm.
    const bool beyond = signOf(a) * signOf(b) > 0 && (ratio == 0 || std::isinf(ratio));
    return beyond ? std::log(std::fabs(a)) - std::log(std::fabs(b)) : std::log(ratio);
}

// Everything below works with the growth x, the natural logarithm of what 1 becomes in one second: G = e^(xT),
// g = e^(xp). In it the compounding period has no part but in the two conversions.

/// The growth of a nominal annual rate; minus infinity for a rate that takes everything, a NaN beyond it.
Real growthOf(Real annualRate, Real compoundingPeriod) {
    const Real perPeriod = annualRate * compoundingPeriod / year;
    return annualRate / year * (perPeriod == 0 ? 1 : std::log1p(perPeriod) / perPeriod);
}

/// The nominal annual rate of a growth.
Real rateOf(Real growth, Real compoundingPeriod) {
    const Real perPeriod = growth * compoundingPeriod;
    return growth * year * (perPeriod == 0 ? 1 : std::expm1(perPeriod) / perPeriod);
}

/// When payments are made.
struct Schedule {
    Real duration;
    Real period;
    bool atStart;

    /// The same payments seen backwards in time.
    [[nodiscard]] Schedule reversed() const { return {duration, period, !atStart}; }
};

/// s: what payments of 1 have grown to at the end.
Real accumulated(const Schedule& schedule, Real growth) {
    const Real falling = -std::fabs(growth);
    const Real perPeriod = std::expm1(falling * schedule.period);
    if (perPeriod == 0) {
        return schedule.duration / schedule.period;
    }
    // (G - 1) / (g - 1) or, for a positive growth, the same over G / g.
    const Real ratio = std::expm1(falling * schedule.duration) / perPeriod;
    const Real shift =
        (growth > 0 ? schedule.duration - schedule.period : 0) + (schedule.atStart ? schedule.period : 0);
    return shift == 0 ? ratio : ratio * std::exp(growth * shift);
}

/// s / G: what payments of 1 are worth at the beginning.
Real discounted(const Schedule& schedule, Real growth) { return accumulated(schedule.reversed(), -growth); }

/// The zero of a function that has opposite signs at the two ends; low < high. Halves the interval until two
/// neighbouring numbers are left, by orders of magnitude first: some 100 evaluations at most.
template <typename Function>
Real zeroBetween(Real low, Real high, Function function) {
    const bool positiveAtHigh = function(high) > 0;
    if (low < 0 && high > 0) {
        const Real middle = function(0);
        if (middle == 0) {
            return 0;
        }
        ((middle > 0) == positiveAtHigh ? high : low) = 0;
    }
    // On one side of 0 now: search the magnitude.
    const Real side = high > 0 ? 1 : -1;
    Real near = high > 0 ? low : -high;
    Real far = high > 0 ? high : -low;
    const bool positiveAtFar = positiveAtHigh == (high > 0);
    near = std::max(near, far * 1e-1000L);
    while (true) {
        const Real middle = far > 2 * near ? std::sqrt(near) * std::sqrt(far) : near + (far - near) / 2;
        if (middle <= near || middle >= far) {
            return side * near;
        }
        ((function(side * middle) > 0) == positiveAtFar ? far : near) = middle;
    }
}

/// The balance with payments at the end of each period, as a function of the growth whose zero is sought:
/// f(x) = first e^(xT) + payment (e^(xT) - 1) / (e^(xp) - 1) - second.
///
/// f has two zeros at most. As a function of u = e^(xp) - 1, f / s is payment + first u - (second - first) A(u) with
/// A(u) = u / ((1 + u)^(T/p) - 1), which is convex for T > p, concave for T < p and constant for T = p: a straight line
/// meets such a curve twice at most, and between the two meetings lies the one place where their slopes agree.
struct Equation {
    Real first;
    Real second;
    Real payment;
    Real duration;
    Real period;

    /// Something of the sign of f(x) that does not overflow: f for x <= 0, f / G for x > 0. The constants to which the
    /// terms tend far from 0 are taken together, so that what remains beside them is not lost.
    [[nodiscard]] Real balance(Real x) const {
        if (x <= 0) {
            return scaled(first, std::exp(x * duration)) + scaled(payment, decaying(x, duration - period)) +
                   (payment - second);
        }
        return first + scaled(payment, decaying(-x, duration)) - scaled(second, std::exp(-x * duration));
    }

    /// The size of the terms that balance adds up.
    [[nodiscard]] Real scale(Real x) const {
        const Real fading = std::exp(-std::fabs(x) * duration);
        const Real payments = std::fabs(payment) * (1 + decaying(-std::fabs(x), duration));
        return std::fabs(first) * (x <= 0 ? fading : 1) + payments + std::fabs(second) * (x <= 0 ? 1 : fading);
    }

    /// The slope of f / s in u.
    [[nodiscard]] Real slope(Real x) const { return first - scaled(second - first, curveSlope(x)); }

private:
    /// e^(xp) (e^(xd) - 1) / (e^(xp) - 1) for x <= 0: what the payments of a span d amount to.
    [[nodiscard]] Real decaying(Real x, Real span) const {
        const Real perPeriod = std::expm1(x * period);
        if (perPeriod == 0) {
            return span / period;
        }
        return span >= 0 ? std::exp(x * period) * std::expm1(x * span) / perPeriod
                         : -std::exp(x * (period + span)) * std::expm1(-x * span) / perPeriod;
    }

    /// dA/du = A (w(xp) - w(xT)) / (x p e^(xp)) with w(z) = z / (1 - e^-z) = 1 + z/2 + z^2/12 - z^4/720 + ...
    [[nodiscard]] Real curveSlope(Real x) const {
        constexpr Real seriesLimit = 1e-3L;
        const Real p = x * period;
        const Real t = x * duration;
        if (std::max(std::fabs(p), std::fabs(t)) < seriesLimit) {
            const Real difference = (period - duration) * (0.5L + (p + t) / 12 - (p + t) * (p * p + t * t) / 720);
            const Real curve = p == 0 || t == 0 ? period / duration : std::expm1(p) / std::expm1(t);
            return curve * difference / (period * std::exp(p));
        }
        if (x < 0) {
            const Real shifted = std::exp(x * (duration - period));
            return std::expm1(p) / std::expm1(t) * (p / std::expm1(p) - t * shifted / std::expm1(t)) / p;
        }
        return std::exp(-t) * std::expm1(-p) / std::expm1(-t) * (t / std::expm1(-t) - p / std::expm1(-p)) / p;
    }
};

/// The growth nearest to 0 at which the balance holds; 18 if there is none.
Real solveGrowth(const Equation& equation) {
    // Beyond, even the slower of the two exponentials leaves the range of numbers.
    const Real reach = 10000 / std::min(equation.duration, equation.period);
    const auto balance = [&](Real x) { return equation.balance(x); };
    const auto slope = [&](Real x) { return equation.slope(x); };
    if (balance(0) == 0) {
        return 0;
    }
    const Real atLow = balance(-reach);
    const Real atHigh = balance(reach);
    if (signOf(atLow) * signOf(atHigh) < 0) {
        return zeroBetween(-reach, reach, balance);
    }
    // Two zeros or none: the balance lies on one side at both ends and may cross over between them.
    if (!(signOf(slope(-reach)) * signOf(slope(reach)) < 0)) {
        raise(ErrorCode::NoSolution);
    }
    const Real turn = zeroBetween(-reach, reach, slope);
    const Real atTurn = balance(turn);
    // Where the two zeros are one, rounding may leave the balance on either side of it.
    constexpr Real rounding = 16 * std::numeric_limits<Real>::epsilon();
    if (std::fabs(atTurn) <= rounding * equation.scale(turn)) {
        return turn;
    }
    if (!(signOf(atTurn) * signOf(atLow + atHigh) < 0)) {
        raise(ErrorCode::NoSolution);
    }
    const Real lower = zeroBetween(-reach, turn, balance);
    const Real upper = zeroBetween(turn, reach, balance);
    return std::fabs(lower) < std::fabs(upper) ? lower : upper;
}

}  // namespace

Value fv(std::span<const Value> arguments) {
    const auto [first, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const Real growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    return finite(scaled(first, std::exp(growth * duration)) + scaled(payment, accumulated(schedule, growth)));
}

Value pv(std::span<const Value> arguments) {
    const auto [second, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const Real growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    return finite(scaled(second, std::exp(-growth * duration)) - scaled(payment, discounted(schedule, growth)));
}

Value pmt(std::span<const Value> arguments) {
    const auto [first, second, duration, annualRate, compounding, period, timing] = readArguments(arguments, 2, 4);
    const Real growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    // Seen from the side on which nothing overflows.
    if (growth <= 0) {
        return finite((second - first - scaled(first, std::expm1(growth * duration))) / accumulated(schedule, growth));
    }
    return finite((second - first + scaled(second, std::expm1(-growth * duration))) / discounted(schedule, growth));
}

Value dur(std::span<const Value> arguments) {
    const auto [first, second, annualRate, compounding, payment, period, timing] =
        readArguments(arguments, std::nullopt, 3);
    const Real growth = growthOf(annualRate, compounding);
    if (!std::isfinite(growth)) {
        raise(ErrorCode::NoSolution);
    }
    if (first == second) {
        return {0};
    }
    // With the value a of endless payments, (second + a) = (first + a) e^(xT).
    const Real perPeriod = timing == 1 ? -std::expm1(-growth * period) : std::expm1(growth * period);
    const Real endless = payment / perPeriod;
    const Real duration = perPeriod == 0 || std::isinf(endless)
                              ? (second - first) / payment * period
                              : logarithmOfRatio(second + endless, first + endless, second - first) / growth;
    if (duration < 0) {
        raise(ErrorCode::NoSolution);
    }
    return finite(duration);
}

Value rate(std::span<const Value> arguments) {
    const auto [first, second, duration, compounding, payment, period, timing] = readArguments(arguments, 2, 3);
    const Real size = std::max({std::fabs(first), std::fabs(second), std::fabs(payment)});
    Real growth = 0;
    if (payment == 0) {
        growth = logarithmOfRatio(second, first, second - first) / duration;
    } else if (timing == 1) {
        // Backwards in time, payments at the start stand at the end.
        growth = -solveGrowth({second / size, first / size, -payment / size, duration, period});
    } else {
        growth = solveGrowth({first / size, second / size, payment / size, duration, period});
    }
    return finite(rateOf(growth, compounding));
}

}  // namespace calquo
