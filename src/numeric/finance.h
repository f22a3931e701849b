// The time value of money: future value, present value, payment, duration and rate of one balance.
//
// With Y the seconds of a Gregorian year, r the nominal annual rate, c the compounding period (0: continuous), T the
// duration, P the payment every p seconds, t = 0 for payments at the end of a period and 1 at its start, the balance is
//     second value = first value * G + P * s
//     G = (1 + r c / Y)^(T / c), or e^(r T / Y) for c = 0: the growth over T; g: the same over p
//     s = (G - 1) / (g - 1) * g^t, or T / p for g = 1: what payments of 1 have grown to
// Each function solves it for one quantity, so the five are inverses of one another, and a payment that lowers a debt
// is negative. Results are real and have no positions.
//
// Arguments are real (11) and finite (6), in the order given below; of seven positions the last may be missing. A
// period of payment or compounding defaults to a month, a twelfth of Y, a payment and a timing to 0. A duration and a
// payment period must be at least 86400 seconds (16), a compounding period not negative (13), a timing 0 or 1 (2).
// These errors point at the end of the argument's literal. 18 ("no solution") where there is no finite answer, or only
// a negative duration, and for a rate below -Y / c, at which more than all would be lost every c seconds.
#pragma once

#include <span>

#include "values/value.h"

namespace calquo {

/// The second value. Arguments: first value, duration, rate, compounding period, payment, payment period, timing.
Value fv(std::span<const Value> arguments);

/// The first value. Arguments: second value, duration, rate, compounding period, payment, payment period, timing.
Value pv(std::span<const Value> arguments);

/// The payment. Arguments: first value, second value, duration, rate, compounding period, payment period, timing.
Value pmt(std::span<const Value> arguments);

/// The duration in seconds. Arguments: first value, second value, rate, compounding period, payment, payment period,
/// timing.
Value dur(std::span<const Value> arguments);

/// The nominal annual rate. Arguments: first value, second value, duration, compounding period, payment, payment
/// period, timing. Where two rates satisfy the balance, the one nearer to 0; -Y / c, the rate that takes everything, is
/// one of them for c > 0. 0 where every rate does.
Value rate(std::span<const Value> arguments);

}  // namespace calquo
