// The argument reader of the finance functions, and the balance equation solved for each of its quantities.
#include "numeric/finance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include "numeric/checks.h"
#include "values/durations.h"
#include "values/errors.h"
#include "values/extended.h"

namespace calquo {
namespace {

constexpr Real day = secondsOfDay;
constexpr Real year = secondsOfYear;
constexpr Real month = secondsOfMonth;

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

/// amount * e^z, also where e^z alone leaves the range of numbers.
Real grown(Real amount, Real z) {
    const Real factor = std::exp(z);
    if (std::isnormal(factor)) {
        return amount * factor;
    }
    const Real root = std::exp(z / 2);
    return scaled(scaled(amount, root), root);
}

/// ln(a / b) without loss where a and b lie close together; their difference is given, since it may be known better.
Real logarithmOfRatio(Real a, Real b, Real difference) {
    const Real ratio = a / b;
    if (ratio > 0.5L && ratio < 2) {
        return std::log1p(difference / b);
    }
    // A quotient beyond the range of numbers still has a logarithm.
    const bool beyond = signOf(a) * signOf(b) > 0 && !std::isnormal(ratio);
    return beyond ? std::log(std::fabs(a)) - std::log(std::fabs(b)) : std::log(ratio);
}

// Everything below works with the growth x, the natural logarithm of what 1 becomes in one second: G = e^(xT),
// g = e^(xp). In it the compounding period has no part but in the two conversions.

/// The growth of a nominal annual rate; minus infinity for a rate that takes everything, a NaN beyond it.
Real growthOf(Real annualRate, Real compoundingPeriod) {
    const Real perPeriod = annualRate * compoundingPeriod / year;
    return annualRate / year * (perPeriod == 0 ? 1 : std::log1p(perPeriod) / perPeriod);
}

/// The nominal annual rate of a growth; a NaN where all is lost at once and no period of compounding bounds the rate.
Real rateOf(Real growth, Real compoundingPeriod) {
    const Real perPeriod = growth * compoundingPeriod;
    return perPeriod == 0 ? growth * year : std::expm1(perPeriod) / compoundingPeriod * year;
}

/// When payments are made.
struct Schedule {
    Real duration;
    Real period;
    bool atStart;

