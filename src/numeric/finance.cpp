// The argument reader of the finance functions, and the balance equation solved for each of its quantities.
#include "numeric/finance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <optional>
#include <vector>

#include "numeric/checks.h"
#include "numeric/wide_logarithm.h"
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
    if (std::any_of(numbers.begin(), numbers.end(), [](Real number) { return std::isnan(number); })) {
        raise(ErrorCode::NoSolution);
    }
    return numbers;
}

/// The answer as a value; 18 for what is none.
Value finite(Real number) {
    if (!std::isfinite(number)) {
        raise(ErrorCode::NoSolution);
    }
    return {number};
}
Value finite(const SignedWide& answer) { return finite(toReal(answer)); }

// Everything below works with the growth x, the natural logarithm of what 1 becomes in one second: G = e^(xT),
// g = e^(xp). In it the compounding period has no part but in the two conversions. Numbers are wide, so that neither
// amounts that nearly cancel cost digits of the answer nor factors that nearly cancel the answer itself.

/// Exponents of e from which on no amount is anything but 0 or beyond all numbers.
constexpr Real steepest = 0x1p28L;

/// The growth where all is lost at once: steeper than any other.
constexpr SignedWide endless(normalized({0, 1}, 1 << 16), true);

bool allIsLost(const SignedWide& growth) { return std::isinf(toReal(growth)); }

/// The growth of a nominal annual rate; 18 for a rate that takes more than everything.
SignedWide growthOf(Real annualRate, Real compoundingPeriod) {
    const SignedWide continuous = SignedWide(annualRate) / year;
    const SignedWide perPeriod = continuous * compoundingPeriod;
    if (perPeriod.zero) {
        return continuous;
    }
    // What rounds to everything counts as everything.
    const Real rounded = toReal(perPeriod);
    if (rounded < -1) {
        raise(ErrorCode::NoSolution);
    }
    return rounded == -1 ? endless : wideLogarithmOfOnePlus(perPeriod) / compoundingPeriod;
}

/// The nominal annual rate of a growth, perhaps an infinity.
Real rateOf(const SignedWide& growth, Real compoundingPeriod) {
    const SignedWide perPeriod = growth * compoundingPeriod;
    if (perPeriod.zero) {
        return toReal(growth * year);
    }
    return toReal(perPeriod) > steepest ? positiveInfinity
                                        : toReal(wideExponentialMinusOne(perPeriod) / compoundingPeriod * year);
}

/// amount * e^z; 18 where that is beyond all numbers.
SignedWide grown(const SignedWide& amount, const SignedWide& z) {
    const Real exponent = toReal(z);
    if (amount.zero || exponent < -steepest) {
        return 0;
    }
    if (exponent > steepest) {
        raise(ErrorCode::NoSolution);
    }
    return amount * steepExponential(z);
}

/// ln(a / b) for a b > 0, without loss where a and b lie close together; their difference is given, since it may be
/// known better.
SignedWide logarithmOfRatio(const SignedWide& a, const SignedWide& b, const SignedWide& difference) {
    const SignedWide change = difference / b;
    return std::fabs(toReal(change)) < 0.5L ? wideLogarithmOfOnePlus(change) : wideLogarithm(a / b);
}

/// When payments are made.
struct Schedule {
    Real duration;
    Real period;
    bool atStart;

    /// The same payments seen backwards in time.
    [[nodiscard]] Schedule reversed() const { return {duration, period, !atStart}; }
};

/// s, what payments of 1 have grown to at the end, as ratio * e^exponent with a moderate ratio.
struct Accumulation {
    SignedWide ratio;
    SignedWide exponent;

