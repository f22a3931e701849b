// The balance, second value = first value * G + P * s, solved with tracked numbers.
#include "balance.h"

#include <cmath>

#include "values/durations.h"

namespace calquo::balance {
namespace {

/// The logarithm of the growth in a second.
Tracked logarithmOfGrowth(const Tracked& rate, const Tracked& period) {
    const Tracked year = secondsOfYear;
    return period.isZero() ? rate / year : log(1 + rate * period / year) / period;
}

/// The terms of the balance.
struct Terms {
    Tracked growth;    ///< G
    Tracked payments;  ///< s
};

Terms termsOf(const Tracked& rate, const Tracked& duration, const Tracked& period, const Tracked& paymentPeriod,
              const Tracked& timing) {
    const Tracked logarithm = logarithmOfGrowth(rate, period);
    if (logarithm.isZero()) {
        return {1, duration / paymentPeriod};
    }
    const Tracked growth = exp(logarithm * duration), ofPayments = exp(logarithm * paymentPeriod);
    const Tracked payments = (growth - 1) / (ofPayments - 1);
    return {growth, timing.isZero() ? payments : payments * ofPayments};
}

/// first value * G + P * s for first value, duration, rate, compounding period, payment, payment period, timing.
Tracked futureValue(const std::vector<Tracked>& a) {
    const Terms terms = termsOf(a[2], a[1], a[3], a[5], a[6]);
    return a[0] * terms.growth + a[4] * terms.payments;
}

std::vector<Tracked> trackedParts(Arguments arguments) {
    std::vector<Tracked> parts;
    for (const std::complex<Real>& argument : arguments) {
        parts.emplace_back(argument.real());
    }
    return parts;
}

}  // namespace

Exact fv(Arguments arguments) { return {inRange(futureValue(trackedParts(arguments)))}; }

Exact pv(Arguments arguments) {
    const auto a = trackedParts(arguments);
    const Terms terms = termsOf(a[2], a[1], a[3], a[5], a[6]);
    return {inRange((a[0] - a[4] * terms.payments) / terms.growth)};
}

Exact pmt(Arguments arguments) {
    const auto a = trackedParts(arguments);
    const Terms terms = termsOf(a[3], a[2], a[4], a[5], a[6]);
    return {inRange((a[1] - a[0] * terms.growth) / terms.payments)};
}

Exact dur(Arguments arguments) {
    const auto a = trackedParts(arguments);
    const Tracked logarithm = logarithmOfGrowth(a[2], a[3]);
    if (logarithm.isZero()) {
        return {(a[1] - a[0]) * a[5] / a[4]};
    }
    // second value + P h = (first value + P h) G, where h = g^t / (g - 1).
    const Tracked ofPayments = exp(logarithm * a[5]);
    const Tracked share = a[4] * (a[6].isZero() ? Tracked(1) : ofPayments) / (ofPayments - 1);
    return {inRange(log((a[1] + share) / (a[0] + share)) / logarithm)};
}

Exact rate(Arguments arguments) {
    // The balance grows with the rate, since no amount is negative.
    constexpr int widthBits = 20, certainBits = 120;
    const auto a = trackedParts(arguments);
    const auto excess = [&](const Tracked& rate) {
        return futureValue({a[0], a[2], rate, a[3], a[4], a[5], a[6]}) - a[1];
    };
    const Tracked width = a[7] * std::ldexp(Real(1), -widthBits);
    Tracked low = a[7] - width, high = a[7] + width;
    if (excess(low).sign() >= 0 || excess(high).sign() <= 0) {
        throw Undecided();
    }
    for (int i = 0; i < certainBits - widthBits; ++i) {
        const Tracked middle = (low + high) / 2;
        (excess(middle).sign() < 0 ? low : high) = middle;
    }
    return {low};
}

void balanced(std::vector<std::complex<Real>>& arguments) {
    const Real rate = arguments[1].real();
    const std::vector<std::complex<Real>> forward = {arguments[0], arguments[2], rate,        arguments[3],
                                                     arguments[4], arguments[5], arguments[6]};
    arguments[1] = mpfr_get_ld(fv(forward).re.get(), MPFR_RNDN);
    arguments.emplace_back(rate);
}

}  // namespace calquo::balance