    /// The same payments seen backwards in time.
    [[nodiscard]] Schedule reversed() const { return {duration, period, !atStart}; }
};

/// payment * s: what the payments have grown to at the end.
Real accumulated(Real payment, const Schedule& schedule, Real growth) {
    const Real falling = -std::fabs(growth);
    const Real perPeriod = std::expm1(falling * schedule.period);
    if (perPeriod == 0) {
        return payment * (schedule.duration / schedule.period);
    }
    // (G - 1) / (g - 1) or, for a positive growth, the same over G / g.
    const Real ratio = std::expm1(falling * schedule.duration) / perPeriod;
    const Real shift =
        (growth > 0 ? schedule.duration - schedule.period : 0) + (schedule.atStart ? schedule.period : 0);
    return shift == 0 ? payment * ratio : grown(payment * ratio, growth * shift);
}

/// payment * s / G: what the payments are worth at the beginning.
Real discounted(Real payment, const Schedule& schedule, Real growth) {
    return accumulated(payment, schedule.reversed(), -growth);
}

/// e^z - 1, divided by e^z where this is above 1.
Real riseOverTop(Real z) { return z > 0 ? -std::expm1(-z) : std::expm1(z); }

/// later - earlier e^z for z <= 0.
Real difference(Real later, Real earlier, Real z) {
    // Near z = 0 the amounts' own difference has to be kept, far from it the smaller of the two.
    return z > -1 ? later - earlier - earlier * std::expm1(z) : later - grown(earlier, z);
}

/// The zero of a function of which the sign at the upper end is known and that at the lower end is the other one;
/// low < high. Halves the interval until two neighbouring numbers are left, by orders of magnitude first: some 100
/// evaluations at most. A NaN if the signs at the ends are not these.
template <typename Function>
Real zeroBetween(Real low, Real high, bool positiveAtHigh, Function function) {
    if ((function(high) > 0) != positiveAtHigh || (function(low) > 0) == positiveAtHigh) {
        return std::numeric_limits<Real>::quiet_NaN();
    }
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
    near = std::max(near, std::numeric_limits<Real>::min());
    while (true) {
        const Real middle = far > 2 * near ? std::sqrt(near) * std::sqrt(far) : near + (far - near) / 2;
        if (middle <= near || middle >= far) {
            return side * near;
        }
        ((function(side * middle) > 0) == positiveAtFar ? far : near) = middle;
    }
}

/// What rounding takes from a product (Dekker): a b = fl(a b) + productError(a, b).
Real productError(Real a, Real b) {
    const auto upperHalf = [](Real x) {
        const Real shifted = x * (0x1p32L + 1);
        return shifted - (shifted - x);
    };
    const Real a1 = upperHalf(a);
    const Real a2 = a - a1;
    const Real b1 = upperHalf(b);
    const Real b2 = b - b1;
    return a2 * b2 - (((a * b - a1 * b1) - a2 * b1) - a1 * b2);
}

/// The sum with twice the precision of its terms (Neumaier).
Real compensatedSum(std::span<const Real> terms) {
    Real sum = 0;
    Real lost = 0;
    for (const Real term : terms) {
        const Real next = sum + term;
        lost += std::fabs(sum) >= std::fabs(term) ? (sum - next) + term : (term - next) + sum;
        sum = next;
    }
    return sum + lost;
}

/// e^(xT) - 1 - T/p (e^(xp) - 1) for |xT| and |xp| up to 1. With v = e^(xp) and n = T/p it is v^n - 1 - n (v - 1), how
/// far a power lies above its tangent at 1: positive for n > 1, negative for n < 1.
Real aboveTangentNearby(Real duration, Real period, Real x) {
    const Real t = x * duration;
    const Real q = x * period;
    // t (t - q) (1/2! + (t + q)/3! + (t^2 + t q + q^2)/4! + ...), without the cancellation of the terms in t.
    Real sum = 0;
    Real numerator = 1;
    Real powerOfQ = 1;
    Real factorial = 2;
    for (int k = 3; k < 26; ++k) {
        sum += numerator / factorial;
        powerOfQ *= q;
        numerator = numerator * t + powerOfQ;
        factorial *= static_cast<Real>(k);
    }
    return t * x * (duration - period) * sum;
}

/// The same for all x, divided by e^(xT) or e^(xp) where these are above 1.
Real aboveTangent(Real duration, Real period, Real x) {
    const Real t = x * duration;
    const Real q = x * period;
    const Real top = std::max({Real{0}, t, q});
    if (std::max(std::fabs(t), std::fabs(q)) <= 1) {
        return aboveTangentNearby(duration, period, x) * std::exp(-top);
    }
    const auto gain = [top](Real z) {
        return z > 0 ? -std::exp(z - top) * std::expm1(-z) : std::exp(-top) * std::expm1(z);
    };
    return gain(t) - duration / period * gain(q);
}

/// The balance with payments at the end of each period, as a function of the growth whose zeros are sought:
/// f(x) = first e^(xT) + payment (e^(xT) - 1) / (e^(xp) - 1) - second, with a payment other than 0.
///
/// f has two zeros at most. As a function of u = e^(xp) - 1, f / s is payment + first u - (second - first) A(u) with
/// A(u) = u / ((1 + u)^n - 1), n = T/p, which is convex for n > 1, concave for n < 1 and constant for n = 1: a straight
/// line meets such a curve twice at most, and between the two meetings lies the one place where their slopes agree.
class Equation {
public:
    Equation(Real first, Real second, Real payment, Real duration, Real period)
        : first_(first), second_(second), payment_(payment), duration_(duration), period_(period) {
        const Real terms[] = {period * first,     productError(period, first),
                              -period * second,   -productError(period, second),
                              duration * payment, productError(duration, payment)};
        atZero_ = compensatedSum(terms) / period;
    }

