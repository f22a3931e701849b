// Finance: the five functions as inverses of one another, and rates where solvers go astray.
#include "numeric/finance.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <ostream>
#include <random>
#include <vector>

#include "values/durations.h"
#include "values/errors.h"

namespace calquo {
namespace {

constexpr Real day = secondsOfDay;
constexpr Real year = secondsOfYear;
constexpr Real month = secondsOfMonth;

using Function = Value (*)(std::span<const Value>);

Real call(Function function, std::vector<Value> arguments) { return function(arguments).re; }

struct Plan {
    Real first, duration, annualRate, compounding, payment, period, timing;

    [[nodiscard]] Real second() const {
        return call(fv, {first, duration, annualRate, compounding, payment, period, timing});
    }
    [[nodiscard]] Real firstFrom(Real second) const {
        return call(pv, {second, duration, annualRate, compounding, payment, period, timing});
    }
    [[nodiscard]] Real paymentFrom(Real second) const {
        return call(pmt, {first, second, duration, annualRate, compounding, period, timing});
    }
    [[nodiscard]] Real durationFrom(Real second) const {
        return call(dur, {first, second, annualRate, compounding, payment, period, timing});
    }
    [[nodiscard]] Real rateFrom(Real second) const {
        return call(rate, {first, second, duration, compounding, payment, period, timing});
    }

    /// How far the plan's second value is from another one, against the size of what it is the sum of.
    [[nodiscard]] double deviation(Real other) const {
        Plan amounts = *this;
        amounts.first = std::fabs(first);
        amounts.payment = std::fabs(payment);
        return static_cast<double>(std::fabs(second() - other) / amounts.second());
    }
};

std::ostream& operator<<(std::ostream& out, const Plan& plan) {
    return out << static_cast<double>(plan.first) << " for " << static_cast<double>(plan.duration / year)
               << " years at " << static_cast<double>(plan.annualRate) << " compounded every "
               << static_cast<double>(plan.compounding) << " s, " << static_cast<double>(plan.payment) << " every "
               << static_cast<double>(plan.period) << " s, timing " << static_cast<double>(plan.timing);
}

/// Plans of all sizes: days to a century, falling and rising, with and without payments, whole and broken periods.
class Plans {
public:
    explicit Plans(unsigned seed) : generator_(seed) {}

    Plan next() {
        Plan plan = {};
        plan.first = chance(8) ? 0 : uniform(-1000, 1000);
        plan.duration = day * std::exp(uniform(0, std::log(Real{36525})));
        // Neither so steep that everything vanishes nor so flat that nothing happens.
        plan.annualRate =
            std::copysign(std::exp(uniform(-7, 0)), uniform(-1, 1)) * std::min<Real>(1, 4 * year / plan.duration);
        plan.compounding = chance(4) ? 0 : day * std::exp(uniform(0, std::log(Real{365})));
        plan.payment = chance(4) ? 0 : uniform(-100, 100);
        plan.period =
            chance(3) ? plan.duration / std::floor(uniform(1, 60)) : day * std::exp(uniform(0, std::log(Real{800})));
        if (plan.period < day) {
            plan.period = day;
        }
        plan.timing = chance(2) ? 1 : 0;
        return plan;
    }

private:
    Real uniform(Real low, Real high) {
        return low + (high - low) * static_cast<Real>(generator_()) / static_cast<Real>(generator_.max());
    }
    bool chance(unsigned oneIn) { return generator_() % oneIn == 0; }

