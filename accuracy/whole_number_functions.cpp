// Rows of the functions of whole numbers, whose exact values are GMP's, and of those that round to whole numbers.
#include <gmpxx.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "rows.h"

namespace calquo {
namespace {

using Word = std::uint64_t;

constexpr Range words{0, 64, Signs::Positive, true};
constexpr Range smallWords{0, 12, Signs::Positive, true};
constexpr Range largeWholes{0, 8000, Signs::Either, true};

const std::vector<Region> roundable = {{{-4, 66}},
                                       wide,
                                       {{-70, -1, Signs::Either, false, 0.5, "1/2", Signs::Either, 2000}},
                                       {{-70, -1, Signs::Either, false, 1, "1", Signs::Either, 2000}},
                                       {everyday, everyday}};

constexpr Word largestTested = 1000000000000037;
constexpr Word largestWithNext = 1000000000000000;

void checkLimit(Word n, Word limit) {
    if (n > limit) {
        throw Refusal{ErrorCode::LimitExceeded};
    }
}

bool certainlyPrime(Word n) {
    constexpr int rounds = 30;
    return mpz_probab_prime_p(mpz_class(n).get_mpz_t(), rounds) != 0;
}

Word wordFrom(Real x) { return static_cast<Word>(x); }

Word isPrime(Word n, Word) {
    checkLimit(n, largestTested);
    return certainlyPrime(n) ? 1 : 0;
}

Word nextPrime(Word n, Word) {
    checkLimit(n, largestWithNext);
    mpz_class next(n);
    mpz_nextprime(next.get_mpz_t(), next.get_mpz_t());
    return next.get_ui();
}

Word previousPrime(Word n, Word) {
    if (n < 3) {
        return 0;
    }
    checkLimit(n - 1, largestTested);
    do {
        --n;
    } while (!certainlyPrime(n));
    return n;
}

Word greatestDivisor(const std::vector<Word>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), Word{0}, std::gcd<Word, Word>);
}

Word leastMultiple(const std::vector<Word>& numbers) {
    mpz_class multiple = numbers.empty() ? 0 : 1;
    for (const Word number : numbers) {
        multiple = lcm(multiple, mpz_class(number));
    }
    const mpz_class words = mpz_class(1) << 64;
    return mpz_class(multiple % words).get_ui();
}

/// The remainder of the truncated division of a by b, and its quotient.
Exact remainder(Arguments a) { return std::fmod(a[0].real(), a[1].real()); }

Exact quotient(Arguments a) { return {(Tracked(a[0].real()) - remainder(a).re) / a[1].real()}; }

/// A function of a part of a number, for both parts.
Reckoning ofParts(Real (*function)(Real)) {
    return [function](Arguments a) { return Complex(function(a[0].real()), function(a[0].imag())); };
}

Reckoning ofWords(Word (*function)(Word, Word)) {
    return [function](Arguments a) {
        return static_cast<Real>(function(wordFrom(a[0].real()), a.size() > 1 ? wordFrom(a[1].real()) : 0));
    };
}

Reckoning ofWordList(Word (*function)(const std::vector<Word>&)) {
    return [function](Arguments a) {
        std::vector<Word> list;
        std::transform(a.begin(), a.end(), std::back_inserter(list),
                       [](const Complex& z) { return wordFrom(z.real()); });
        return static_cast<Real>(function(list));
    };
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

}  // namespace

void addWholeNumberFunctions(Rows& rows) {
    rows.add("floor", roundable, ofParts(std::floor));
    rows.add("ceil", roundable, ofParts(std::ceil));
    rows.add("whole", roundable, ofParts(std::trunc));
    rows.add("round", roundable, ofParts(std::round));
    rows.add("sRound", roundable, ofParts(std::nearbyint));
    rows.add("fraction", roundable, ofParts(fractionOf));
    for (const std::vector<Region>& regions : {std::vector<Region>{wholes, wholes},
                                               {wholes, {{0, 20, Signs::Either, true}}},
                                               {largeWholes, wholes},
                                               {largeWholes, largeWholes}}) {
        rows.addPair("mod", regions, quotient);
        rows.addPair("rem", regions, remainder);
    }
    const Range smallFactorials{0, 4, Signs::Positive, true};
    const Range largeFactorials{4, 11, Signs::Positive, true};
    rows.add("fact", {smallFactorials}, factorial);
    rows.add({"!", "#!", {smallFactorials}, factorial});
    rows.add({"fact", "fact(#)", {largeFactorials}, factorial, Reference::Series});

    const std::vector<Region> primes = {smallWords, {{0, 49, Signs::Positive, true}}, words};
    rows.add("prime", primes, ofWords(isPrime));
    rows.add("prNext", primes, ofWords(nextPrime));
    rows.add("prNext", {{{-4, 20, Signs::Positive}}}, ofWords(nextPrime));
    rows.add("prPrev", primes, ofWords(previousPrime));

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
        rows.addPair(row.name, {words, words}, ofWords(row.function));
    }
    rows.add("bNot", {words}, ofWords([](Word a, Word) { return ~a; }));
    rows.addPair("bKeep", {words, {{0, 7, Signs::Positive, true}}},
                 ofWords([](Word a, Word count) { return count < 64 ? a & ((Word{1} << count) - 1) : a; }));
    rows.addPair("bShift", {words, {{0, 7, Signs::Either, true}}}, [](Arguments a) {
        const Real shifted = std::trunc(std::ldexp(a[0].real(), -static_cast<int>(a[1].real())));
        return std::abs(a[1].real()) < 64 ? std::fmod(shifted, 0x1p64L) : 0;
    });
    rows.add("rndSeed", {words}, [](Arguments a) { return Exact(a[0]); });
    for (const Region& region : {Region(smallWords), Region(words)}) {
        rows.addList("gcd", {region}, ofWordList(greatestDivisor));
        rows.addList("gcf", {region}, ofWordList(greatestDivisor));
        rows.addList("lcm", {region}, ofWordList(leastMultiple));
    }
    rows.add({"int", "int(#; #; #)", {everyday, everyday, everyday}, [](Arguments) -> Exact {
                  throw Refusal{ErrorCode::UnknownName};
              }});
}

}  // namespace calquo
