// The table: formulas, and the regions where they are asked.
#include "functions.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string_view>

#include "balance.h"
#include "values/extended.h"
#include "whole_numbers.h"

namespace calquo {
namespace {

using Complex = std::complex<Real>;
using Function = std::function<Exact(Arguments)>;

// --- Where
// ------------------------------------------------------------------------------------------------------------

constexpr Range zero{};
constexpr Range wide{-8000, 8000};
constexpr Range extreme{-16382, 16384};
constexpr Range positive{-8000, 8000, Signs::Positive};
constexpr Range everyday{-4, 7};
constexpr Range everydayPositive{-4, 7, Signs::Positive};
constexpr Range nearZero{-70, -1};
constexpr Range nearOne{-63, -1, Signs::Either, false, 1, "1"};
constexpr Range nearPlusOne{-63, -1, Signs::Either, false, 1, "1", Signs::Positive};
constexpr Range nearMultiples{-60, -1, Signs::Either, false, pi / 2, "pi/2", Signs::Either, 1000};
constexpr Range exponents{0, 14};

constexpr Range words{0, 64, Signs::Positive, true};
constexpr Range smallWords{0, 12, Signs::Positive, true};
constexpr Range wholes{0, 62, Signs::Either, true};
constexpr Range largeWholes{0, 8000, Signs::Either, true};

/// The axes, the neighbourhood of branch points and of cuts, and everywhere.
const std::vector<Region> plane = {
    extreme,
    wide,
    everyday,
    nearOne,
    {everyday, everyday},
    {extreme, extreme},
    {wide, wide},
    {nearZero, nearZero},
    {nearOne, nearZero},
    {nearZero, nearOne},
    {zero, wide},
    {zero, nearOne},
    {{0, 100}, {-100, -10}},
    {{-100, -10}, {0, 100}},
};

std::vector<Region> planeAnd(std::initializer_list<Region> more) {
    std::vector<Region> regions = plane;
    regions.insert(regions.end(), more);
    return regions;
}

const std::vector<Region> angles =
    planeAnd({nearMultiples, {nearMultiples, nearZero}, {everyday, exponents}, {exponents, everyday}});
const std::vector<Region> hyperbolicAngles =
    planeAnd({exponents, {exponents, everyday}, {nearZero, nearMultiples}, {zero, nearMultiples}});
const std::vector<Region> some = {everyday, {everyday, everyday}};
const std::vector<Region> anywhere = {extreme, wide, everyday, {everyday, everyday}, {wide, wide}, {extreme, extreme}};
const std::vector<Region> roundable = {{{-4, 66}},
                                       wide,
                                       {{-70, -1, Signs::Either, false, 0.5, "1/2", Signs::Either, 2000}},
                                       {{-70, -1, Signs::Either, false, 1, "1", Signs::Either, 2000}},
                                       {everyday, everyday}};

// --- What
// -------------------------------------------------------------------------------------------------------------

Function of(Exact (*function)(const Exact&)) {
    return [function](Arguments a) { return function(a[0]); };
}

Function of(Exact (*function)(const Exact&, const Exact&)) {
    return [function](Arguments a) { return function(a[0], a[1]); };
}

Function inverseOf(Exact (*function)(const Exact&)) {
    return [function](Arguments a) { return inv(function(a[0])); };
}

Function ofInverse(Exact (*function)(const Exact&)) {
    return [function](Arguments a) { return function(inv(a[0])); };
}

/// A function of a part of a number, for both parts.
Function ofParts(Real (*function)(Real)) {
    return [function](Arguments a) { return Complex(function(a[0].real()), function(a[0].imag())); };
}

Function ofWords(std::uint64_t (*function)(std::uint64_t, std::uint64_t)) {
    return [function](Arguments a) {
        return static_cast<Real>(function(wordFrom(a[0].real()), a.size() > 1 ? wordFrom(a[1].real()) : 0));
    };
}

Function ofWordList(std::uint64_t (*function)(const std::vector<std::uint64_t>&)) {
    return [function](Arguments a) {
        std::vector<std::uint64_t> list;
        std::transform(a.begin(), a.end(), std::back_inserter(list),
                       [](const Complex& z) { return wordFrom(z.real()); });
        return static_cast<Real>(function(list));
    };
}

/// The result of steps in extended precision. 6 when one of them has overflowed.
Complex inRange(const Complex& z) {
    if (std::isinf(z.real()) || std::isinf(z.imag())) {
        throw Refusal{ErrorCode::DomainRange};
    }
    return z;
}

Complex product(const Complex& z, const Complex& w) {
    return {z.real() * w.real() - z.imag() * w.imag(), z.imag() * w.real() + z.real() * w.imag()};
}

/// From the last item to the first.
Complex steps(Arguments list, Complex start, Complex (*step)(const Complex& sum, const Complex& item)) {
    return inRange(std::accumulate(list.rbegin(), list.rend(), start, step));
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

/// Of a value from one unit to another, each a factor and the offset of a scale.
Complex convert(const Complex& x, const Complex& from, const Complex& to) {
    return inRange(to.imag() + from.real() * ((x.real() - from.imag()) / to.real()));
}

/// Its series for the gamma function, without the rounding of the steps.
Exact factorial(Arguments a) {
    constexpr Real coefficients[] = {76.18009172947146L,  -86.50532032941678L,   24.01409824083091L,
                                     -1.231739572450155L, 0.001208650973866179L, -5.395239384953e-06L};
    const Tracked x = a[0].real() + 1;
    Tracked series = 1.000000000190015L;
    Tracked shifted = x;
    for (const Real coefficient : coefficients) {
        shifted = shifted + 1;
        series = series + coefficient / shifted;
    }
    const Exact power = exp(Exact((x + Real(0.5)) * log(x + Real(5.5))));
    const Tracked gamma = series * sqrt(2 * Tracked::pi()) / x * power.re * exp(-(x + Real(5.5)));
    return {someWholeNextTo(gamma)};
}

Real fractionOf(Real x) { return x - std::trunc(x); }

// --- The rows
// ---------------------------------------------------------------------------------------------------------

class Table {
public:
    Table() {
        addArithmetic();
        addElementary();
        addWholeNumbers();
        addLists();
        addFinance();
    }

    std::vector<MeasuredFunction> rows;

private:
    /// A function of one argument, in several regions.
    void add(const std::string& name, const std::vector<Region>& regions, const Function& exact) {
        for (const Region& region : regions) {
            rows.push_back({name, name + "(#)", {region}, exact});
        }
    }

    void addPair(const std::string& name, const std::vector<Region>& regions, const Function& exact) {
        rows.push_back({name, name + "(#; #)", regions, exact});
    }

    void addOperator(const std::string& name, const std::vector<Region>& regions, const Function& exact) {
        rows.push_back({name, "# " + name + " #", regions, exact});
    }

    void addList(const std::string& name, const std::vector<Region>& regions, const Function& exact,
                 Reference reference = Reference::Exact) {
        for (const Region& region : regions) {
            rows.push_back({name, name + "(#...)", {region}, exact, reference});
        }
    }

    void addArithmetic() {
        struct Operation {
            const char* name;
            const char* sign;
            Function exact;
        };
        const Operation operations[] = {{"add", "+", [](Arguments a) { return Exact(a[0]) + a[1]; }},
                                        {"sub", "-", [](Arguments a) { return Exact(a[0]) - a[1]; }},
                                        {"mul", "*", [](Arguments a) { return Exact(a[0]) * a[1]; }},
                                        {"div", "/", [](Arguments a) { return Exact(a[0]) / a[1]; }}};
        for (const Operation& operation : operations) {
            for (const Region& region : anywhere) {
                addOperator(operation.sign, {region, region}, operation.exact);
            }
            addOperator(operation.sign, {wholes, wholes}, operation.exact);
            addPair(operation.name, {everyday, everyday}, operation.exact);
            addPair(operation.name, {{everyday, everyday}, {everyday, everyday}}, operation.exact);
        }
        const Function percent = [](Arguments a) { return Exact(a[0]) / Real(100); };
        for (const Region& region : anywhere) {
            rows.push_back({"%", "#%", {region}, percent});
        }
        add("pct", some, percent);
        add("neg", anywhere, [](Arguments a) { return -Exact(a[0]); });
        add("inv", plane, of(inv));
        add("sqr", plane, of(sqr));
        add("cube", {everyday, {{-5000, 5000}}, {everyday, everyday}, {{-5000, 5000}, {-5000, 5000}}}, of(cube));

        add("real", anywhere, [](Arguments a) { return Exact(a[0].real()); });
        add("imag", anywhere, [](Arguments a) { return Exact(a[0].imag()); });
        add("conj", anywhere, [](Arguments a) { return Exact(std::conj(a[0])); });
        add("norm2", anywhere, of(norm2));
        add("abs", plane, of(abs));
        add("norm", some, of(abs));
        add("arg", plane, of(arg));
        add("sign", plane, of(sign));
        add("signum", some, of(sign));
        addPair("polar", {positive, everyday}, of(polar));
        addPair("polar", {everyday, nearMultiples}, of(polar));

        const Function conversion = [](Arguments a) { return convert(a[0], a[1], a[2]); };
        const Region unit(everydayPositive), scale(everydayPositive, Range{0, 12});
        for (const Region& from : {unit, scale}) {
            rows.push_back({"convert", "convert(#; #; #)", {everyday, from, scale}, conversion, Reference::Steps});
            rows.push_back({"->", "#(#) -> (#)", {everydayPositive, from, scale}, conversion, Reference::Steps});
        }
        const Function constants[] = {[](Arguments) { return Exact(Tracked::pi()); },
                                      [](Arguments) { return exp(Exact(Real(1))); }};
        rows.push_back({"pi", "pi", {}, constants[0]});
        rows.push_back({"e", "e", {}, constants[1]});
    }

    void addElementary() {
        add("exp", hyperbolicAngles, of(exp));

        add("ln", plane, of(ln));
        rows.push_back({"ln", "ln(#)", {{everyday, everyday}}, of(ln), Reference::Exact, [](auto& arguments) {
                            arguments[0] /= std::abs(arguments[0]);  // next to the unit circle
                        }});
        const Function toTen = [](Arguments a) { return logB(a[0], Real(10)); };
        const Function toTwo = [](Arguments a) { return logB(a[0], Real(2)); };
        add("log", plane, toTen);
        add("log10", some, toTen);
        add("lg", plane, toTwo);
        add("log2", some, toTwo);
        addPair("logB", {positive, positive}, of(logB));
        addPair("logB", {nearOne, everydayPositive}, of(logB));
        addPair("logB", {everydayPositive, nearOne}, of(logB));
        addPair("logB", {everyday, everyday}, of(logB));
        addPair("logB", {{everyday, everyday}, {everyday, everyday}}, of(logB));
        addPair("logB", {{wide, wide}, {wide, wide}}, of(logB));

        add("sqrt", plane, of(sqrt));
        add("cbrt", plane, [](Arguments a) { return root(a[0], Real(3)); });
        const Range smallWholes{0, 7, Signs::Either, true};
        const std::vector<std::vector<Region>> powers = {
            {positive, {{-14, 1}}},
            {{{-100, 100, Signs::Positive}}, {{-40, 7}}},
            {nearPlusOne, {{0, 70}}},
            {{{-100, 100, Signs::Negative}}, smallWholes},
            {{{-100, 100, Signs::Negative}}, {{-4, 5}}},
            {{everyday, everyday}, smallWholes},
            {{everyday, everyday}, everyday},
            {everyday, {everyday, everyday}},
            {{everyday, everyday}, {everyday, everyday}},
            {{wide, wide}, {{-14, 0}, {-14, 0}}},
        };
        for (const std::vector<Region>& regions : powers) {
            addOperator("^", regions, of(pow));
        }
        addOperator("**", powers[1], of(pow));
        addPair("pow", powers[1], of(pow));
        addPair("pow", powers.back(), of(pow));
        addPair("root", {positive, {{1, 6, Signs::Positive}}}, of(root));
        addPair("root", {positive, {{1, 6, Signs::Positive, true}}}, of(root));
        addPair("root", {{{-100, 100, Signs::Negative}}, smallWholes}, of(root));
        addPair("root", {everyday, everyday}, of(root));
        addPair("root", {{everyday, everyday}, {everyday, everyday}}, of(root));
        addPair("root", {{wide, wide}, smallWholes}, of(root));

        struct Trigonometric {
            const char* name;
            Function exact;
            const char* inverseName;
            Function inverse;
        };
        const Trigonometric circular[] = {{"sin", of(sin), "aSin", of(aSin)},
                                          {"cos", of(cos), "aCos", of(aCos)},
                                          {"tan", of(tan), "aTan", of(aTan)},
                                          {"cot", inverseOf(tan), "aCot", ofInverse(aTan)},
                                          {"sec", inverseOf(cos), "aSec", ofInverse(aCos)},
                                          {"csc", inverseOf(sin), "aCsc", ofInverse(aSin)}};
        for (const Trigonometric& row : circular) {
            add(row.name, angles, row.exact);
            add(row.inverseName, plane, row.inverse);
        }
        const Trigonometric hyperbolic[] = {{"sinH", of(sinH), "aSinH", of(aSinH)},
                                            {"cosH", of(cosH), "aCosH", of(aCosH)},
                                            {"tanH", of(tanH), "aTanH", of(aTanH)},
                                            {"cotH", inverseOf(tanH), "aCotH", of(aCotH)},
                                            {"secH", inverseOf(cosH), "aSecH", ofInverse(aCosH)},
                                            {"cscH", inverseOf(sinH), "aCscH", ofInverse(aSinH)}};
        for (const Trigonometric& row : hyperbolic) {
            add(row.name, hyperbolicAngles, row.exact);
            add(row.inverseName, plane, row.inverse);
        }
    }

    void addWholeNumbers() {
        add("floor", roundable, ofParts(std::floor));
        add("ceil", roundable, ofParts(std::ceil));
        add("whole", roundable, ofParts(std::trunc));
        add("round", roundable, ofParts(std::round));
        add("sRound", roundable, ofParts(std::nearbyint));
        add("fraction", roundable, ofParts(fractionOf));
        for (const std::vector<Region>& regions : {std::vector<Region>{wholes, wholes},
                                                   {wholes, {{0, 20, Signs::Either, true}}},
                                                   {largeWholes, wholes},
                                                   {largeWholes, largeWholes}}) {
            addPair("mod", regions, quotient);
            addPair("rem", regions, remainder);
        }
        const Range smallFactorials{0, 4, Signs::Positive, true};
        const Range largeFactorials{4, 11, Signs::Positive, true};
        add("fact", {smallFactorials}, factorial);
        rows.push_back({"!", "#!", {smallFactorials}, factorial});
        rows.push_back({"fact", "fact(#)", {largeFactorials}, factorial, Reference::Series});

        const std::vector<Region> primes = {smallWords, {{0, 49, Signs::Positive, true}}, words};
        add("prime", primes, ofWords(isPrime));
        add("prNext", primes, ofWords(nextPrime));
        add("prNext", {{{-4, 20, Signs::Positive}}}, ofWords(nextPrime));
        add("prPrev", primes, ofWords(previousPrime));

        using Word = std::uint64_t;
        struct BitFunction {
            const char* name;
            Word (*function)(Word, Word);
        };
        const BitFunction bitFunctions[] = {
            {"bAnd", [](Word a, Word b) { return a & b; }},    {"bOr", [](Word a, Word b) { return a | b; }},
            {"bXor", [](Word a, Word b) { return a ^ b; }},    {"bNand", [](Word a, Word b) { return ~(a & b); }},
            {"bNor", [](Word a, Word b) { return ~(a | b); }}, {"bEq", [](Word a, Word b) { return ~(a ^ b); }},
            {"bImp", [](Word a, Word b) { return ~a | b; }},   {"bInh", [](Word a, Word b) { return a & ~b; }}};
        for (const BitFunction& row : bitFunctions) {
            addPair(row.name, {words, words}, ofWords(row.function));
        }
        add("bNot", {words}, ofWords([](Word a, Word) { return ~a; }));
        addPair("bKeep", {words, {{0, 7, Signs::Positive, true}}},
                ofWords([](Word a, Word count) { return count < 64 ? a & ((Word{1} << count) - 1) : a; }));
        addPair("bShift", {words, {{0, 7, Signs::Either, true}}}, [](Arguments a) {
            const Real shifted = std::trunc(std::ldexp(a[0].real(), -static_cast<int>(a[1].real())));
            return std::abs(a[1].real()) < 64 ? std::fmod(shifted, 0x1p64L) : 0;
        });
        add("rndSeed", {words}, [](Arguments a) { return Exact(a[0]); });
        for (const Region& region : {Region(smallWords), Region(words)}) {
            addList("gcd", {region}, ofWordList(greatestDivisor));
            addList("gcf", {region}, ofWordList(greatestDivisor));
            addList("lcm", {region}, ofWordList(leastMultiple));
        }
        rows.push_back({"int", "int(#; #; #)", {everyday, everyday, everyday}, [](Arguments) -> Exact {
                            throw Refusal{ErrorCode::UnknownName};
                        }});
    }

    void addLists() {
        const Range alike{-100, -30, Signs::Either, false, 98765.4321L, "98765.4321", Signs::Positive};
        const Range closeBy{-8, 8, Signs::Positive, false, 1e10L, "1e10", Signs::Positive};
        const Range powers{-100, 100};
        const std::vector<Region> lists = {everyday, wide, alike, {powers, powers}, {everyday, everyday}};
        std::vector<Region> spread = lists;
        spread.push_back(closeBy);
        spread.push_back({alike, alike});
        addList("count", some, length);
        addList("sum", lists, sum, Reference::Steps);
        addList("sum2", lists, sumOfSquares, Reference::Steps);
        addList("prod", {everyday, powers, {everyday, everyday}}, productOf, Reference::Steps);
        const Function average = [](Arguments a) { return Exact(sum(a)) / length(a); };
        addList("avg", lists, average);
        addList("mean", some, average);
        addList("avgG", {everydayPositive, everyday, {everyday, everyday}},
                [](Arguments a) { return root(productOf(a), length(a)); });
        addList("median", lists, median);
        addList("max", lists, [](Arguments a) { return *std::max_element(a.begin(), a.end(), isBefore); });
        addList("min", lists, [](Arguments a) { return *std::min_element(a.begin(), a.end(), isBefore); });
        addList("var", spread, sampleVariance);
        addList("varP", spread, populationVariance);
        addList("sd", spread, [](Arguments a) { return sqrt(sampleVariance(a)); });
        addList("sdP", spread, [](Arguments a) { return sqrt(populationVariance(a)); });
    }

    void addFinance() {
        const Range amount{0, 20, Signs::Positive}, larger{20, 24, Signs::Positive}, payment{-4, 10, Signs::Positive};
        const Range anyPayment{-4, 10}, duration{17, 30, Signs::Positive}, rate{-10, -1, Signs::Positive};
        const Range anyRate{-10, -1}, period{12, 24, Signs::Positive}, paymentPeriod{17, 24, Signs::Positive};
        const Range timing{-1, 1, Signs::Positive, true};
        for (const Range& compounding : {period, zero}) {
            const std::vector<Region> forward = {amount,     duration,      anyRate, compounding,
                                                 anyPayment, paymentPeriod, timing};
            addFinanceRow("fv", forward, balance::fv);
            addFinanceRow("pv", forward, balance::pv);
            addFinanceRow("pmt", {amount, amount, duration, anyRate, compounding, paymentPeriod, timing}, balance::pmt);
            addFinanceRow("dur", {amount, larger, rate, compounding, payment, paymentPeriod, timing}, balance::dur);
            // Payments that outlast the duration would make two rates possible.
            addFinanceRow("rate",
                          {amount, rate, {{24, 30, Signs::Positive}}, compounding, payment, paymentPeriod, timing},
                          balance::rate);
            rows.back().adjust = balance::balanced;
        }
    }

    void addFinanceRow(const std::string& name, const std::vector<Region>& regions, const Function& exact) {
        rows.push_back({name, name + "(#; #; #; #; #; #; #)", regions, exact});
    }
};

}  // namespace

std::span<const MeasuredFunction> measuredFunctions() {
    static const Table table;
    return table.rows;
}

std::span<const std::string_view> unmeasuredFunctions() {
    static constexpr std::string_view random[] = {"rndR"};
    return random;
}

}  // namespace calquo
