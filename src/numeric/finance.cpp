// The argument reader of the finance functions, and the balance equation solved for each of its quantities.
#include "numeric/finance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "numeric/checks.h"
#include "numeric/wide_logarithm.h"
#include "values/durations.h"
#include "values/errors.h"
#include "values/extended.h"

namespace calquo {
namespace {

using Arguments = std::array<Real, 7>;

/// Reads and checks the arguments of a call and fills in the defaults.
Arguments readArguments(std::span<const Value> given, std::optional<std::size_t> durationIndex,
                        std::size_t compoundingIndex) {
    constexpr std::size_t paymentPeriodIndex = 5;
    constexpr std::size_t timingIndex = 6;
    Arguments numbers = {};
    numbers[paymentPeriodIndex] = secondsOfMonth;
    numbers[compoundingIndex] = secondsOfMonth;
    for (std::size_t index = 0; index < std::min(given.size(), numbers.size()); ++index) {
        const Value& argument = given[index];
        requireReal(argument, CheckFlags::Report);
        const auto refuseIf = [&](bool refused, ErrorCode error) {
            if (refused) {
                raise(error, argument.positions.literalEnd);
            }
        };
        const Real number = argument.re;
        const bool isTime = index == durationIndex || index == paymentPeriodIndex;
        refuseIf(isTime && number < secondsOfDay, ErrorCode::AtLeastOneDay);
        refuseIf(index == compoundingIndex && number < 0, ErrorCode::NegativeNotAllowed);
        refuseIf(index == timingIndex && !(number == 0 || number == 1), ErrorCode::InvalidArgument);
        numbers[index] = number;
    }
    if (std::ranges::any_of(numbers, [](Real number) { return std::isnan(number); })) {
        raise(ErrorCode::NoSolution);
    }
    return numbers;
}

/// The answer as a value; 18 if it is too large to be one.
Value finite(const SignedWide& answer) {
    const Real number = toReal(answer);
    if (std::isinf(number)) {
        raise(ErrorCode::NoSolution);
    }
    return {number};
}

// Everything below works with the growth x, the natural logarithm of what 1 becomes in one second: G = e^(xT),
// g = e^(xp). In it the compounding period has no part but in the two conversions. Numbers are wide, so that neither
// amounts that nearly cancel cost digits of the answer nor factors that nearly cancel the answer itself.

/// The growth at a rate of -100 % per period, the logarithm of 0: so large a negative number that toReal makes it
/// minus infinity.
constexpr SignedWide totalLoss(normalized({0, 1}, 1 << 16), true);

/// For a larger exponent z, any amount but 0 times e^z is beyond all numbers, and any amount times e^-z counts as 0.
constexpr Real largestExponent = 0x1p28L;

/// The growth of a nominal annual rate; 18 for a rate below -100 % per compounding period.
SignedWide growthOf(Real annualRate, Real compoundingPeriod) {
    const SignedWide continuous = SignedWide(annualRate) / secondsOfYear;
    const SignedWide perPeriod = continuous * compoundingPeriod;
    if (perPeriod.zero) {
        return continuous;
    }
    // A rate that rounds to -100 % counts as -100 %.
    const Real rounded = toReal(perPeriod);
    if (rounded < -1) {
        raise(ErrorCode::NoSolution);
    }
    return rounded == -1 ? totalLoss : wideLogarithmOfOnePlus(perPeriod) / compoundingPeriod;
}

/// The nominal annual rate of a growth, or a number beyond all others.
SignedWide annualRateOf(const SignedWide& growth, Real compoundingPeriod) {
    const SignedWide perPeriod = growth * compoundingPeriod;
    if (perPeriod.zero) {
        return growth * secondsOfYear;
    }
    if (toReal(perPeriod) > largestExponent) {
        return -totalLoss;
    }
    return wideExponentialMinusOne(perPeriod) / compoundingPeriod * secondsOfYear;
}

/// amount * e^z; 18 where that is beyond all numbers.
SignedWide grown(const SignedWide& amount, const SignedWide& z) {
    if (amount.zero || z.zero) {
        return amount;
    }
    const Real exponent = toReal(z);
    if (exponent > largestExponent) {
        raise(ErrorCode::NoSolution);
    }
    return exponent < -largestExponent ? 0 : amount * steepExponential(z);
}

/// e^z - 1 - z for z <= 0, without loss next to 0.
SignedWide exponentialBeyondLine(const SignedWide& z) {
    if (toReal(z) < -1) {
        return wideExponentialMinusOne(z) - z;
    }
    static const auto inverses = [] {
        std::array<SignedWide, 30> table;
        for (std::size_t n = 1; n < table.size(); ++n) {
            table[n] = 1 / SignedWide(static_cast<Real>(n));
        }
        return table;
    }();
    // z^2/2! + z^3/3! + ...
    SignedWide sum = 1;
    for (std::size_t n = inverses.size() - 1; n > 2; --n) {
        sum = 1 + z * sum * inverses[n];
    }
    return z * z * sum * 0.5L;
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
};

/// What first * G + payment * s and second differ by, as a function of the growth x. Times (g - 1) / x, the difference
/// is the integral of L(u) e^(xu) over u, where L is the sum of three amounts, each for some time: -second from 0 to p,
/// first from T to T + p, payment from 0 to T or, at the start of periods, from p to T + p. So L has three levels: up
/// to the lesser of p and T, up to the greater, and up to their sum. As often as L changes its sign, at most, the
/// integral is 0 (G. Polya, G. Szego, Problems and Theorems in Analysis II, part V): for two growths or fewer.
class Balance {
public:
    Balance(Real first, Real second, Real payment, const Schedule& schedule)
        : outerLength_(std::min(schedule.duration, schedule.period)),
          innerLength_(absolute(SignedWide(schedule.duration) - schedule.period)),
          levels_{SignedWide(schedule.atStart ? 0 : payment) - second,
                  schedule.period <= schedule.duration ? payment : SignedWide(first) - second,
                  SignedWide(schedule.atStart ? payment : 0) + first},
          areas_{SignedWide(first) * schedule.period, -SignedWide(second) * schedule.period,
                 SignedWide(payment) * schedule.duration} {}