    Accumulation(const Schedule& schedule, const SignedWide& growth) {
        const SignedWide duration = schedule.duration;
        const SignedWide period = schedule.period;
        if (growth.zero) {
            ratio = duration / period;
            return;
        }
        // (G - 1) / (g - 1) or, for a positive growth, the same over G / g.
        const SignedWide falling = -absolute(growth);
        ratio = wideExponentialMinusOne(falling * duration) / wideExponentialMinusOne(falling * period);
        if (signOf(growth) > 0) {
            exponent = growth * (schedule.atStart ? duration : duration - period);
        } else {
            exponent = growth * (schedule.atStart ? period : 0);
        }
    }
};

/// payment * s: what the payments have grown to at the end.
SignedWide accumulated(Real payment, const Schedule& schedule, const SignedWide& growth) {
    const Accumulation sum(schedule, growth);
    return grown(payment * sum.ratio, sum.exponent);
}

/// first * G + payment * s = second.
struct Balance {
    SignedWide first;
    SignedWide second;
    SignedWide payment;
    Schedule schedule = {};

    /// The same seen backwards in time.
    [[nodiscard]] Balance reversed() const { return {second, first, -payment, schedule.reversed()}; }
};

/// A sum, and the sum of its terms' magnitudes to judge it by.
struct Sum {
    SignedWide value;
    SignedWide size;

    Sum operator-() const { return {-value, size}; }
};

struct Term {
    SignedWide factor;
    SignedWide exponent = 0;  ///< of e
};

/// The sum of factor * e^exponent, divided by the largest of the powers.
Sum sumOf(std::initializer_list<Term> terms) {
    std::optional<SignedWide> highest;
    for (const Term& term : terms) {
        if (!term.factor.zero && (!highest || signOf(term.exponent - *highest) > 0)) {
            highest = term.exponent;
        }
    }
    Sum sum;
    for (const Term& term : terms) {
        const SignedWide value = term.factor.zero ? 0 : grown(term.factor, term.exponent - *highest);
        sum.value = sum.value + value;
        sum.size = sum.size + absolute(value);
    }
    return sum;
}

/// s - T/p at a growth next to 0, without the cancellation of the two.
SignedWide gainNearby(const Schedule& schedule, const SignedWide& growth) {
    const SignedWide t = growth * schedule.duration;
    const SignedWide q = growth * schedule.period;
    // e^t - 1 - T/p (e^q - 1) = t (t - q) (1/2! + (t + q)/3! + (t^2 + t q + q^2)/4! + ...).
    SignedWide sum;
    SignedWide numerator = 1;
    SignedWide powerOfQ = 1;
    SignedWide inverseFactorial = 0.5L;
    for (int k = 3; k < 30; ++k) {
        sum = sum + numerator * inverseFactorial;
        powerOfQ = powerOfQ * q;
        numerator = numerator * t + powerOfQ;
        inverseFactorial = inverseFactorial / static_cast<Real>(k);
    }
    const SignedWide apart = growth * (SignedWide(schedule.duration) - schedule.period);
    const SignedWide atEnd = t * apart * sum / wideExponentialMinusOne(q);
    return schedule.atStart ? atEnd + wideExponentialMinusOne(t) : atEnd;
}

/// first * G + payment * s - second at a growth of 0.
SignedWide balanceAtZero(const Balance& balance) {
    const auto& [first, second, payment, schedule] = balance;
    // Multiplied by the period the terms are exact. The least is added last, after the others may have cancelled.
    std::array terms = {first * schedule.period, -second * schedule.period, payment * schedule.duration};
    std::sort(terms.begin(), terms.end(),
              [](const SignedWide& a, const SignedWide& b) { return signOf(absolute(a) - absolute(b)) > 0; });
    return (terms[0] + terms[1] + terms[2]) / schedule.period;
}

