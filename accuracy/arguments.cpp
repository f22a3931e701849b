// Mantissas and exponents are drawn apart, so that every order of magnitude is as likely as another.
#include "arguments.h"

#include <cmath>

#include "format/value_writer.h"
#include "lossless.h"

namespace calquo {
namespace {

Real withSign(Real magnitude, Signs sign, RandomReals& random) {
    return sign == Signs::Negative || (sign == Signs::Either && random.between(0, 1) == 0) ? -magnitude : magnitude;
}

}  // namespace

Real Range::pick(RandomReals& random) const {
    if (high <= low) {
        return 0;
    }
    ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
    if (random.between(0, 3) == 0) {
        bits.mantissa = bits.mantissa >> 56 << 56;
    }
    bits.signExponent = static_cast<std::uint16_t>(16383 + random.between(low, high - 1));
    const Real distance = withSign(realOf(bits), sign, random);
    if (centre == 0) {
        return isWhole ? std::trunc(distance) : distance;
    }
    return withSign(centre * static_cast<Real>(random.between(1, multiples)), centreSign, random) + distance;
}

std::string Range::text() const {
    if (high <= low) {
        return "0";
    }
    std::string text = isWhole ? "whole " : "";
    if (centre != 0) {
        text += multiples > 1 ? "k " : centreSign == Signs::Either ? "±" : "";
        text += std::string(centreName) + (sign == Signs::Either ? " ± " : " + ");
    } else {
        text += sign == Signs::Either ? "±" : sign == Signs::Negative ? "-" : "";
    }
    return text + "2^" + std::to_string(low) + " to 2^" + std::to_string(high);
}

std::complex<Real> Region::pick(RandomReals& random) const {
    const Real real = re.pick(random);
    return {real, im ? im->pick(random) : 0};
}

std::string Region::text() const { return im ? "(" + re.text() + "; " + im->text() + ")" : re.text(); }

std::string exactly(Real x) { return FormatValue(Value(x), losslessWord, losslessBase); }

std::string exactly(const std::complex<Real>& z) {
    return z.imag() == 0 ? exactly(z.real()) : "(" + exactly(z.real()) + "; " + exactly(z.imag()) + ")";
}

}  // namespace calquo
