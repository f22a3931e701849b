// Remainder trees: every word only needs to know the multiple of all words ahead of it modulo itself.
#include "numeric/common_multiple.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

#include "numeric/long_product.h"
#include "numeric/montgomery.h"

namespace calquo {
namespace {

/// As many words as are taken in at once, so that their chains of multiplications run side by side.
constexpr std::size_t batchSize = 4;
using Batch = std::array<std::uint64_t, batchSize>;
using Fields = std::array<Montgomery, batchSize>;

/// Lengths of lists up to which the quadratic method is faster: with a multiple of at least as many words ahead, and
/// with none. Powers of two times the first nearly fill transforms of powers of two.
constexpr std::size_t shortLength = 55;
constexpr std::size_t firstLength = 8 * shortLength;

/// The words from a place on, filled up with ones.
Batch batchAt(std::span<const std::uint64_t> words, std::size_t start) {
    Batch batch;
    batch.fill(1);
    const std::size_t count = std::min(batchSize, words.size() - start);
    std::copy_n(words.begin() + static_cast<std::ptrdiff_t>(start), count, batch.begin());
    return batch;
}

/// The remainders of the number modulo all fields, times powers of 2^-64.
Batch remainders(const LongNatural& number, const Fields& fields) {
    Batch result = {};
    for (const std::uint64_t digit : number) {
        for (std::size_t index = 0; index < batchSize; ++index) {
            result[index] = fields[index].reduce(UInt128{0, result[index]} + UInt128{0, digit});
        }
    }
    return result;
}

void multiplyBy(LongNatural& number, const Batch& factors) {
    number.resize(number.size() + batchSize);
    Batch carries = {};
    for (std::uint64_t& digit : number) {
        for (std::size_t index = 0; index < batchSize; ++index) {
            const UInt128 product = multiply(digit, factors[index]) + UInt128{0, carries[index]};
            digit = product.low;
            carries[index] = product.high;
        }
    }
    while (number.back() == 0) {
        number.pop_back();
    }
}

/// Adds 1; a carry out of the number is lost.
void increment(std::span<std::uint64_t> number) {
    for (std::uint64_t& digit : number) {
        ++digit;
        if (digit != 0) {
            return;
        }
    }
}

/// What odd words add to a multiple of which only its remainder, modulo their product, is known: the least number by
/// which it must be multiplied to become a multiple of them, too. The remainder may be one times any number that has no
/// factor in common with the words. Quadratic in time.
LongNatural missingShort(std::span<const std::uint64_t> words, const LongNatural& ahead) {
    LongNatural missing = {1};
    for (std::size_t start = 0; start < words.size(); start += batchSize) {
        const Batch batch = batchAt(words, start);
        const Fields fields = {Montgomery(batch[0]), Montgomery(batch[1]), Montgomery(batch[2]), Montgomery(batch[3])};
        const Batch before = remainders(ahead, fields);
        const Batch added = remainders(missing, fields);
        Batch factors = {};
        for (std::size_t index = 0; index < batchSize; ++index) {
            std::uint64_t remainder = fields[index].multiply(before[index], added[index]);
            for (std::size_t earlier = 0; earlier < index; ++earlier) {
                remainder = fields[index].multiply(remainder, factors[earlier]);
            }
            factors[index] = batch[index] / std::gcd(batch[index], remainder);
        }
        multiplyBy(missing, factors);
    }
    return missing;
}

/// Some of the words, with their product, and split in two if they are many.
struct Part {
    std::span<const std::uint64_t> words;
    LongNatural product;
    /// With how many words a fraction of the product must be given.
    std::size_t precision = 0;
    std::unique_ptr<Part> left;
    std::unique_ptr<Part> right;
};

/// The method for many words. The multiple M of the words ahead of a part is known as the fraction r / P, where P is
/// the product of the part's words, and r is the remainder of M, times a number that has no factor in common with P,
/// modulo P. The fraction is given by its words after the point, and only modulo 1. From that of the whole follow those
/// of the halves: r / P times the product of the right half is the fraction for the left half. Times the product of the
/// left half, it would be that for the right half, if the left half added nothing; so it is also multiplied by the
/// missing factor of the left half. (D. J. Bernstein, Scaled remainder trees, 2004, goes down with the same remainder
/// to both.)
///
/// A part's fraction has one word more than would distinguish the remainders. Each level adds some units of its last
/// word to the error: a fraction of n words times t words is cut off at word n - t, and what has no room is subtracted
/// below.
class ManyWords {
public:
    explicit ManyWords(std::size_t count) : multiplier_(2 * count + roomForPrecision) {}

    [[nodiscard]] std::uint64_t commonMultiple(std::span<const std::uint64_t> words) const {
        LongNatural multiple = missingShort(words.first(firstLength), {1});
        std::uint64_t low = multiple.front();
        for (std::size_t start = firstLength; start < words.size(); start *= 2) {
            const Part part = partOf(words.subspan(start, std::min(start, words.size() - start)));
            const LongNatural missing = missingFactor(part, firstFraction(multiple, part));
            low *= missing.front();
            if (start < words.size() - start) {
                multiple = multiplier_.multiply(multiple, missing);
            }
        }
        return low;
    }

private:
    /// For the words that fractions have in excess of their products.
    static constexpr std::size_t roomForPrecision = 8;

