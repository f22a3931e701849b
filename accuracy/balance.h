// The exact answers of the finance functions; see numeric/finance.h for the balance that they solve.
#pragma once

#include <complex>
#include <span>
#include <vector>

#include "exact.h"

namespace calquo::balance {

using Arguments = std::span<const std::complex<Real>>;

Exact fv(Arguments arguments);
Exact pv(Arguments arguments);
Exact pmt(Arguments arguments);
Exact dur(Arguments arguments);
/// Of arguments made by balanced().
Exact rate(Arguments arguments);

/// Arguments of rate whose second value is about what the first grows to at the rate that stands in its place; that
/// rate is appended, for the exact one to be found next to it.
void balanced(std::vector<std::complex<Real>>& arguments);

}  // namespace calquo::balance