    /// The growths at which the balance holds, in ascending order.
    [[nodiscard]] std::vector<Real> zeros() const {
        if (!std::isfinite(atZero_)) {
            return {};
        }
        if (atZero_ == 0) {
            return {0};
        }
        // Beyond, even the slower of the two exponentials has left the range of numbers; where no constant stands
        // beside them, their ratio has.
        const bool ratioAlone = (first_ == 0 || payment_ == second_) && duration_ != period_;
        const Real slower = std::min(duration_, period_);
        const Real reach = 25000 / (ratioAlone ? std::min(slower, std::fabs(duration_ - period_)) : slower);
        const auto balance = [this](Real x) {
            const auto [a, b, c] = terms(x);
            return a + b + c;
        };
        const bool positiveAtHigh = signAtHigh() > 0;
        if (signAtLow() != signAtHigh()) {
            return {zeroBetween(-reach, reach, positiveAtHigh, balance)};
        }
        // Two zeros or none: the balance lies on one side at both ends and may cross over between them.
        if (!turns()) {
            return {};
        }
        const Real turn = zeroBetween(-reach, reach, first_ > 0, [this](Real x) { return slope(x); });
        if (std::isnan(turn)) {
            return {};
        }
        // Where the two zeros are one, rounding may leave the balance on either side of it.
        constexpr Real rounding = 16 * std::numeric_limits<Real>::epsilon();
        const auto [a, b, c] = terms(turn);
        if (std::fabs(a + b + c) <= rounding * (std::fabs(a) + std::fabs(b) + std::fabs(c))) {
            return {turn};
        }
        if ((a + b + c > 0) == positiveAtHigh) {
            return {};
        }
        return {zeroBetween(-reach, turn, !positiveAtHigh, balance), zeroBetween(turn, reach, positiveAtHigh, balance)};
    }

private:
    /// Terms whose sum has the sign of f(x) and neither overflows nor loses more than their own roundings.
    [[nodiscard]] std::array<Real, 3> terms(Real x) const {
        const Real t = x * duration_;
        const Real q = x * period_;
        if (x == 0) {
            return {atZero_, 0, 0};
        }
        if (std::max(std::fabs(t), std::fabs(q)) <= 1) {
            // With what is left at x = 0 known better than its terms: s = n + (v^n - 1 - n (v - 1)) / (v - 1).
            const Real gain = aboveTangentNearby(duration_, period_, x) / std::expm1(q);
            return {first_ * std::expm1(t), payment_ * gain, atZero_};
        }
        if (std::fabs(t) <= 1) {
            return {first_ * std::expm1(t), grown(payment_ * (std::expm1(t) / riseOverTop(q)), -std::max(Real{0}, q)),
                    first_ - second_};
        }
        // t - q; the slower of two exponentials that stand alone is divided out.
        const Real apart = x * (duration_ - period_);
        if (x < 0) {
            // The last payment has not grown; all others have to s - 1.
            const Real others = payment_ * (std::expm1(-std::fabs(apart)) / std::expm1(q)) * (apart < 0 ? 1 : -1);
            if (payment_ == second_) {
                return {grown(first_, std::min(Real{0}, apart)), others, 0};
            }
            return {grown(first_, t), grown(others, std::max(t, q)), payment_ - second_};
        }
        const Real payments = payment_ * (riseOverTop(t) / riseOverTop(q));
        if (first_ == 0) {
            return {0, grown(payments, std::min(Real{0}, apart)), -grown(second_, std::min(Real{0}, -apart))};
        }
        return {first_, grown(payments, -q), -grown(second_, -t)};
    }