    /// The integral for a growth of 0. The least area is added last, after the others may have cancelled.
    [[nodiscard]] SignedWide atZero() const {
        Triple areas = areas_;
        std::ranges::sort(areas, [](const auto& a, const auto& b) { return signOf(absolute(a) - absolute(b)) > 0; });
        return areas[0] + areas[1] + areas[2];
    }

    /// sum * e^exponent, and what the sum's terms amount to without their signs.
    struct Integral {
        SignedWide sum;
        SignedWide size;
        SignedWide exponent;

        void add(const SignedWide& term) {
            sum = sum + term;
            size = size + absolute(term);
        }
    };

    /// The integral over that of e^(-|x|u) from 0 to the lesser of p and T; for x > 0 with L shifted to end at u = 0.
    [[nodiscard]] Integral at(const SignedWide& growth) const {
        if (growth.zero) {
            const SignedWide sum = atZero() / outerLength_;
            return {sum, absolute(sum), 0};
        }
        const auto [levels, outer, inner] = falling(growth);
        const SignedWide ratio = levels[1].zero ? 0 : wideExponentialMinusOne(inner) / wideExponentialMinusOne(outer);
        const Triple terms = {levels[0], levels[1] * ratio, levels[2]};
        const Triple exponents = {0, outer, outer + inner};
        const std::size_t first = terms[0].zero ? (terms[1].zero ? 2 : 1) : 0;
        Integral result = {{}, {}, exponents[first]};
        for (std::size_t index = first; index < terms.size(); ++index) {
            result.add(grown(terms[index], exponents[index] - exponents[first]));
        }
        const bool cancels = signOf(absolute(result.sum) * 256 - result.size) < 0;
        if (!cancels || toReal(exponents[2]) < -1) {
            return result;
        }
        // Next to 0, the integral for x = 0, and what each level has changed by.
        const SignedWide beyondOuter = exponentialBeyondLine(outer);
        const SignedWide beyondInner = exponentialBeyondLine(inner);
        const SignedWide lostOuter = outer + beyondOuter;
        const SignedWide lostBefore = exponents[2] + exponentialBeyondLine(exponents[2]);
        result = {};
        result.add(atZero() * absolute(growth));
        result.add(-levels[0] * beyondOuter);
        result.add(-levels[1] * (beyondInner + lostOuter * (inner + beyondInner)));
        result.add(-levels[2] * (beyondOuter + lostBefore * lostOuter));
        return {result.sum / -lostOuter, result.size / -lostOuter, 0};
    }