/// first * G + payment * s - second at a growth not above 0, times a positive factor.
Sum fallingBalance(const Balance& balance, const SignedWide& growth) {
    const auto& [first, second, payment, schedule] = balance;
    const SignedWide t = growth * schedule.duration;
    const SignedWide q = growth * schedule.period;
    if (growth.zero) {
        const SignedWide atZero = balanceAtZero(balance);
        return {atZero, absolute(atZero)};
    }
    if (!schedule.atStart && (first - payment).zero) {
        // The first value is a payment at the start, and the last payment, at the end, a part of the second value.
        return fallingBalance({0, second - payment, payment, {schedule.duration, schedule.period, true}}, growth);
    }
    if (toReal(t) >= -1) {
        const SignedWide loss = first * wideExponentialMinusOne(t);
        if (toReal(q) >= -1) {
            return sumOf({{balanceAtZero(balance)}, {loss}, {payment * gainNearby(schedule, growth)}});
        }
        const Accumulation sum(schedule, growth);
        return sumOf({{first - second}, {loss}, {payment * sum.ratio, sum.exponent}});
    }
    if (schedule.atStart) {
        const Accumulation sum(schedule, growth);
        return sumOf({{-second}, {first, t}, {payment * sum.ratio, sum.exponent}});
    }
    // The last payment has not grown, and all others have to s - 1.
    const SignedWide apart = growth * (SignedWide(schedule.duration) - schedule.period);
    const SignedWide others = payment * wideExponentialMinusOne(-absolute(apart)) / wideExponentialMinusOne(q);
    return signOf(apart) < 0 ? sumOf({{payment - second}, {first, t}, {others, q}})
                             : sumOf({{payment - second}, {first - others, t}});
}

/// A sum with the sign of the slope of (first * G - second) / s over the growth, at a growth not above 0. Times what is
/// positive, the slope is, with s' for payments of the other timing,
///     (first - second) T G - (first * G - second) p s'.
Sum fallingSlope(const Balance& balance, const SignedWide& growth) {
    const auto& [first, second, payment, schedule] = balance;
    const SignedWide duration = schedule.duration;
    const SignedWide period = schedule.period;
    if (growth.zero) {
        const SignedWide leaning = (first - second) * period;
        return {(first + second) * duration + (schedule.atStart ? -leaning : leaning), 0};
    }
    const SignedWide t = growth * duration;
    const bool moderate = toReal(t) >= -1;
    const SignedWide loss = moderate ? wideExponentialMinusOne(t) : 0;
    const SignedWide change = moderate ? first - second + first * loss : grown(first, t) - second;
    if (moderate && toReal(growth * period) >= -1) {
        // With s' = T/p + gain, without (first - second) T, which is in both terms.
        return sumOf({{-second * duration * loss}, {-change * period * gainNearby(schedule.reversed(), growth)}});
    }
    const Accumulation other(schedule.reversed(), growth);
    return sumOf({{(first - second) * duration, t}, {-change * period * other.ratio, other.exponent}});
}

/// The zero of a function of the annual rate between low < high, if its signs there differ: halves the interval until
/// two neighbouring numbers are left, by orders of magnitude first, with some 100 evaluations at most, and then takes
/// the secant between these.
template <typename Function>
std::optional<SignedWide> zeroBetween(Real low, Real high, Function function) {
    const SignedWide atLow = function(low).value;
    const SignedWide atHigh = function(high).value;
    if (signOf(atLow) * signOf(atHigh) >= 0) {
        return std::nullopt;
    }
    SignedWide atNear = atLow;
    SignedWide atFar = atHigh;
    if (low < 0 && high > 0) {
        const SignedWide middle = function(0).value;
        if (middle.zero) {
            return middle;
        }
        (signOf(middle) == signOf(atHigh) ? high : low) = 0;
        atNear = middle;
        atFar = high > 0 ? atHigh : atLow;
    } else if (high <= 0) {
        std::swap(atNear, atFar);
    }
    // On one side of 0 now: search the magnitude.
    const Real side = high > 0 ? 1 : -1;
    Real near = std::max(high > 0 ? low : -high, std::numeric_limits<Real>::min());
    Real far = high > 0 ? high : -low;
    while (true) {
        const Real middle = far > 2 * near ? std::sqrt(near) * std::sqrt(far) : near + (far - near) / 2;
        if (middle <= near || middle >= far) {
            return side * (near + (SignedWide(far) - near) * (atNear / (atNear - atFar)));
        }
        const SignedWide value = function(side * middle).value;
        if (signOf(value) == signOf(atFar)) {
            far = middle;
            atFar = value;
        } else {
            near = middle;
            atNear = value;
        }
    }
}

