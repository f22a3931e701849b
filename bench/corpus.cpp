// The rows of the corpus, each with its bare arithmetic.
#include "corpus.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace calquo::bench {
namespace {

/// A number that the compiler cannot compute with.
template <typename Number>
Number opaque(Number x) {
    volatile Number unknown = x;
    return unknown;
}

long double number(long double x) { return opaque(x); }
std::uint64_t word(std::uint64_t x) { return opaque(x); }

long double pi() { return number(3.14159265358979323846L); }

const Row rows[] = {
    {"arithmetic", "2+3*4", "2+3*4", "2+3*4", "2+3*4", [] { return number(2) + number(3) * number(4); }},
    {"arithmetic", "12.5*4.2-7.75", "12.5*4.2-7.75", "12.5*4.2-7.75", "12.5*4.2-7.75",
     [] { return number(12.5L) * number(4.2L) - number(7.75L); }},
    {"arithmetic", "1/3", "1/3", "1/3", "1/3", [] { return number(1) / number(3); }},
    {"arithmetic", "(1.5+2.25)*(3-0.5)", "(1.5+2.25)*(3-0.5)", "(1.5+2.25)*(3-0.5)", "(1.5+2.25)*(3-0.5)",
     [] { return (number(1.5L) + number(2.25L)) * (number(3) - number(0.5L)); }},
    {"arithmetic", "-12+30-4-9+100", "-12+30-4-9+100", "-12+30-4-9+100", "-12+30-4-9+100",
     [] { return number(-12) + number(30) - number(4) - number(9) + number(100); }},
    {"arithmetic", "abs(-7.25)", "abs(-7.25)", "", "abs(-7.25)", [] { return std::fabs(number(-7.25L)); }},

    {"literals", "1234567.89*1.21", "1234567.89*1.21", "1234567.89*1.21", "1234567.89*1.21",
     [] { return number(1234567.89L) * number(1.21L); }},
    {"literals", "3.7e-5*6.02e23", "3.7e-5*6.02e23", "", "3.7e-5*6.02e23",
     [] { return number(3.7e-5L) * number(6.02e23L); }},
    {"literals", "1,234,567+0.000123", "1234567+0.000123", "1234567+0.000123", "1234567+0.000123",
     [] { return number(1234567) + number(0.000123L); }},
    {"literals", "2.71828182845904523536028747135266249775724709", "2.71828182845904523536028747135266249775724709",
     "2.71828182845904523536028747135266249775724709", "2.71828182845904523536028747135266249775724709",
     [] { return number(2.71828182845904523536L); }},

    {"bases", "16'FF+1", "", "", "0xFF+1", [] { return number(255) + number(1); }},
    {"bases", "2'101101*3", "", "", "0b101101*3", [] { return number(45) * number(3); }},
    {"bases", "16'DEAD.BEEF-8'777", "", "", "", [] { return number(57005.74583435058594L) - number(511); }},
    {"bases", "12345+1 '16", "", "obase=16;12345+1", "12345+1 to hex", [] { return number(12345) + number(1); }},

    {"powers", "299792458^2", "299792458^2", "299792458^2", "299792458^2",
     [] { return std::pow(number(299792458), number(2)); }},
    {"powers", "2^0.5", "2^0.5", "e(0.5*l(2))", "2^0.5", [] { return std::pow(number(2), number(0.5L)); }},
    {"powers", "sqrt(2)", "sqrt(2)", "sqrt(2)", "sqrt(2)", [] { return std::sqrt(number(2)); }},
    {"powers", "cbrt(10)", "", "e(l(10)/3)", "cbrt(10)", [] { return std::cbrt(number(10)); }},
    {"powers", "100*(1+0.05)^10", "100*(1+0.05)^10", "100*(1+0.05)^10", "100*(1+0.05)^10",
     [] { return number(100) * std::pow(number(1) + number(0.05L), number(10)); }},

    {"logarithms", "ln(10)/ln(2)", "ln(10)/ln(2)", "l(10)/l(2)", "ln(10)/ln(2)",
     [] { return std::log(number(10)) / std::log(number(2)); }},
    {"logarithms", "log10(5)+log2(5)", "log10(5)+log2(5)", "l(5)/l(10)+l(5)/l(2)", "log10(5)+log2(5)",
     [] { return std::log10(number(5)) + std::log2(number(5)); }},
    {"logarithms", "exp(-0.5)", "exp(-0.5)", "e(-0.5)", "exp(-0.5)", [] { return std::exp(number(-0.5L)); }},

    {"angles", "sin(1.2)*cos(0.4)", "sin(1.2)*cos(0.4)", "s(1.2)*c(0.4)", "sin(1.2 rad)*cos(0.4 rad)",
     [] { return std::sin(number(1.2L)) * std::cos(number(0.4L)); }},
    {"angles", "sin(30 deg)", "sin(30*_pi/180)", "s(30*4*a(1)/180)", "sin(30 deg)",
     [] { return std::sin(number(30) * pi() / number(180)); }},
    {"angles", "tan(0.7)", "tan(0.7)", "s(0.7)/c(0.7)", "tan(0.7 rad)", [] { return std::tan(number(0.7L)); }},
    {"angles", "aTan(0.5)", "atan(0.5)", "a(0.5)", "atan(0.5)", [] { return std::atan(number(0.5L)); }},
    {"angles", "aSin(0.5) -> deg", "asin(0.5)*180/_pi", "", "asin(0.5) to deg",
     [] { return std::asin(number(0.5L)) * number(180) / pi(); }},

    {"hyperbolic", "sinH(1.5)", "sinh(1.5)", "(e(1.5)-e(-1.5))/2", "sinh(1.5)",
     [] { return (std::exp(number(1.5L)) - std::exp(number(-1.5L))) / number(2); }},
    {"hyperbolic", "tanH(0.8)", "tanh(0.8)", "(e(1.6)-1)/(e(1.6)+1)", "tanh(0.8)",
     [] {
         const long double up = std::exp(number(0.8L));
         const long double down = std::exp(number(-0.8L));
         return (up - down) / (up + down);
     }},
    {"hyperbolic", "aSinH(2)", "asinh(2)", "l(2+sqrt(5))", "asinh(2)",
     [] { return std::log(number(2) + std::sqrt(number(2) * number(2) + number(1))); }},

    {"complex", "(3;4)*(1;-2)", "", "", "(3+4i)*(1-2i)",
     [] { return number(3) * number(1) - number(4) * number(-2) + (number(3) * number(-2) + number(4) * number(1)); }},
    {"complex", "sqrt(-2)", "", "", "sqrt(-2)", [] { return std::sqrt(number(2)); }},
    {"complex", "exp(0.5; 2)", "", "", "exp(0.5+2i)",
     [] {
         const long double size = std::exp(number(0.5L));
         return size * std::cos(number(2)) + size * std::sin(number(2));
     }},

    {"lists", "sum(1; 2; 3; 4)", "sum(1,2,3,4)", "1+2+3+4", "total([1, 2, 3, 4])",
     [] { return number(1) + number(2) + number(3) + number(4); }},
    {"lists", "max(3; 7; 5)", "max(3,7,5)", "", "max(3, 7, 5)",
     [] {
         return std::max({number(3), number(7), number(5)});
     }},
    {"lists", "avg(1.5; 2.5; 4)", "avg(1.5,2.5,4)", "(1.5+2.5+4)/3", "mean(1.5, 2.5, 4)",
     [] { return (number(1.5L) + number(2.5L) + number(4)) / number(3); }},
    {"lists", "sd(2; 4; 4; 5; 7)", "", "", "stdev(2, 4, 4, 5, 7)",
     [] {
         const long double values[] = {number(2), number(4), number(4), number(5), number(7)};
         long double sum = 0;
         for (const long double value : values) {
             sum += value;
         }
         const long double mean = sum / 5;
         long double squares = 0;
         for (const long double value : values) {
             squares += (value - mean) * (value - mean);
         }
         return std::sqrt(squares / 4);
     }},

    {"integers", "10!", "", "", "10!",
     [] {
         long double product = 1;
         for (int factor = opaque(10); factor > 1; --factor) {
             product *= static_cast<long double>(factor);
         }
         return product;
     }},
    {"integers", "gcd(1071; 462)", "", "", "gcd(1071, 462)",
     [] { return static_cast<long double>(std::gcd(word(1071), word(462))); }},
    {"integers", "mod(17; 5)", "", "scale=0;17/5", "17\\5", [] { return std::floor(number(17) / number(5)); }},
    {"integers", "bXor(65535; 4660)", "", "", "xor(65535, 4660)",
     [] { return static_cast<long double>(word(65535) ^ word(4660)); }},
    {"integers", "round(2.567)", "rint(2.567)", "", "round(2.567)", [] { return std::round(number(2.567L)); }},

    {"units", "26.2 mile -> km", "26.2*1609.344/1000", "26.2*1609.344/1000", "26.2 mile to km",
     [] { return number(26.2L) * number(1609.344L) / number(1000); }},
    {"units", "98.6 F -> C", "(98.6-32)*5/9", "(98.6-32)*5/9", "",
     [] { return (number(98.6L) + number(459.67L)) * (number(5) / number(9)) - number(273.15L); }},
    {"units", "3 km / (20 minute)", "3*1000/(20*60)", "3*1000/(20*60)", "3 km / (20 minutes)",
     [] { return number(3) * number(1000) / (number(20) * number(60)); }},

    {"finance", "fv(1000; 10 year; 5%; year)", "1000*(1+5/100)^10", "1000*(1+5/100)^10", "1000*(1+5%)^10",
     [] { return number(1000) * std::pow(number(1) + number(5) / number(100), number(10)); }},
    {"finance", "200*(1+15%)", "200*(1+15/100)", "200*(1+15/100)", "200*(1+15%)",
     [] { return number(200) * (number(1) + number(15) / number(100)); }},
};

}  // namespace

std::span<const Row> corpus() { return rows; }

}  // namespace calquo::bench
