// Finance: the five functions as inverses of one another, and rates where solvers go astray.
#include "numeric/finance.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <ostream>
#include <random>

#include "values/durations.h"
#include "values/errors.h"

namespace calquo {
namespace {

constexpr Real day = secondsOfDay;
constexpr Real year = secondsOfYear;

struct Plan {
    Real first, duration, annualRate, compounding, payment, period, timing;

    [[nodiscard]] Real second() const {
        return fv(std::array<Value, 7>{first, duration, annualRate, compounding, payment, period, timing}).re;
    }
    /// The quantity found from a second value and the others, put in its place.
    [[nodiscard]] Plan with(Real Plan::*quantity, Real second) const {
        const std::array<Value, 7> forFirst = {second, duration, annualRate, compounding, payment, period, timing};
        const std::array<Value, 7> forPayment = {first, second, duration, annualRate, compounding, period, timing};
        const std::array<Value, 7> forDuration = {first, second, annualRate, compounding, payment, period, timing};
        const std::array<Value, 7> forRate = {first, second, duration, compounding, payment, period, timing};
        Plan found = *this;
        found.*quantity = quantity == &Plan::first      ? pv(forFirst).re
                          : quantity == &Plan::payment  ? pmt(forPayment).re
                          : quantity == &Plan::duration ? dur(forDuration).re
                                                        : rate(forRate).re;
        return found;
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

constexpr int sweepSize = 1000;
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
        for (const auto quantity : {&Plan::first, &Plan::payment, &Plan::duration}) {
            ASSERT_LT(plan.with(quantity, second).deviation(second), tolerance) << plan;
        }
        // Without a first value a single payment at its end says nothing about the rate.
        if (plan.first == 0 && plan.duration == plan.period) {
            continue;
        }
        Plan found = {};
        ASSERT_NO_THROW(found = plan.with(&Plan::annualRate, second)) << plan;
        ASSERT_LT(found.deviation(second), tolerance) << plan;
        // Of two rates that fit, the one nearer to 0 is the answer.
        ASSERT_LE(std::fabs(found.annualRate), std::fabs(plan.annualRate) * (1 + 1e-9L)) << plan;
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
            ASSERT_LT(plan.with(&Plan::annualRate, second).deviation(second), tolerance)
                << plan << " to " << static_cast<double>(second);
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

}  // namespace
}  // namespace calquo