/// The continuous annual rates at which f = first * G + payment * s - second is 0; 0 alone where it is among them.
///
/// f has two zeros at most. For payments at the end, as a function of u = g - 1, f / s is payment + first u -
/// (second - first) A(u) with A(u) = u / ((1 + u)^n - 1), n = T/p, which is convex for n > 1, concave for n < 1 and
/// constant for n = 1: a straight line meets such a curve twice at most, and between the two meetings lies the one
/// place where their slopes agree. Payments at the start stand at the end when seen backwards in time.
std::vector<SignedWide> continuousRates(const Balance& balance) {
    const auto& [first, second, payment, schedule] = balance;
    const auto [duration, period, atStart] = schedule;
    if (balanceAtZero(balance).zero) {
        return {0};
    }
    if (payment.zero) {
        if (signOf(first) * signOf(second) <= 0) {
            return {};
        }
        return {logarithmOfRatio(second, first, second - first) / duration * year};
    }
    // Where growth is positive, backwards in time it is not, and nothing outgrows the amounts.
    const Balance reversed = balance.reversed();
    const auto value = [&](const SignedWide& annualRate) {
        const SignedWide growth = annualRate / year;
        return signOf(growth) <= 0 ? fallingBalance(balance, growth) : -fallingBalance(reversed, -growth);
    };
    const auto slope = [&](const SignedWide& annualRate) {
        const SignedWide growth = annualRate / year;
        return signOf(growth) <= 0 ? fallingSlope(balance, growth) : fallingSlope(reversed, -growth);
    };
    // Beyond, the slowest of the exponentials outweighs all differences of amounts and times.
    const Real apart = std::fabs(duration - period);
    const Real slowest = std::min({duration, period, apart > 0 ? apart : period});
    const Real reach = 40000 / slowest * year;
    if (const auto zero = zeroBetween(-reach, reach, value)) {
        return {*zero};
    }
    // Two zeros or none: the balance lies on one side at both ends and may cross over between them.
    const auto turn = zeroBetween(-reach, reach, slope);
    if (!turn) {
        return {};
    }
    // Where the two zeros are one, rounding may leave the balance on either side of it.
    constexpr Real rounding = 0x1p-100L;
    const Sum atTurn = value(*turn);
    if (toReal(absolute(atTurn.value) / atTurn.size) < rounding) {
        return {*turn};
    }
    std::vector<SignedWide> rates;
    for (const auto& zero : {zeroBetween(-reach, toReal(*turn), value), zeroBetween(toReal(*turn), reach, value)}) {
        if (zero) {
            rates.push_back(*zero);
        }
    }
    return rates;
}

}  // namespace

