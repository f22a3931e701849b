// The functions of the language: each row makes a name, its argument class, its call, its tooltip and its help.
// Included where the names are merged and where the tables are shown, and nowhere else.
#pragma once

#include <array>
#include <string_view>

#include "engine/binding.h"
#include "numeric/bits.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/divisors.h"
#include "numeric/exponential.h"
#include "numeric/factorial.h"
#include "numeric/finance.h"
#include "numeric/integer_division.h"
#include "numeric/primes.h"
#include "numeric/random.h"
#include "numeric/rounding.h"
#include "numeric/statistics.h"
#include "numeric/trigonometric.h"
#include "units/conversion.h"

namespace calquo {

struct FunctionRow {
    std::string_view name;
    Binding binding;
    std::string_view description;
    std::string_view arguments = {};  ///< what stands between the parentheses; empty for names without any
    std::string_view example = {};    ///< a line to try
    std::string_view otherName = {};  ///< a second name of the same function
};

inline constexpr std::array functionTable = std::to_array<FunctionRow>({
    // Arithmetic
    {"add", add, "Add 2 values", "x; y", "add(2; 3)"},
    {"sub", sub, "Subtract 2 values", "x; y", "sub(2; 3)"},
    {"mul", mul, "Multiply 2 values", "x; y", "mul(2; 3)"},
    {"div", div, "Divide 2 values", "x; y", "div(2; 3)"},
    {"pct", pct, "Percentage (%)", "x", "pct(50)"},
    {"inv", inv, "Inverse (1/x)", "x", "inv(4)"},
    {"mod", mod, "Whole part of a modulo division", "x; y", "mod(7; 2)"},
    {"rem", rem, "Remainder of a modulo division", "x; y", "rem(7; 2)"},
    {"abs", abs, "Absolute value (magnitude)", "x", "abs(-7)"},
    {"neg", neg, "Negative of a value (-x)", "x", "neg(7)"},
    {"sign", sign, "Signum (-1, 0, +1)", "x", "sign(-7)", "signum"},

    // Complex numbers
    {"real", real, "Real part of a complex value", "z", "real(3; 4)"},
    {"imag", imag, "Imaginary part of a complex value", "z", "imag(3; 4)"},
    {"arg", arg, "Argument (phase angle) of a complex value", "z", "arg(i)"},
    {"conj", conj, "Complex conjugate", "z", "conj(3; 4)"},
    {"polar", polar, "Complex value in polar coordinates", "r; angle", "polar(2; 60 deg)"},
    {"norm", abs, "Norm (magnitude, abs) of a complex value", "z", "norm(3; 4)"},
    {"norm2", norm2, "Square of the norm", "z", "norm2(3; 4)"},

    // Exponentials
    {"exp", exp, "Euler number (e) raised to a power", "x", "exp 1"},
    {"pow", pow, "Power of one value to another value", "x; y", "pow(2; 10)"},
    {"root", root, "Root x of a value", "value; degree", "root(27; 3)"},
    {"fact", fact, "Factorial of a number", "n", "fact(5)"},
    {"lg", log2, "Base-2 logarithm (log2)", "x", "lg(1024)", "log2"},
    {"ln", ln, "Natural (base-e) logarighm", "x", "ln 10"},
    {"log", log10, "Base-10 logarithm (log10)", "x", "log 1000", "log10"},
    {"logB", logB, "Base-B logarithm", "value; base", "logB(81; 3)"},
    {"sqr", sqr, "Square of a value", "x", "sqr(12)"},
    {"sqrt", sqrt, "Square root of a value", "x", "sqrt 81"},
    {"cube", cube, "Cube of a value", "x", "cube(3)"},
    {"cbrt", cbrt, "Cubic root of a value", "x", "cbrt 1000"},

    // Fraction and whole
    {"fraction", fraction, "Fractional part of a value", "x", "fraction(2.75)"},
    {"whole", whole, "Whole integer part of a value", "x", "whole(2.75)"},
    {"ceil", ceil, "Ceiling value", "x", "ceil(2.1)"},
    {"floor", floor, "Floor value", "x", "floor(2.9)"},
    {"round", round, "Rounded integer value", "x", "round(2.5)"},
    {"sRound", sRound, "Statistically rounded value", "x", "sRound(2.5)"},

    // Primes
    {"prime", prime, "Prime or not (1 or 0)", "n", "prime(97)"},
    {"prNext", prNext, "Next prime number", "n", "prNext(13)"},
    {"prPrev", prPrev, "Previous prime number", "n", "prPrev(13)"},

    // Random numbers
    {"rnd", rnd, "Random value (from 0 to 1)", "", "rnd"},
    {"rndC", rndC, "Random complex number (0 to 1)", "", "rndC"},
    {"rndG", rndG, "Random Gaussian value", "", "rndG"},
    {"rndCG", rndCG, "Random complex Gaussian number", "", "rndCG"},
    {"rndR", rndR, "Random number in a given range", "low; high", "rndR(1; 6)"},
    {"rndSeed", rndSeed, "Seed the random generator", "n", "rndSeed(42)"},

    // Lists
    {"count", ListFunction{count}, "Number of values in the list", "x; y; ...", "count(7; 8; 9)"},
    {"min", ListFunction{min}, "Smallest value in the list", "x; y; ...", "min(3; 1; 2)"},
    {"max", ListFunction{max}, "Largest value in the list", "x; y; ...", "max(3; 1; 2)"},
    {"sum", ListFunction{sum}, "Sum of all values in the list", "x; y; ...", "sum(1; 2; 3)"},
    {"sum2", ListFunction{sum2}, "Sum of the square of all values", "x; y; ...", "sum2(3; 4)"},
    {"prod", ListFunction{prod}, "Product of all values in the list", "x; y; ...", "prod(2; 3; 4)"},
    {"gcd", ListFunction{gcd}, "Greatest Common Denominator", "n; m; ...", "gcd(12; 18)"},
    {"gcf", ListFunction{gcf}, "Greatest common factor", "n; m; ...", "gcf(12; 18)"},
    {"lcm", ListFunction{lcm}, "Least Common Multiple", "n; m; ...", "lcm(4; 6)"},
    {"avg", ListFunction{avg}, "Average value (mean)", "x; y; ...", "avg(1; 2; 3; 4)", "mean"},
    {"avgG", ListFunction{avgG}, "Geometric average", "x; y; ...", "avgG(2; 8)"},
    {"median", ListFunction{median}, "Median value", "x; y; ...", "median(4; 1; 3; 2)"},
    {"sd", ListFunction{sd}, "Standard deviation (sample)", "x; y; ...", "sd(2; 4; 4; 4; 5; 5; 7; 9)"},
    {"sdP", ListFunction{sdP}, "Standard deviation (population)", "x; y; ...", "sdP(2; 4; 4; 4; 5; 5; 7; 9)"},
    {"var", ListFunction{var}, "Variance (sample)", "x; y; ...", "var(2; 4; 4; 4; 5; 5; 7; 9)"},
    {"varP", ListFunction{varP}, "Variance (population)", "x; y; ...", "varP(2; 4; 4; 4; 5; 5; 7; 9)"},

    // Finance
    {"fv", ListFunction{fv, 3, 7}, "Future Value",
     "present value; duration; rate; compounding period; payment; payment period; timing", "fv(100; 1 year; 5%)"},
    {"pv", ListFunction{pv, 3, 7}, "Present Value",
     "future value; duration; rate; compounding period; payment; payment period; timing", "pv(100; 1 year; 5%)"},
    {"pmt", ListFunction{pmt, 4, 7}, "Payment amount",
     "first value; second value; duration; rate; compounding period; payment period; timing",
     "pmt(0; 1000; 1 year; 5%)"},
    {"dur", ListFunction{dur, 3, 7}, "Duration (in time units)",
     "first value; second value; rate; compounding period; payment; payment period; timing", "dur(100; 200; 5%) -> yr"},
    {"rate", ListFunction{rate, 3, 7}, "Rate of interest (nominal annual)",
     "first value; second value; duration; compounding period; payment; payment period; timing",
     "rate(100; 110; 1 year)"},

    // Angles
    {"sin", sin, "Sine of an angle", "angle", "sin(30 deg)"},
    {"cos", cos, "Cosine of an angle", "angle", "cos(60 deg)"},
    {"tan", tan, "Tangent of an angle", "angle", "tan(45 deg)"},
    {"sec", sec, "Secant of an angle", "angle", "sec(60 deg)"},
    {"csc", csc, "Cosecant of an angle", "angle", "csc(30 deg)"},
    {"cot", cot, "Cotangent of an angle", "angle", "cot(45 deg)"},
    {"aSin", aSin, "Arc (inverse) sine of an angle", "x", "aSin(0.5) -> deg"},
    {"aCos", aCos, "Arc (inverse) cosine of an angle", "x", "aCos(0.5) -> deg"},
    {"aTan", aTan, "Arc (inverse) tangent of an angle", "x", "aTan(1) -> deg"},
    {"aSec", aSec, "Arc (inverse) secant of an angle", "x", "aSec(2) -> deg"},
    {"aCsc", aCsc, "Arc (inverse) cosecant of an angle", "x", "aCsc(2) -> deg"},
    {"aCot", aCot, "Arc (inverse) cotangent of an angle", "x", "aCot(1) -> deg"},
    {"sinH", sinH, "Hyperbolic sine", "x", "sinH(1)"},
    {"cosH", cosH, "Hyperbolic cosine", "x", "cosH(1)"},
    {"tanH", tanH, "Hyperbolic tangent", "x", "tanH(1)"},
    {"secH", secH, "Hyperbolic secant", "x", "secH(1)"},
    {"cscH", cscH, "Hyperbolic cosecant", "x", "cscH(1)"},
    {"cotH", cotH, "Hyperbolic cotangent", "x", "cotH(1)"},
    {"aSinH", aSinH, "Hyperbolic arc (inverse) sine", "x", "aSinH(1)"},
    {"aCosH", aCosH, "Hyperbolic arc (inverse) cosine", "x", "aCosH(2)"},
    {"aTanH", aTanH, "Hyperbolic arc (inverse) tangent", "x", "aTanH(0.5)"},
    {"aSecH", aSecH, "Hyperbolic arc (inverse) secant", "x", "aSecH(0.5)"},
    {"aCscH", aCscH, "Hyperbolic arc (inverse) cosecant", "x", "aCscH(2)"},
    {"aCotH", aCotH, "Hyperbolic arc (inverse) cotangent", "x", "aCotH(2)"},

    // Bits of 64-bit words
    {"bAnd", bAnd, "Bitwise AND", "n; m", "bAnd(12; 10)"},
    {"bOr", bOr, "Bitwise OR", "n; m", "bOr(12; 10)"},
    {"bNot", bNot, "Bitwise NOT", "n", "bNot(0)"},
    {"bNor", bNor, "Bitwise NOR", "n; m", "bNor(12; 10)"},
    {"bNand", bNand, "Bitwise NAND", "n; m", "bNand(12; 10)"},
    {"bEq", bEq, "Bitwise EQUIV", "n; m", "bEq(12; 10)"},
    {"bXor", bXor, "Bitwise XOR", "n; m", "bXor(12; 10)"},
    {"bImp", bImp, "Bitwise IMPLY", "n; m", "bImp(12; 10)"},
    {"bInh", bInh, "Bitwise INHIBIT", "n; m", "bInh(12; 10)"},
    {"bShift", bShift, "Bitwise SHIFT", "n; places to the right", "bShift(256; 4)"},
    {"bKeep", bKeep, "Keep least significant bits", "n; bits", "bKeep(255; 4)"},

    // Conversion
    {"convert", convert, "Convert a value from one unit to another", "x; from; to", "convert(100; C; F)"},
    {"int", ReservedName{}, "Reserved name"},
});

}  // namespace calquo
