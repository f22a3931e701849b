// Rows of arithmetic, of the parts of complex numbers, of conversion and of the elementary functions.
#include <cmath>

#include "rows.h"

namespace calquo {
namespace {

constexpr Range positive{-8000, 8000, Signs::Positive};
constexpr Range nearZero{-70, -1};
constexpr Range nearOne{-63, -1, Signs::Either, false, 1, "1"};
constexpr Range nearPlusOne{-63, -1, Signs::Either, false, 1, "1", Signs::Positive};
constexpr Range nearMultiples{-60, -1, Signs::Either, false, pi / 2, "pi/2", Signs::Either, 1000};
constexpr Range exponents{0, 14};

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
const std::vector<Region> anywhere = {extreme, wide, everyday, {everyday, everyday}, {wide, wide}, {extreme, extreme}};

Reckoning of(Exact (*function)(const Exact&)) {
    return [function](Arguments a) { return function(a[0]); };
}

Reckoning of(Exact (*function)(const Exact&, const Exact&)) {
    return [function](Arguments a) { return function(a[0], a[1]); };
}

Reckoning inverseOf(Exact (*function)(const Exact&)) {
    return [function](Arguments a) { return inv(function(a[0])); };
}

Reckoning ofInverse(Exact (*function)(const Exact&)) {
    return [function](Arguments a) { return function(inv(a[0])); };
}

/// Of a value from one unit to another, each a factor and the offset of a scale.
Complex convert(const Complex& x, const Complex& from, const Complex& to) {
    return to.imag() + from.real() * ((x.real() - from.imag()) / to.real());
}

void addArithmetic(Rows& rows) {
    struct Operation {
        const char* name;
        const char* sign;
        Reckoning exact;
    };
    const Operation operations[] = {{"add", "+", [](Arguments a) { return Exact(a[0]) + a[1]; }},
                                    {"sub", "-", [](Arguments a) { return Exact(a[0]) - a[1]; }},
                                    {"mul", "*", [](Arguments a) { return Exact(a[0]) * a[1]; }},
                                    {"div", "/", [](Arguments a) { return Exact(a[0]) / a[1]; }}};
    for (const Operation& operation : operations) {
        for (const Region& region : anywhere) {
            rows.addOperator(operation.sign, {region, region}, operation.exact);
        }
        rows.addOperator(operation.sign, {wholes, wholes}, operation.exact);
        rows.addPair(operation.name, {everyday, everyday}, operation.exact);
        rows.addPair(operation.name, {{everyday, everyday}, {everyday, everyday}}, operation.exact);
    }
    const Reckoning percent = [](Arguments a) { return Exact(a[0]) / Real(100); };
    for (const Region& region : anywhere) {
        rows.add({"%", "#%", {region}, percent});
    }
    rows.add("pct", some, percent);
    rows.add("neg", anywhere, [](Arguments a) { return -Exact(a[0]); });
    rows.add("inv", plane, of(inv));
    rows.add("sqr", plane, of(sqr));
    rows.add("cube", {everyday, {{-5000, 5000}}, {everyday, everyday}, {{-5000, 5000}, {-5000, 5000}}}, of(cube));

    rows.add("real", anywhere, [](Arguments a) { return Exact(a[0].real()); });
    rows.add("imag", anywhere, [](Arguments a) { return Exact(a[0].imag()); });
    rows.add("conj", anywhere, [](Arguments a) { return Exact(std::conj(a[0])); });
    rows.add("norm2", anywhere, of(norm2));
    rows.add("abs", plane, of(abs));
    rows.add("norm", some, of(abs));
    rows.add("arg", plane, of(arg));
    rows.add("sign", plane, of(sign));
    rows.add("signum", some, of(sign));
    rows.addPair("polar", {positive, everyday}, of(polar));
    rows.addPair("polar", {everyday, nearMultiples}, of(polar));

    const Reckoning conversion = [](Arguments a) { return convert(a[0], a[1], a[2]); };
    const Region unit(everydayPositive), scale(everydayPositive, Range{0, 12});
    for (const Region& from : {unit, scale}) {
        rows.add({"convert", "convert(#; #; #)", {everyday, from, scale}, conversion, Reference::Steps});
        rows.add({"->", "#(#) -> (#)", {everydayPositive, from, scale}, conversion, Reference::Steps});
    }
    const Reckoning constants[] = {[](Arguments) { return Exact(Tracked::pi()); },
                                   [](Arguments) { return exp(Exact(Real(1))); }};
    rows.add({"pi", "pi", {}, constants[0]});
    rows.add({"e", "e", {}, constants[1]});
}

void addElementaryFunctions(Rows& rows) {
    rows.add("exp", hyperbolicAngles, of(exp));

    rows.add("ln", plane, of(ln));
    rows.add({"ln", "ln(#)", {{everyday, everyday}}, of(ln), Reference::Exact, [](auto& arguments) {
                  arguments[0] /= std::abs(arguments[0]);  // next to the unit circle
              }});
    const Reckoning toTen = [](Arguments a) { return logB(a[0], Real(10)); };
    const Reckoning toTwo = [](Arguments a) { return logB(a[0], Real(2)); };
    rows.add("log", plane, toTen);
    rows.add("log10", some, toTen);
    rows.add("lg", plane, toTwo);
    rows.add("log2", some, toTwo);
    rows.addPair("logB", {positive, positive}, of(logB));
    rows.addPair("logB", {nearOne, everydayPositive}, of(logB));
    rows.addPair("logB", {everydayPositive, nearOne}, of(logB));
    rows.addPair("logB", {everyday, everyday}, of(logB));
    rows.addPair("logB", {{everyday, everyday}, {everyday, everyday}}, of(logB));
    rows.addPair("logB", {{extreme, extreme}, {extreme, extreme}}, of(logB));

    rows.add("sqrt", plane, of(sqrt));
    rows.add("cbrt", plane, [](Arguments a) { return root(a[0], Real(3)); });
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
        {{{-16382, 16384, Signs::Positive}}, {{-14, 14}}},
        {{extreme, extreme}, {everyday, everyday}},
    };
    for (const std::vector<Region>& regions : powers) {
        rows.addOperator("^", regions, of(pow));
    }
    rows.addOperator("**", powers[1], of(pow));
    rows.addPair("pow", powers[1], of(pow));
    rows.addPair("pow", powers[9], of(pow));
    rows.addPair("root", {positive, {{1, 6, Signs::Positive}}}, of(root));
    rows.addPair("root", {positive, {{1, 6, Signs::Positive, true}}}, of(root));
    rows.addPair("root", {{{-100, 100, Signs::Negative}}, smallWholes}, of(root));
    rows.addPair("root", {everyday, everyday}, of(root));
    rows.addPair("root", {{everyday, everyday}, {everyday, everyday}}, of(root));
    rows.addPair("root", {{extreme, extreme}, smallWholes}, of(root));

