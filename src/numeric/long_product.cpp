// The transforms: digits in, complex polynomials split down to degree 1, multiplied, put together, carries out.
#include "numeric/long_product.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <utility>

namespace calquo {
namespace {

using Lanes = LongMultiplier::Lanes;
using Points = LongMultiplier::Points;
using Root = LongMultiplier::Root;

constexpr std::size_t wordBits = 64;

constexpr std::size_t digitBits(int logLength) { return static_cast<std::size_t>(45 - logLength) / 2; }

/// The polynomials of x have their even coefficients in the first lane and the odd ones in the second, as polynomials
/// of x^2; a quarter of the digits is left in number.
constexpr std::size_t pointCount(int logLength) { return std::size_t{1} << (logLength - 2); }

/// The least length for so many words; each of two numbers may end with a digit begun and another that is a carry.
int logLengthFor(std::size_t words) {
    int logLength = 4;
    while (digitBits(logLength) << logLength < words * wordBits + 3 * digitBits(logLength)) {
        ++logLength;
    }
    return logLength;
}

Points operator+(const Points& a, const Points& b) { return {a.re + b.re, a.im + b.im}; }
Points operator-(const Points& a, const Points& b) { return {a.re - b.re, a.im - b.im}; }
Points operator*(const Points& a, const Points& b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
Points operator*(const Points& a, const Root& w) { return {a.re * w.re - a.im * w.im, a.re * w.im + a.im * w.re}; }
Root operator*(const Root& a, const Root& b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
Root conjugate(const Root& w) { return {w.re, -w.im}; }
Points timesI(const Points& a) { return {-a.im, a.re}; }
Points exchangeLanes(const Points& a) { return {Lanes{a.re[1], a.re[0]}, Lanes{a.im[1], a.im[0]}}; }

/// The two steps from a node of the tree to its four grandchildren: the node's root, that of its first child, and
/// their product, which saves a multiplication. The second child's root is i times that of the first.
struct Twiddles {
    Root node;
    Root child;
    Root both;
};

Twiddles twiddlesAt(const std::vector<Root>& roots, std::size_t node) {
    return {roots[node], roots[2 * node], roots[node] * roots[2 * node]};
}

/// From the coefficients of polynomials modulo x^n - i to their remainders modulo its n linear factors.
void split(std::vector<Points>& points, const std::vector<Root>& roots) {
    const std::size_t count = points.size();
    Points* const all = points.data();
    std::size_t nodes = 1;
    if (std::countr_zero(count) % 2 != 0) {
        const std::size_t half = count / 2;
        for (std::size_t j = 0; j < half; ++j) {
            const Points low = all[j];
            const Points high = all[j + half] * roots[2];
            all[j] = low + high;
            all[j + half] = low - high;
        }
        nodes = 2;
    }
    for (; nodes < count; nodes *= 4) {
        const std::size_t quarter = count / nodes / 4;
        for (std::size_t k = 0; k < nodes; ++k) {
            const Twiddles twiddles = twiddlesAt(roots, 2 * nodes + k);
            Points* const node = all + 4 * quarter * k;
            for (std::size_t j = 0; j < quarter; ++j) {
                const Points a = node[j];
                const Points b = node[j + quarter] * twiddles.child;
                const Points c = node[j + 2 * quarter] * twiddles.node;
                const Points d = node[j + 3 * quarter] * twiddles.both;
                const Points second = timesI(b - d);
                node[j] = (a + c) + (b + d);
                node[j + quarter] = (a + c) - (b + d);
                node[j + 2 * quarter] = (a - c) + second;
                node[j + 3 * quarter] = (a - c) - second;
            }
        }
    }
}

/// The way back, which leaves everything multiplied by n.
void join(std::vector<Points>& points, const std::vector<Root>& roots) {
    const std::size_t count = points.size();
    Points* const all = points.data();
    std::size_t nodes = count / 4;
    for (; nodes != 0; nodes /= 4) {
        const std::size_t quarter = count / nodes / 4;
        for (std::size_t k = 0; k < nodes; ++k) {
            const Twiddles twiddles = twiddlesAt(roots, 2 * nodes + k);
            const Root nodeBack = conjugate(twiddles.node);
            const Root childBack = conjugate(twiddles.child);
            const Root bothBack = conjugate(twiddles.both);
            Points* const node = all + 4 * quarter * k;
            for (std::size_t j = 0; j < quarter; ++j) {
                const Points first = node[j] + node[j + quarter];
                const Points second = node[j + 2 * quarter] + node[j + 3 * quarter];
                const Points b = node[j] - node[j + quarter];
                const Points d = timesI(node[j + 2 * quarter] - node[j + 3 * quarter]);
                node[j] = first + second;
                node[j + quarter] = (b - d) * childBack;
                node[j + 2 * quarter] = (first - second) * nodeBack;
                node[j + 3 * quarter] = (b + d) * bothBack;
            }
        }
    }
    if (std::countr_zero(count) % 2 != 0) {
        const std::size_t half = count / 2;
        const Root back = conjugate(roots[2]);
        for (std::size_t j = 0; j < half; ++j) {
            const Points low = all[j] + all[j + half];
            const Points high = (all[j] - all[j + half]) * back;
            all[j] = low;
            all[j + half] = high;
        }
    }
}

/// Reads a number digit by digit, as numbers from -2^(bits-1) to 2^(bits-1).
class DigitReader {
public:
    DigitReader(std::span<const std::uint64_t> number, std::size_t bits) : number_(number), bits_(bits) {}

    double next() {
        std::uint64_t digit = buffer_;
        if (buffered_ >= bits_) {
            buffer_ >>= bits_;
            buffered_ -= bits_;
        } else {
            const std::uint64_t word = position_ < number_.size() ? number_[position_] : 0;
            ++position_;
            digit |= word << buffered_;
            buffer_ = word >> (bits_ - buffered_);
            buffered_ += wordBits - bits_;
        }
        const auto range = std::int32_t{1} << bits_;
        const auto mask = static_cast<std::uint64_t>(range - 1);
        const auto value = static_cast<std::int32_t>(digit & mask) + carry_;
        carry_ = value >= range / 2 ? 1 : 0;
        return value - carry_ * range;
    }

private:
    std::span<const std::uint64_t> number_;
    std::size_t bits_;
    std::size_t position_ = 0;
    std::uint64_t buffer_ = 0;
    std::size_t buffered_ = 0;
    std::int32_t carry_ = 0;
};

/// Writes the coefficients of a polynomial, lowest first, as the digits of a number; keeps the words from one on.
class DigitWriter {
public:
    DigitWriter(std::size_t bits, std::size_t first, std::size_t count)
        : bits_(bits), mask_((std::uint32_t{1} << bits) - 1), skipped_(first), result_(count) {}

    void put(double coefficient) {
        // In this range a double is a whole number, and its bits count up with it: adding rounds.
        constexpr double shift = 6755399441055744.0;  // 1.5 * 2^52
        carry_ += std::bit_cast<std::int64_t>(coefficient + shift) - std::bit_cast<std::int64_t>(shift);
        const std::uint64_t digit = static_cast<std::uint32_t>(carry_) & mask_;
        carry_ >>= bits_;
        buffer_ |= digit << buffered_;
        buffered_ += bits_;
        if (buffered_ >= wordBits) {
            keep(buffer_);
            buffered_ -= wordBits;
            buffer_ = buffered_ == 0 ? 0 : digit >> (bits_ - buffered_);
        }
    }

    [[nodiscard]] bool isComplete() const { return written_ == result_.size(); }

    LongNatural finish() {
        if (!isComplete()) {
            keep(buffer_);
        }
        return std::move(result_);
    }

private:
    void keep(std::uint64_t word) {
        if (skipped_ != 0) {
            --skipped_;
        } else if (!isComplete()) {
            result_[written_] = word;
            ++written_;
        }
    }

    std::size_t bits_;
    std::uint32_t mask_;
    std::size_t skipped_;
    LongNatural result_;
    std::size_t written_ = 0;
    std::int64_t carry_ = 0;
    std::uint64_t buffer_ = 0;
    std::size_t buffered_ = 0;
};

}  // namespace

LongMultiplier::LongMultiplier(std::size_t words) {
    // The highest node with a root that is used is among the linear factors' parents.
    const std::size_t count = pointCount(logLengthFor(words)) / 2 * 3;
    struct Precise {
        long double re;
        long double im;
    };
    std::vector<Precise> precise = {{1, 0}};
    precise.reserve(count);
    while (precise.size() < count) {
        const std::size_t known = precise.size();
        const long double angle = std::numbers::pi_v<long double> / static_cast<long double>(2 * known);
        const Precise turn = {std::cos(angle), std::sin(angle)};
        for (std::size_t k = 0; k < known && precise.size() < count; ++k) {
            const Precise w = precise[k];
            precise.push_back({w.re * turn.re - w.im * turn.im, w.re * turn.im + w.im * turn.re});
        }
    }
    roots_.reserve(count);
    for (const Precise& w : precise) {
        roots_.push_back({static_cast<double>(w.re), static_cast<double>(w.im)});
    }
}

LongMultiplier::Spectrum LongMultiplier::transform(std::span<const std::uint64_t> number, std::size_t room) const {
    const int logLength = logLengthFor(room);
    const std::size_t bits = digitBits(logLength);
    Spectrum spectrum = {logLength, std::vector<Points>(pointCount(logLength))};
    DigitReader digits(number, bits);
    // Two digits at a time, one of them perhaps the carry out of the number.
    std::size_t pairs = (number.size() * wordBits / bits + 3) / 2;
    for (Lanes Points::*const half : {&Points::re, &Points::im}) {
        const std::size_t count = std::min(pairs, spectrum.points.size());
        for (std::size_t j = 0; j < count; ++j) {
            const double even = digits.next();
            spectrum.points[j].*half = Lanes{even, digits.next()};
        }
        pairs -= count;
    }
    split(spectrum.points, roots_);
    return spectrum;
}

LongNatural LongMultiplier::words(Spectrum a, const Spectrum& b, std::size_t first, std::size_t count) const {
    std::vector<Points>& points = a.points;
    const std::size_t size = points.size();
    const double scale = 1 / static_cast<double>(size);
    for (std::size_t j = 0; j < size; ++j) {
        // (a0 + a1 x) (b0 + b1 x) with x^2 = w.
        const Root w = roots_[size + j / 2];
        const double signedScale = j % 2 == 0 ? scale : -scale;
        const Points straight = points[j] * b.points[j];
        const Points crossed = points[j] * exchangeLanes(b.points[j]);
        const Root square = Root{straight.re[1], straight.im[1]} * Root{w.re * signedScale, w.im * signedScale};
        points[j] = {Lanes{straight.re[0] * scale + square.re, (crossed.re[0] + crossed.re[1]) * scale},
                     Lanes{straight.im[0] * scale + square.im, (crossed.im[0] + crossed.im[1]) * scale}};
    }
    join(points, roots_);
    DigitWriter digits(digitBits(a.logLength), first, count);
    for (Lanes Points::*const half : {&Points::re, &Points::im}) {
        for (std::size_t j = 0; j < size && !digits.isComplete(); ++j) {
            const Lanes pair = points[j].*half;
            digits.put(pair[0]);
            digits.put(pair[1]);
        }
    }
    return digits.finish();
}

LongNatural LongMultiplier::multiply(std::span<const std::uint64_t> a, std::span<const std::uint64_t> b) const {
    const std::size_t room = a.size() + b.size();
    LongNatural product = words(transform(a, room), transform(b, room), 0, room);
    while (!product.empty() && product.back() == 0) {
        product.pop_back();
    }
    return product;
}

}  // namespace calquo
