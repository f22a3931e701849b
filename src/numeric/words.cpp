// The checked conversion of values to words.
#include "numeric/words.h"

#include "values/errors.h"

namespace calquo {
namespace {

/// The checks common to both kinds of word. The bounds exclude a NaN, which has no word.
void checkWord(const Value& v, Real lowest, Real highest, CheckFlags flags) {
    const std::int32_t place = v.positions.literalEnd;
    if (!(v.im == 0)) {
        raise(ErrorCode::ComplexNotAllowed, place);
    }
    if (!(v.re >= lowest && v.re <= highest)) {
        raise(ErrorCode::DomainRange, place);
    }
    checkNumber(v.re, flags | CheckFlags::Report, place != -1 ? place : errorPosition());
}

}  // namespace

std::uint64_t toUnsignedWord(const Value& v, CheckFlags flags) {
    // No lower bound here: a negative number has an error of its own, after that of a fraction.
    checkWord(v, -positiveInfinity, largestUnsignedWord, flags | CheckFlags::NoNegative);
    return static_cast<std::uint64_t>(v.re);
}

std::int64_t toSignedWord(const Value& v, CheckFlags flags) {
    checkWord(v, smallestSignedWord, largestSignedWord, flags);
    return static_cast<std::int64_t>(v.re);
}

}  // namespace calquo