    [[nodiscard]] Part partOf(std::span<const std::uint64_t> words) const {
        Part part;
        part.words = words;
        if (words.size() <= shortLength) {
            part.product = {1};
            for (std::size_t start = 0; start < words.size(); start += batchSize) {
                multiplyBy(part.product, batchAt(words, start));
            }
            part.precision = part.product.size() + 1;
            return part;
        }
        std::size_t half = shortLength;
        while (2 * half < words.size()) {
            half *= 2;
        }
        part.left = std::make_unique<Part>(partOf(words.first(half)));
        part.right = std::make_unique<Part>(partOf(words.subspan(half)));
        part.product = multiplier_.multiply(part.left->product, part.right->product);
        part.precision = std::max(part.left->precision + part.right->product.size(),
                                  part.right->precision + 2 * part.left->product.size());
        return part;
    }

    /// The inverse of an odd number modulo 2^(64 count), by Newton's iteration.
    [[nodiscard]] LongNatural inverse(const LongNatural& number, std::size_t count) const {
        LongNatural result(1, Montgomery(number.front()).inverse());
        result.reserve(count);
        std::vector<std::size_t> lengths;
        for (std::size_t length = count; length > 1; length = (length + 1) / 2) {
            lengths.push_back(length);
        }
        for (auto length = lengths.rbegin(); length != lengths.rend(); ++length) {
            const std::size_t known = result.size();
            const std::size_t room = *length + known;
            const std::span<const std::uint64_t> digits(number.data(), std::min(number.size(), *length));
            // number * result = 1 + excess 2^(64 known), so that result * (1 - excess 2^(64 known)) is the next one.
            const LongMultiplier::Spectrum factor = multiplier_.transform(result, room);
            const LongNatural excess =
                multiplier_.words(multiplier_.transform(digits, room), factor, known, *length - known);
            const LongNatural less = multiplier_.words(multiplier_.transform(excess, room), factor, 0, *length - known);
            std::ranges::transform(less, std::back_inserter(result), std::bit_not());
            increment(std::span(result).subspan(known));
        }
        return result;
    }

    /// The fraction for a part with the multiple itself ahead. With a quotient q of both modulo 2^(64 n), q times the
    /// part's product is the multiple plus c 2^(64 n). So c is a remainder of the multiple, times -2^(-64 n), and
    /// q / 2^(64 n) is c divided by the product, but for an error of multiple / 2^(64 n) in c.
    [[nodiscard]] LongNatural firstFraction(const LongNatural& multiple, const Part& part) const {
        const std::size_t excess = std::max(multiple.size(), part.product.size()) - part.product.size();
        const std::size_t count = part.precision + excess;
        const std::size_t room = count + multiple.size();
        return multiplier_.words(multiplier_.transform(inverse(part.product, count), room),
                                 multiplier_.transform(multiple, room), count - part.precision, part.precision);
    }

    [[nodiscard]] LongNatural missingFactor(const Part& part, const LongNatural& fraction) const {
        const std::size_t count = part.precision;
        if (!part.left) {
            const std::size_t room = count + part.product.size();
            LongNatural remainder =
                multiplier_.words(multiplier_.transform(fraction, room), multiplier_.transform(part.product, room),
                                  count - 1, part.product.size() + 1);
            // Rounded by the word after the point.
            const bool isAbove = remainder.front() >> 63 != 0;
            remainder.erase(remainder.begin());
            if (isAbove) {
                increment(remainder);
            }
            return missingShort(part.words, remainder);
        }
        const Part& left = *part.left;
        const Part& right = *part.right;
        // Products with room for the fraction alone: what is subtracted at the lower end is too small to matter, and
        // what is lost at the upper end is the whole part.
        const LongMultiplier::Spectrum spectrum = multiplier_.transform(fraction, count);
        const auto fractionTimes = [&](const LongNatural& factor, std::size_t precision) {
            return multiplier_.words(multiplier_.transform(factor, count), spectrum, count - precision, precision);
        };
        LongNatural missing = missingFactor(left, fractionTimes(right.product, left.precision));
        const LongNatural factor = multiplier_.multiply(left.product, missing);
        const LongNatural missingRight = missingFactor(right, fractionTimes(factor, right.precision));
        // As a rule, nothing is shared.
        return missing == left.product && missingRight == right.product ? part.product
                                                                        : multiplier_.multiply(missing, missingRight);
    }

    LongMultiplier multiplier_;
};

}  // namespace

std::uint64_t oddCommonMultiple(std::span<const std::uint64_t> words) {
    return words.size() <= firstLength ? missingShort(words, {1}).front()
                                       : ManyWords(words.size()).commonMultiple(words);
}

}  // namespace calquo