Value fv(std::span<const Value> arguments) {
    const auto [first, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const SignedWide growth = growthOf(annualRate, compounding);
    return finite(grown(first, growth * duration) + accumulated(payment, {duration, period, timing == 1}, growth));
}

Value pv(std::span<const Value> arguments) {
    const auto [second, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const SignedWide growth = growthOf(annualRate, compounding);
    const Schedule schedule = {duration, period, timing == 1};
    if (allIsLost(growth)) {
        // Every first value fits, 0 among them, or none.
        return finite(grown(second - accumulated(payment, schedule, growth), -growth * duration));
    }
    return finite(grown(second, -growth * duration) - accumulated(payment, schedule.reversed(), -growth));
}

Value pmt(std::span<const Value> arguments) {
    const auto [first, second, duration, annualRate, compounding, period, timing] = readArguments(arguments, 2, 4);
    const SignedWide growth = growthOf(annualRate, compounding);
    const bool atStart = timing == 1;
    // Where all is lost at once, payments at the start have no part in the second value.
    if (allIsLost(growth) && atStart) {
        raise(ErrorCode::NoSolution);
    }
    const Schedule schedule = {duration, period, atStart};
    const Accumulation sum(schedule, growth);
    const SignedWide exponent = growth * duration;
    if (std::fabs(toReal(exponent)) <= 1) {
        const SignedWide missing = SignedWide(second) - first - first * wideExponentialMinusOne(exponent);
        return finite(grown(missing / sum.ratio, -sum.exponent));
    }
    // (second - first G) / s, where s / G is the same sum backwards in time.
    const Accumulation backwards(schedule.reversed(), -growth);
    return finite((grown(second, -sum.exponent) - grown(first, -backwards.exponent)) / sum.ratio);
}

Value dur(std::span<const Value> arguments) {
    const auto [first, second, annualRate, compounding, payment, period, timing] =
        readArguments(arguments, std::nullopt, 3);
    if (first == second) {
        return {0};
    }
    const SignedWide growth = growthOf(annualRate, compounding);
    if (allIsLost(growth)) {
        raise(ErrorCode::NoSolution);
    }
    const SignedWide change = SignedWide(second) - first;
    SignedWide duration;
    if (growth.zero) {
        if (payment == 0) {
            raise(ErrorCode::NoSolution);
        }
        duration = change / payment * period;
    } else {
        // With the value a of endless payments, (second + a) = (first + a) e^(xT). For e^(|x|p) far from 1, a is next
        // to 0 or to a payment: the rest, which the amounts may leave alone, is rest * e^(-|x|p).
        const bool rises = signOf(growth) > 0;
        const SignedWide shrinking = -absolute(growth * period);
        const SignedWide towards = rises ? payment : -payment;
        const SignedWide rest = towards / -wideExponentialMinusOne(shrinking);
        const SignedWide whole = (timing == 1) == rises ? towards : 0;
        const auto withRest = [&](Real amount) {
            const SignedWide alone = amount + whole;
            return alone.zero && toReal(shrinking) < -steepest ? Term{rest, shrinking}
                                                               : Term{alone + grown(rest, shrinking)};
        };
        const Term later = withRest(second);
        const Term earlier = withRest(first);
        if (signOf(later.factor) * signOf(earlier.factor) <= 0) {
            raise(ErrorCode::NoSolution);
        }
        const SignedWide exponent = later.exponent - earlier.exponent;
        const SignedWide ratio = exponent.zero ? logarithmOfRatio(later.factor, earlier.factor, change)
                                               : wideLogarithm(later.factor / earlier.factor) + exponent;
        duration = ratio / growth;
    }
    if (signOf(duration) < 0) {
        raise(ErrorCode::NoSolution);
    }
    return finite(duration);
}

Value rate(std::span<const Value> arguments) {
    const auto [first, second, duration, compounding, payment, period, timing] = readArguments(arguments, 2, 3);
    const bool atStart = timing == 1;
    std::vector<Real> rates;
    for (const SignedWide& annualRate : continuousRates({first, second, payment, {duration, period, atStart}})) {
        rates.push_back(rateOf(annualRate / year, compounding));
    }
    // Where all is lost, the last payment is left if it comes at the end.
    if (compounding > 0 && second == (atStart ? 0 : payment)) {
        rates.push_back(toReal(SignedWide(-year) / compounding));
    }
    if (rates.empty()) {
        raise(ErrorCode::NoSolution);
    }
    return finite(
        *std::min_element(rates.begin(), rates.end(), [](Real a, Real b) { return std::fabs(a) < std::fabs(b); }));
}

}  // namespace calquo