    /// The sign of f for x towards minus infinity: f = payment - second + (first - payment) G + payment g + ...
    [[nodiscard]] Real signAtLow() const {
        if (payment_ != second_) {
            return signOf(payment_ - second_);
        }
        return signOf(duration_ < period_ && first_ != payment_ ? first_ - payment_
                      : duration_ == period_                    ? first_
                                                                : payment_);
    }

    /// The sign of f for x towards infinity: f / G = first + payment / g - second / G + ...
    [[nodiscard]] Real signAtHigh() const {
        if (first_ != 0) {
            return signOf(first_);
        }
        return signOf(duration_ < period_ && second_ != 0 ? -second_
                      : duration_ == period_              ? payment_ - second_
                                                          : payment_);
    }

    /// Whether the slope of f / s in u has a zero: it lies between second and first for n > 1, between infinity of the
    /// sign of first - second and first for n < 1.
    [[nodiscard]] bool turns() const {
        return duration_ > period_   ? signOf(first_) * signOf(second_) < 0
               : duration_ < period_ ? signOf(first_) * signOf(second_ - first_) > 0
                                     : false;
    }

    /// The sign of the slope of f / s in u, first - (second - first) A'(u), where it has a zero. With v = 1 + u,
    ///     -A' (v^n - 1)^2 = v^n (v^-n - 1 - n (1/v - 1)),
    ///     (1 + A') (v^n - 1)^2 = v^(n - 1) (v^(n + 1) - 1 - (n + 1) (v - 1)).
    /// Of the two that one is taken which leaves no cancellation but that of two terms of opposite signs.
    [[nodiscard]] Real slope(Real x) const {
        const Real t = x * duration_;
        const Real q = x * period_;
        if (x == 0) {
            return first_ * (duration_ + period_) + second_ * (duration_ - period_);
        }
        const Real square = std::expm1(-std::fabs(t)) * std::expm1(-std::fabs(t));
        if (x < 0 && duration_ > period_) {
            return second_ * square + grown((first_ - second_) * aboveTangent(duration_ + period_, period_, x), t - q);
        }
        const Real above = (second_ - first_) * aboveTangent(duration_, period_, -x);
        return x < 0 ? grown(first_ * square, q - t) + above : first_ * square + grown(above, -t);
    }