    /// A number with the sign of the slope, over |x|, of the integral times e^(-xu), where u is the end of the first
    /// level, or for x > 0 of the second. It changes its sign once at most where L does so twice.
    [[nodiscard]] SignedWide slopeAt(const SignedWide& growth) const {
        const auto [levels, outer, inner] = falling(growth);
        // e^z (z - 1) + 1, the integral of -ue^u from z to 0.
        const auto moment = [](const SignedWide& z) {
            return toReal(z) < -1 ? grown(z, z) - wideExponentialMinusOne(z)
                                  : z * wideExponentialMinusOne(z) - exponentialBeyondLine(z);
        };
        return levels[0] * exponentialBeyondLine(outer) - grown(levels[1] * moment(inner), outer) -
               grown(levels[2] * (inner * wideExponentialMinusOne(outer) + moment(outer)), outer + inner);
    }

private:
    using Triple = std::array<SignedWide, 3>;

    struct Falling {
        Triple levels;
        SignedWide outer;  ///< the outer levels' length times -|x|
        SignedWide inner;  ///< the inner level's
    };

    /// The integral's parts for -|x|. For a positive growth they are seen backwards in time, where nothing outgrows the
    /// amounts.
    [[nodiscard]] Falling falling(const SignedWide& growth) const {
        const SignedWide fall = -absolute(growth);
        return {signOf(growth) > 0 ? Triple{levels_[2], levels_[1], levels_[0]} : levels_, fall * outerLength_,
                fall * innerLength_};
    }

