// Rows of statistics and finance.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "balance.h"
#include "rows.h"

namespace calquo {
namespace {

/// The result of a step in extended precision. 6 when it has overflowed.
Complex inRange(const Complex& z) {
    if (!std::isfinite(z.real()) || !std::isfinite(z.imag())) {
        throw Refusal{ErrorCode::DomainRange};
    }
    return z;
}

Complex product(const Complex& z, const Complex& w) {
    return {z.real() * w.real() - z.imag() * w.imag(), z.imag() * w.real() + z.real() * w.imag()};
}

/// From the last item to the first.
Complex steps(Arguments list, const Complex& start, Complex (*step)(const Complex& all, const Complex& item)) {
    return std::accumulate(list.rbegin(), list.rend(), start,
                           [step](const Complex& all, const Complex& z) { return inRange(step(all, z)); });
}

Complex sum(Arguments list) {
    return steps(list, 0, [](const Complex& all, const Complex& z) { return all + z; });
}

Complex sumOfSquares(Arguments list) {
    return steps(list, 0, [](const Complex& all, const Complex& z) {
        const Exact square = sqr(Exact(z));
        return all + Complex(mpfr_get_ld(square.re.get(), MPFR_RNDN), mpfr_get_ld(square.im.get(), MPFR_RNDN));
    });
}

Complex productOf(Arguments list) { return steps(list, 1, product); }

Exact length(Arguments list) { return static_cast<Real>(list.size()); }

/// (sum of squares - square of sum / n) / divisor.
Exact variance(Arguments list, const Exact& divisor) {
    Exact sum = Real(0), squares = Real(0);
    for (const Complex& z : list) {
        sum = sum + z;
        squares = squares + sqr(z);
    }
    return (squares - sqr(sum) / length(list)) / divisor;
}

Exact sampleVariance(Arguments list) { return variance(list, static_cast<Real>(list.size() - 1)); }
Exact populationVariance(Arguments list) { return variance(list, length(list)); }

bool isBefore(const Complex& z, const Complex& w) {
    return z.real() < w.real() || (z.real() == w.real() && z.imag() < w.imag());
}

Exact median(Arguments list) {
    std::vector<Complex> sorted(list.begin(), list.end());
    std::sort(sorted.begin(), sorted.end(), isBefore);
    const std::size_t half = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? Exact(sorted[half]) : (Exact(sorted[half - 1]) + sorted[half]) / Real(2);
}

void addStatistics(Rows& rows) {
    const Range alike{-100, -30, Signs::Either, false, 98765.4321L, "98765.4321", Signs::Positive};
    const Range closeBy{-8, 8, Signs::Positive, false, 1e10L, "1e10", Signs::Positive};
    const Range powers{-100, 100};
    const std::vector<Region> lists = {extreme, wide, everyday, alike, {powers, powers}, {everyday, everyday}};
    std::vector<Region> spread = lists;
    spread.push_back(closeBy);
    spread.push_back({alike, alike});
    rows.addList("count", some, length);
    rows.addList("sum", lists, sum, Reference::Steps);
    rows.addList("sum2", lists, sumOfSquares, Reference::Steps);
    rows.addList("prod", {everyday, powers, {everyday, everyday}}, productOf, Reference::Steps);
    const Reckoning average = [](Arguments a) { return Exact(sum(a)) / length(a); };
    rows.addList("avg", lists, average);
    rows.addList("mean", some, average);
    rows.addList("avgG", {everydayPositive, everyday, {everyday, everyday}},
                 [](Arguments a) { return root(productOf(a), length(a)); });
    rows.addList("median", lists, median);
    rows.addList("max", lists, [](Arguments a) { return *std::max_element(a.begin(), a.end(), isBefore); });
    rows.addList("min", lists, [](Arguments a) { return *std::min_element(a.begin(), a.end(), isBefore); });
    rows.addList("var", spread, sampleVariance);
    rows.addList("varP", spread, populationVariance);
    rows.addList("sd", spread, [](Arguments a) { return sqrt(sampleVariance(a)); });
    rows.addList("sdP", spread, [](Arguments a) { return sqrt(populationVariance(a)); });
}

void addFinance(Rows& rows) {
    const Range amount{0, 20, Signs::Positive}, larger{20, 24, Signs::Positive}, payment{-4, 10, Signs::Positive};
    const Range anyPayment{-4, 10}, duration{17, 30, Signs::Positive}, rate{-10, -1, Signs::Positive};
    // Payments that outlast the duration would make two rates possible.
    const Range longDuration{24, 30, Signs::Positive};
    const Range anyRate{-10, -1}, period{12, 24, Signs::Positive}, paymentPeriod{17, 24, Signs::Positive};
    const Range timing{-1, 1, Signs::Positive, true};
    const auto add = [&](const std::string& name, const std::vector<Region>& firstArguments, const Range& ofPayment,
                         const Reckoning& exact, const auto&... adjust) {
        for (const Range& compounding : {period, zero}) {
            std::vector<Region> regions = firstArguments;
            regions.insert(regions.end(), {compounding, ofPayment, paymentPeriod, timing});
            rows.add({name, name + "(#; #; #; #; #; #; #)", regions, exact, Reference::Exact, adjust...});
        }
    };
    add("fv", {amount, duration, anyRate}, anyPayment, balance::fv);
    add("pv", {amount, duration, anyRate}, anyPayment, balance::pv);
    add("dur", {amount, larger, rate}, payment, balance::dur);
    add("rate", {amount, rate, longDuration}, payment, balance::rate, balance::balanced);
    for (const Range& compounding : {period, zero}) {
        rows.add({"pmt",
                  "pmt(#; #; #; #; #; #; #)",
                  {amount, amount, duration, anyRate, compounding, paymentPeriod, timing},
                  balance::pmt});
    }
}

}  // namespace

void addListFunctions(Rows& rows) {
    addStatistics(rows);
    addFinance(rows);
}

}  // namespace calquo
