// Finds the two parts of a written complex number.
#include "engine/complex_literal.h"

#include "values/errors.h"

namespace calquo {
namespace {

/// Whether a value is the literal, signs aside, with which the text from an index on begins.
bool isLiteralFrom(const LineTokens& line, std::size_t index, const Value& value) {
    while (isBlank(line.at(index)) || line.isAt(TokenClass::Plus, index) || line.isAt(TokenClass::Minus, index)) {
        ++index;
    }
    return value.positions.literalStart == position(index) && value.positions.imaginaryPartEnd == -1;
}

}  // namespace

Value complexNumber(LineTokens& line, std::size_t start, std::size_t end, const Value& re, const Value& im) {
    setErrorPosition(position(start));
    for (const Value& part : {re, im}) {
        if (!(part.im == 0)) {
            raise(ErrorCode::ComplexNotAllowed, part.positions.literalEnd);
        }
    }
    const Value number(re.re, im.re);
    if (!isLiteralFrom(line, start + 1, re)) {
        return number;
    }
    const std::size_t separator = line.skipBlanks(static_cast<std::size_t>(re.positions.literalEnd));
    if (!line.isAt(TokenClass::ListSeparator, separator) || !isLiteralFrom(line, separator + 1, im) ||
        line.skipBlanks(static_cast<std::size_t>(im.positions.literalEnd)) + 1 != end) {
        return number;
    }
    return number.at({position(start), re.positions.literalEnd, im.positions.literalEnd, position(end)});
}

}  // namespace calquo