    SignedWide outerLength_;
    SignedWide innerLength_;
    Triple levels_;
    Triple areas_;  ///< of the three amounts
};

/// The amount of which a unit has the second balance, where the first one has all the others.
Value missingAmount(const Balance& others, const Balance& unit, const SignedWide& growth) {
    const Balance::Integral known = others.at(growth);
    const Balance::Integral factor = unit.at(growth);
    // At a rate of -100 % only the first level of a balance keeps its value. If both balances are 0 there, every amount
    // is a solution; the answer is 0.
    if (std::isinf(toReal(growth)) && !known.exponent.zero && !factor.exponent.zero) {
        return {0};
    }
    return finite(grown(-known.sum / factor.sum, known.exponent - factor.exponent));
}

/// The least number that growths are told from 0 by.
constexpr Real least = std::numeric_limits<Real>::min();

/// The zero of a function between 0 <= near < far, if its signs there differ: halves the interval until two
/// neighbouring numbers are left, by orders of magnitude first, with some 100 evaluations at most, and then takes the
/// secant between these.
template <typename Function>
std::optional<SignedWide> zeroBetween(Real near, Real far, Function function) {
    SignedWide atNear = function(near);
    SignedWide atFar = function(far);
    if (signOf(atNear) * signOf(atFar) >= 0) {
        return std::nullopt;
    }
    while (true) {
        const Real middle =
            far > 2 * near ? std::sqrt(std::max(near, least)) * std::sqrt(far) : near + (far - near) / 2;
        if (middle <= near || middle >= far) {
            return near + (SignedWide(far) - near) * (atNear / (atNear - atFar));
        }
        const SignedWide value = function(middle);
        const bool isFar = signOf(value) == signOf(atFar);
        (isFar ? far : near) = middle;
        (isFar ? atFar : atNear) = value;
    }
}

/// The growth of a sign, 1 or -1, nearest to 0 at which a balance is even, looked for up to some size.
std::optional<SignedWide> evenGrowth(const Balance& balance, Real sign, Real reach) {
    const auto difference = [&](Real size) { return balance.at(sign * size).sum; };
    std::optional<SignedWide> size = zeroBetween(0, reach, difference);
    if (!size) {
        // Two zeros or none: the balance lies on one side at both ends and may cross over between them.
        size = zeroBetween(least, reach, [&](Real growth) { return balance.slopeAt(sign * growth); });
        if (!size) {
            return std::nullopt;
        }
        // Where the two zeros are one, rounding may leave the balance on either side of it.
        constexpr Real rounding = 0x1p-100L;
        const Balance::Integral atTurn = balance.at(sign * *size);
        if (toReal(absolute(atTurn.sum) / atTurn.size) >= rounding) {
            size = zeroBetween(0, toReal(*size), difference);
        }
    }
    return size ? std::optional(sign * *size) : std::nullopt;
}

}  // namespace

Value fv(std::span<const Value> arguments) {
    const auto [first, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const Schedule schedule = {duration, period, timing == 1};
    return missingAmount({first, 0, payment, schedule}, {0, 1, 0, schedule}, growthOf(annualRate, compounding));
}

Value pv(std::span<const Value> arguments) {
    const auto [second, duration, annualRate, compounding, payment, period, timing] = readArguments(arguments, 1, 3);
    const Schedule schedule = {duration, period, timing == 1};
    return missingAmount({0, second, payment, schedule}, {1, 0, 0, schedule}, growthOf(annualRate, compounding));
}

Value pmt(std::span<const Value> arguments) {
    const auto [first, second, duration, annualRate, compounding, period, timing] = readArguments(arguments, 2, 4);
    const Schedule schedule = {duration, period, timing == 1};
    return missingAmount({first, second, 0, schedule}, {0, 0, 1, schedule}, growthOf(annualRate, compounding));
}

Value dur(std::span<const Value> arguments) {
    const auto [first, second, annualRate, compounding, payment, period, timing] =
        readArguments(arguments, std::nullopt, 3);
    if (first == second) {
        return {0};
    }
    const SignedWide growth = growthOf(annualRate, compounding);
    const SignedWide change = SignedWide(second) - first;
    if (std::isinf(toReal(growth)) || (growth.zero && payment == 0)) {
        raise(ErrorCode::NoSolution);
    }
    SignedWide duration = growth.zero ? change / payment * period : 0;
    if (!growth.zero) {
        // e^(xT) = later / earlier. Each is V (g - 1) + payment g^t: in `later` V is the second value, in `earlier` the
        // first, and t is 1 for payments at the start of periods, otherwise 0. A positive growth has both divided by g.
        // Either way each has the form kept + shrinking e^z with z = -|x| p. Where kept is 0, a Term holds the exponent
        // z separately, as e^z may be too small to compute.
        const bool rises = signOf(growth) > 0;
        const SignedWide z = -absolute(growth * period);
        struct Term {
            SignedWide factor;
            SignedWide exponent;
        };
        const auto termFor = [&, payment = payment, timing = timing](Real amount) -> Term {
            SignedWide kept = SignedWide(timing == 1 ? 0 : payment) - amount;
            SignedWide shrinking = SignedWide(timing == 1 ? payment : 0) + amount;
            if (rises) {
                std::swap(kept, shrinking);
            }
            if (toReal(z) > -1) {
                return {payment + shrinking * wideExponentialMinusOne(z), 0};
            }
            return kept.zero && toReal(z) < -largestExponent ? Term{shrinking, z} : Term{kept + grown(shrinking, z), 0};
        };
        const Term later = termFor(second);
        const Term earlier = termFor(first);
        if (signOf(later.factor) * signOf(earlier.factor) <= 0) {
            raise(ErrorCode::NoSolution);
        }
        const SignedWide exponent = later.exponent - earlier.exponent;
        const SignedWide difference = (rises ? -change : change) * wideExponentialMinusOne(z);
        const SignedWide logarithm = exponent.zero ? logarithmOfRatio(later.factor, earlier.factor, difference)
                                                   : wideLogarithm(later.factor / earlier.factor) + exponent;
        duration = logarithm / growth;
    }
    if (signOf(duration) < 0) {
        raise(ErrorCode::NoSolution);
    }
    return finite(duration);
}

Value rate(std::span<const Value> arguments) {
    const auto [first, second, duration, compounding, payment, period, timing] = readArguments(arguments, 2, 3);
    const Balance balance(first, second, payment, {duration, period, timing == 1});
    if (balance.atZero().zero) {
        return {0};
    }
    std::vector<SignedWide> rates;
    if (payment == 0 && signOf(first) * signOf(second) > 0) {
        rates.push_back(
            annualRateOf(logarithmOfRatio(second, first, SignedWide(second) - first) / duration, compounding));
    } else {
        // For larger |x|, e^(-|x|u) over the shortest length u of a level is less than the ratio of any two amounts, so
        // that the first level other than 0 decides the sign of the balance, and there is no zero.
        const Real apart = std::fabs(duration - period);
        const Real reach = 40000 / std::min({duration, period, apart > 0 ? apart : period});
        for (const Real sign : {-1.0L, 1.0L}) {
            if (const auto growth = evenGrowth(balance, sign, reach)) {
                rates.push_back(annualRateOf(*growth, compounding));
            }
        }
    }
    // At a rate of -100 % per period, only a last payment at the end of its period is left as the second value.
    if (compounding > 0 && second == (timing == 1 ? 0 : payment)) {
        rates.push_back(SignedWide(-secondsOfYear) / compounding);
    }
    if (rates.empty()) {
        raise(ErrorCode::NoSolution);
    }
    return finite(*std::ranges::min_element(
        rates, [](const auto& a, const auto& b) { return signOf(absolute(a) - absolute(b)) < 0; }));
}

}  // namespace calquo