    std::mt19937_64 generator_;
};

constexpr int sweepSize = 2000;
constexpr double tolerance = 1e-15;

TEST(Finance, BalanceIsWhatIsBookedPeriodByPeriod) {
    Plans plans(4);
    for (int count = 0; count < sweepSize; ++count) {
        Plan plan = plans.next();
        const int periods = 1 + count % 40;
        plan.compounding = plan.period;
        plan.duration = static_cast<Real>(periods) * plan.period;
        if (plan.annualRate * plan.period / year <= -1) {
            continue;
        }
        Real account = plan.first;
        for (int period = 0; period < periods; ++period) {
            if (plan.timing == 1) {
                account += plan.payment;
            }
            account += account * plan.annualRate * plan.period / year;
            if (plan.timing == 0) {
                account += plan.payment;
            }
        }
        if (plan.first == 0 && plan.payment == 0) {
            continue;
        }
        ASSERT_LT(plan.deviation(account), tolerance) << plan;
    }
}

TEST(Finance, EachFunctionUndoesTheFutureValue) {
    Plans plans(1);
    for (int count = 0; count < sweepSize; ++count) {
        const Plan plan = plans.next();
        if (plan.first == 0 && plan.payment == 0) {
            continue;
        }
        const Real second = plan.second();
        Plan found = plan;
        found.first = plan.firstFrom(second);
        ASSERT_LT(found.deviation(second), tolerance) << "pv: " << plan;
        found = plan;
        found.payment = plan.paymentFrom(second);
        ASSERT_LT(found.deviation(second), tolerance) << "pmt: " << plan;
        found = plan;
        found.duration = plan.durationFrom(second);
        ASSERT_LT(found.deviation(second), tolerance) << "dur: " << plan;
        // Without a first value a single payment at its end says nothing about the rate.
        if (plan.first == 0 && plan.duration == plan.period) {
            continue;
        }
        found = plan;
        ASSERT_NO_THROW(found.annualRate = plan.rateFrom(second)) << "rate: " << plan;
        ASSERT_LT(found.deviation(second), tolerance) << "rate: " << plan;
        // Of two rates that fit, the one nearer to 0 is the answer.
        ASSERT_LE(std::fabs(found.annualRate), std::fabs(plan.annualRate) * (1 + 1e-9L)) << "rate: " << plan;
    }
}

TEST(Finance, RateIsMissingOnlyWhereTheBalanceCrossesNowhere) {
    Plans plans(5);
    int solved = 0;
    int unsolved = 0;
    for (int count = 0; count < sweepSize; ++count) {
        Plan plan = plans.next();
        plan.compounding = 0;
        if (plan.payment == 0) {
            continue;
        }
        // Any second value, reached or not, of the size of the others or far from it.
        const Real size = count % 2 == 0 ? 1 : std::exp(50 * std::sin(static_cast<Real>(7 * count)));
        const Real second = size * (plan.first + (plan.payment - plan.first) * std::sin(static_cast<Real>(count)));
        const auto misses = [&](Real annualRate) {
            Plan other = plan;
            other.annualRate = annualRate;
            return other.second() > second;
        };
        try {
            Plan found = plan;
            found.annualRate = plan.rateFrom(second);
            ASSERT_LT(found.deviation(second), tolerance) << plan << " to " << static_cast<double>(second);
            ++solved;
        } catch (const Except& error) {
            ASSERT_EQ(error.code, ErrorCode::NoSolution);
            ++unsolved;
            // From losing nearly all in a day to growing as fast: the second value stays on one side.
            const bool side = misses(0);
            for (Real step = 1e-4L; step < 4000; step *= 1.1L) {
                const Real annualRate = step * year / plan.duration;
                ASSERT_EQ(misses(annualRate), side) << plan << " to " << static_cast<double>(second);
                ASSERT_EQ(misses(-annualRate), side) << plan << " to " << static_cast<double>(second);
            }
        }
    }
    EXPECT_GT(solved, sweepSize / 4);
    EXPECT_GT(unsolved, sweepSize / 20);
}

TEST(Finance, RatesAreFoundToTheLastDigits) {
    const Real none = std::numeric_limits<Real>::quiet_NaN();
    const Real huge = 1e4000L;
    // Growths v of a year with (8 v - 9)^2 = 0, = the last digit of 225, and = less than 0.
    const Real twoRates = std::nextafter(Real{-225}, Real{0});
    const Real noRate = std::nextafter(Real{-225}, -huge);
    const struct {
        const char* what;
        std::vector<Value> arguments;
        Real wanted;  ///< annual rate, or none
    } rows[] = {
        {"one zero of order two", {64, -225, 2 * year, year, -144, year}, 0.125L},
        {"two zeros side by side", {64, twoRates, 2 * year, year, -144, year}, 0.125L - 0x1p-31L},
        {"none, by the last digit", {64, noRate, 2 * year, year, -144, year}, none},
        {"half of it lost every month", {20, 20, 60 * month, month, 10, month}, -6},
        {"tripled for 500 years", {1, std::pow(Real{3}, Real{6000}), 6000 * month}, 24},
        {"payments next to nothing", {1 / huge, 1e100L, year, 0, 1 / huge}, 4100 * std::log(Real{10})},
        {"amounts beyond the range on the way", {100, -342, huge, huge, -221, huge / 2}, 0},
        {"no growth helps", {-1, huge, 1000 * year, month, -1 / huge, day}, none},
        {"no number", {none, 1, year, month, 1}, none},
    };
    const auto start = std::chrono::steady_clock::now();
    for (const auto& [what, arguments, wanted] : rows) {
        Real found = none;
        try {
            found = rate(arguments).re;
        } catch (const Except& error) {
            EXPECT_EQ(error.code, ErrorCode::NoSolution) << what;
        }
        EXPECT_TRUE(std::isnan(wanted) ? std::isnan(found) : std::fabs(found - wanted) <= 0x1p-63L * std::fabs(wanted))
            << what << ": " << static_cast<double>(found) << " for " << static_cast<double>(wanted);
    }
    EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(), 0.1);
}

}  // namespace
}  // namespace calquo