    Real first_;
    Real second_;
    Real payment_;
    Real duration_;
    Real period_;
    Real atZero_ = 0;  ///< f(0) = first + n payment - second
};

/// The growths at which first becomes second with the payments of the schedule; 0 where every growth fits.
std::vector<Real> growthsOf(Real first, Real second, Real payment, const Schedule& schedule) {
    if (payment == 0) {
        return {logarithmOfRatio(second, first, second - first) / schedule.duration};
    }
    if (schedule.atStart) {
        // Backwards in time, payments at the start stand at the end.
        std::vector<Real> growths = growthsOf(second, first, -payment, schedule.reversed());
        std::transform(growths.begin(), growths.end(), growths.begin(), std::negate());
        return growths;
    }
    // A power of two brings the amounts near the upper end of the range, where the smallest of them keep their digits.
    constexpr int largestExponent = 12000;
    int exponent = 0;
    std::frexp(std::max({std::fabs(first), std::fabs(second), std::fabs(payment)}), &exponent);
    const auto fitted = [&](Real amount) { return std::scalbn(amount, largestExponent - exponent); };
    return Equation(fitted(first), fitted(second), fitted(payment), schedule.duration, schedule.period).zeros();
}

}  // namespace

Value fv(std::span<const Value> arguments) {
    const auto [first, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const Real growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    // Where amounts cancel, both have to have lost or gained by the same rounded growth. Payments alone grow over as
    // long as they do, and do not vanish at the beginning first.
    if (growth <= 0 || first == 0) {
        return finite(grown(first, growth * duration) + accumulated(payment, schedule, growth));
    }
    return finite(grown(first + discounted(payment, schedule, growth), growth * duration));
}

Value pv(std::span<const Value> arguments) {
    const auto [second, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const Real growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    if (growth >= 0 || (second == 0 && std::isfinite(growth))) {
        return finite(grown(second, -growth * duration) - discounted(payment, schedule, growth));
    }
    return finite(grown(second - accumulated(payment, schedule, growth), -growth * duration));
}

Value pmt(std::span<const Value> arguments) {
    const auto [first, second, duration, annualRate, compounding, period, timing] = readArguments(arguments, 2, 4);
    const Real growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    // Where all is lost at once, payments at the start have no part in the second value.
    if (std::isinf(growth) && schedule.atStart) {
        raise(ErrorCode::NoSolution);
    }
    // Seen from the side on which nothing overflows: backwards in time where amounts grow.
    const bool falls = growth <= 0;
    const Real steepness = -std::fabs(growth);
    const Real later = falls ? second : first;
    const Real earlier = falls ? first : second;
    const Real delay = schedule.atStart == falls ? period : 0;
    const Real ratio = accumulated(1, {duration, period, false}, steepness);
    Real payment = 0;
    if (later == 0) {
        payment = -grown(earlier / ratio, steepness * (duration - delay));
    } else {
        payment = difference(later, earlier, steepness * duration) / ratio;
        payment = delay == 0 ? payment : grown(payment, -steepness * delay);
    }
    return finite(falls ? payment : -payment);
}

Value dur(std::span<const Value> arguments) {
    const auto [first, second, annualRate, compounding, payment, period, timing] =
        readArguments(arguments, std::nullopt, 3);
    if (first == second) {
        return {0};
    }
    const Real growth = growthOf(annualRate, compounding);
    if (!std::isfinite(growth)) {
        raise(ErrorCode::NoSolution);
    }
    // With the value a of endless payments, (second + a) = (first + a) e^(xT). Where e^(|x|p) is large, a is next to 0
    // or to a payment: the rest, which the amounts may leave alone, is kept apart.
    const Real shrinking = -std::fabs(growth * period);
    const Real towards = growth > 0 ? payment : -payment;
    const Real rest = grown(towards / -std::expm1(shrinking), shrinking);
    const Real whole = (timing == 1) == (growth > 0) ? towards : 0;
    const Real later = second + whole;
    const Real earlier = first + whole;
    Real duration = 0;
    if (shrinking == 0 || std::isinf(rest)) {
        duration = (second - first) / payment * period;
    } else if (payment != 0 && !std::isnormal(rest) && growth > 0 && earlier == 0) {
        duration = logarithmOfRatio(later, towards, later - towards) / growth + period;
    } else if (payment != 0 && !std::isnormal(rest) && growth < 0 && later == 0) {
        duration = logarithmOfRatio(towards, earlier, towards - earlier) / growth + period;
    } else {
        duration = logarithmOfRatio(later + rest, earlier + rest, second - first) / growth;
    }
    if (duration < 0) {
        raise(ErrorCode::NoSolution);
    }
    return finite(duration);
}

Value rate(std::span<const Value> arguments) {
    const auto [first, second, duration, compounding, payment, period, timing] = readArguments(arguments, 2, 3);
    const Schedule schedule = {duration, period, timing == 1};
    std::vector<Real> growths = growthsOf(first, second, payment, schedule);
    // Where all is lost, the last payment is left if it comes at the end.
    if (payment != 0 && second == (schedule.atStart ? 0 : payment) && !std::isnan(first)) {
        growths.push_back(-positiveInfinity);
    }
    Real nearest = positiveInfinity;
    for (const Real growth : growths) {
        const Real annualRate = rateOf(growth, compounding);
        if (std::fabs(annualRate) < std::fabs(nearest)) {
            nearest = annualRate;
        }
    }
    return finite(nearest);
}

}  // namespace calquo
