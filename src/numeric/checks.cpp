// Checks of numbers and values.
#include "numeric/checks.h"

#include <cmath>

namespace calquo {
namespace {

bool refuse(ErrorCode code, CheckFlags flags, std::int32_t position) {
    if (has(flags, CheckFlags::Report)) {
        raise(code, position);
    }
    return false;
}

/// Where an error in a part of a value points: the part's own place, or what an enclosing operation has set.
std::int32_t placeOr(std::int32_t position, std::int32_t fallback) { return position != -1 ? position : fallback; }

}  // namespace

bool hasFraction(Real x) { return std::truncl(x) < x || std::truncl(x) > x; }

bool checkNumber(Real x, CheckFlags flags, std::int32_t position) {
    const std::int32_t place = placeOr(position, 0);
    if (outOfRange(x)) {
        return refuse(ErrorCode::DomainRange, flags, place);
    }
    if (has(flags, CheckFlags::NoFraction) && hasFraction(x)) {
        return refuse(ErrorCode::FractionNotAllowed, flags, place);
    }
    if (has(flags, CheckFlags::NoNegative) && x < 0) {
        return refuse(ErrorCode::NegativeNotAllowed, flags, place);
    }
    if (has(flags, CheckFlags::NoZero) && x == 0) {
        return refuse(ErrorCode::CannotBeZero, flags, place);
    }
    if (has(flags, CheckFlags::NoOne) && x == 1) {
        return refuse(ErrorCode::CannotBeOne, flags, place);
    }
    return true;
}

bool checkValue(const Value& v, CheckFlags flags, std::int32_t position) {
    const std::int32_t place = placeOr(position, v.positions.literalEnd);
    if (v.im == 0) {
        return checkNumber(v.re, flags, placeOr(place, errorPosition()));
    }
    if (has(flags, CheckFlags::RealOnly)) {
        return refuse(ErrorCode::ComplexNotAllowed, flags, place);
    }
    // A number with an imaginary part is never zero.
    const CheckFlags partFlags = flags & ~(CheckFlags::RealOnly | CheckFlags::NoZero);
    if (partFlags == CheckFlags::None) {
        return true;
    }
    return checkNumber(v.re, partFlags, placeOr(v.positions.realPartEnd, errorPosition())) &&
           checkNumber(v.im, partFlags, placeOr(v.positions.imaginaryPartEnd, errorPosition()));
}

bool requireReal(const Value& v, CheckFlags flags, std::int32_t position) {
    const std::int32_t place = placeOr(position, v.positions.literalEnd);
    if (!(v.im == 0)) {
        return refuse(ErrorCode::ComplexNotAllowed, flags, place);
    }
    return checkNumber(v.re, flags, placeOr(place, errorPosition()));
}

}  // namespace calquo