    struct Trigonometric {
        const char* name;
        Reckoning exact;
        const char* inverseName;
        Reckoning inverse;
    };
    const Trigonometric circular[] = {{"sin", of(sin), "aSin", of(aSin)},
                                      {"cos", of(cos), "aCos", of(aCos)},
                                      {"tan", of(tan), "aTan", of(aTan)},
                                      {"cot", inverseOf(tan), "aCot", ofInverse(aTan)},
                                      {"sec", inverseOf(cos), "aSec", ofInverse(aCos)},
                                      {"csc", inverseOf(sin), "aCsc", ofInverse(aSin)}};
    for (const Trigonometric& row : circular) {
        rows.add(row.name, angles, row.exact);
        rows.add(row.inverseName, plane, row.inverse);
    }
    const Trigonometric hyperbolic[] = {{"sinH", of(sinH), "aSinH", of(aSinH)},
                                        {"cosH", of(cosH), "aCosH", of(aCosH)},
                                        {"tanH", of(tanH), "aTanH", of(aTanH)},
                                        {"cotH", inverseOf(tanH), "aCotH", of(aCotH)},
                                        {"secH", inverseOf(cosH), "aSecH", ofInverse(aCosH)},
                                        {"cscH", inverseOf(sinH), "aCscH", ofInverse(aSinH)}};
    for (const Trigonometric& row : hyperbolic) {
        rows.add(row.name, hyperbolicAngles, row.exact);
        rows.add(row.inverseName, plane, row.inverse);
    }
}

}  // namespace

void addNumberFunctions(Rows& rows) {
    addArithmetic(rows);
    addElementaryFunctions(rows);
}

}  // namespace calquo
