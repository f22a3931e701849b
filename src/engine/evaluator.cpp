// Recursive descent straight over the characters of the line, each operator applied as soon as its right operand is
// read. Every level takes the index where it starts and fills a value; it returns the number of characters it took, 0
// when nothing of its kind stands there.
#include "engine/evaluator.h"

#include <algorithm>
#include <array>
#include <memory_resource>
#include <new>
#include <span>
#include <vector>

#include "engine/complex_literal.h"
#include "engine/keywords.h"
#include "engine/lexer.h"
#include "engine/line_tokens.h"
#include "engine/number_literal.h"
#include "numeric/checks.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/exponential.h"
#include "numeric/factorial.h"
#include "units/conversion.h"
#include "values/errors.h"
#include "values/precision.h"

namespace calquo {
namespace {

class Evaluator {
public:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the storage of the arguments needs no value.
    Evaluator(std::string_view text, int limit) : line_(text), nestingLimit_(limit) {}

    Evaluation evaluate();

private:
    /// Counts one level of nesting while it lives.
    class Nesting {
    public:
        Nesting(Evaluator& evaluator, std::size_t index) : owner_(evaluator) {
            if (owner_.nesting_ == owner_.nestingLimit_) {
                raiseAt(ErrorCode::LimitExceeded, index);
            }
            ++owner_.nesting_;
        }
        ~Nesting() { --owner_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        Evaluator& owner_;
    };

    // The levels, from the lowest precedence to the highest.
    std::size_t expression(std::size_t index, Value& value);
    std::size_t sum(std::size_t index, Value& value);
    std::size_t product(std::size_t index, Value& value);
    std::size_t power(std::size_t index, Value& value);
    std::size_t signedOperand(std::size_t index, Value& value);
    std::size_t postfixOperand(std::size_t index, Value& value);
    std::size_t operand(std::size_t index, Value& value);
    std::size_t bareOperand(std::size_t index, Value& value);

    using Level = std::size_t (Evaluator::*)(std::size_t, Value&);
    std::size_t rightOperand(Level level, const Operator& found, Value& value);
    std::size_t juxtaposition(std::size_t index, Value& value);
    std::size_t conversion(const Operator& arrow, const Value& quantity, const Value& source, Value& value);
    std::size_t postfix(std::size_t index, Value& value);

    std::size_t nameOrGroup(std::size_t index, Value& value);
    std::size_t nameOperand(std::size_t index, Value& value);
    std::size_t unaryCall(std::size_t nameEnd, UnaryFunction function, Value& value);
    std::size_t listCall(std::size_t nameEnd, const Binding& binding, Value& value);

    std::size_t group(std::size_t index, Value& value);
    std::size_t item(std::size_t index, Value& value);
    std::size_t argumentList(std::size_t index);
    void makeRoomForArgument(std::size_t end);

    /// Whether a name or a group begins at an index.
    [[nodiscard]] bool isBareOperandAt(std::size_t index) const {
        return isLetter(line_.at(index)) || line_.isAt(TokenClass::ListOpen, index);
    }

    LineTokens line_;
    int nestingLimit_;
    int nesting_ = 0;

    // The arguments of the calls that are being read, innermost last. Short lists stay on the stack.
    static constexpr std::size_t argumentsOnStack = 16;
    alignas(Value) std::array<std::byte, argumentsOnStack * sizeof(Value)> argumentStorage_;
    std::pmr::monotonic_buffer_resource argumentMemory_{argumentStorage_.data(), argumentStorage_.size()};
    std::pmr::vector<Value> arguments_{&argumentMemory_};
};

/// line = [directive] expression [suffix]
Evaluation Evaluator::evaluate() {
    setErrorPosition(0);
    std::size_t index = line_.skipBlanks(0);
    const OutputBase directive = readOutputBaseDirective(line_.text(), index);
    index = line_.skipBlanks(index + directive.length);
    Evaluation result;
    const std::size_t length = sum(index, result.value);
    if (length == 0) {
        raiseAt(ErrorCode::InvalidFormat, index);
    }
    index += length;
    const OutputBase suffix = readOutputBaseSuffix(line_.text(), index);
    if (suffix.length != 0 && directive.length != 0) {
        raiseAt(ErrorCode::InvalidFormat, line_.skipBlanks(index));
    }
    index = line_.skipBlanks(index + suffix.length);
    if (index < line_.text().size()) {
        raiseAt(line_.isAt(TokenClass::ListClose, index) ? ErrorCode::Parentheses : ErrorCode::InvalidFormat, index);
    }
    if (const std::uint32_t base = directive.base + suffix.base; base != 0) {
        result.outputBase = base;
    }
    return result;
}

/// expression = blanks sum blanks
std::size_t Evaluator::expression(std::size_t index, Value& value) {
    const std::size_t start = line_.skipBlanks(index);
    const std::size_t length = sum(start, value);
    return length == 0 ? 0 : line_.skipBlanks(start + length) - index;
}

/// sum = product { ("+" | "-") product }
std::size_t Evaluator::sum(std::size_t index, Value& value) {
    std::size_t end = index + product(index, value);
    if (end == index) {
        return 0;
    }
    for (;;) {
        const Operator found = line_.readOperator(end);
        if (found.kind != TokenClass::Plus && found.kind != TokenClass::Minus) {
            return end - index;
        }
        Value right;
        const std::size_t length = rightOperand(&Evaluator::product, found, right);
        setErrorPosition(position(found.start));
        value = found.kind == TokenClass::Plus ? add(value, right) : sub(value, right);
        end = found.end + length;
    }
}

/// product = power { ("*" | "/") power | "->" target | juxtaposed operand }
std::size_t Evaluator::product(std::size_t index, Value& value) {
    std::size_t end = index + power(index, value);
    if (end == index) {
        return 0;
    }
    for (;;) {
        const Operator found = line_.readOperator(end);
        if (found.kind == TokenClass::Times || found.kind == TokenClass::Divide) {
            Value right;
            const std::size_t length = rightOperand(&Evaluator::power, found, right);
            setErrorPosition(position(found.start));
            value = found.kind == TokenClass::Times ? mul(value, right) : div(value, right);
            end = found.end + length;
        } else if (found.kind == TokenClass::Arrow) {
            const Value source = value;
            end = found.end + conversion(found, Value(1), source, value);
        } else {
            const std::size_t length = juxtaposition(end, value);
            if (length == 0) {
                return end - index;
            }
            end += length;
        }
    }
}

/// What must follow an operator.
std::size_t Evaluator::rightOperand(Level level, const Operator& found, Value& value) {
    const std::size_t length = (this->*level)(found.end, value);
    if (length == 0) {
        raiseAt(ErrorCode::InvalidFormat, found.end);
    }
    return length;
}

/// Reads a bare operand after the value so far: it multiplies that value, or is the source unit of the conversion that
/// follows.
std::size_t Evaluator::juxtaposition(std::size_t index, Value& value) {
    const std::size_t start = line_.skipBlanks(index);
    if (!isBareOperandAt(start)) {
        return 0;
    }
    Value right;
    const std::size_t end = start + bareOperand(start, right);
    const Operator found = line_.readOperator(end);
    if (found.kind == TokenClass::Arrow) {
        const Value quantity = value;
        return found.end + conversion(found, quantity, right, value) - index;
    }
    setErrorPosition(position(start));
    value = mul(value, right);
    return end - index;
}

/// Reads target { "->" target } after the first arrow; only the last target counts.
std::size_t Evaluator::conversion(const Operator& arrow, const Value& quantity, const Value& source, Value& value) {
    Operator last = arrow;
    Value target;
    std::size_t end = arrow.end;
    for (Operator next = arrow; next.kind == TokenClass::Arrow; next = line_.readOperator(end)) {
        last = next;
        end = next.end + rightOperand(&Evaluator::bareOperand, next, target);
    }
    setErrorPosition(position(last.start));
    value = convert(quantity, source, target);
    return end - arrow.end;
}

/// power = signed operand [ ("^" | "**") power ]; associates to the right.
std::size_t Evaluator::power(std::size_t index, Value& value) {
    const std::size_t length = signedOperand(index, value);
    if (length == 0) {
        return 0;
    }
    const Operator found = line_.readOperator(index + length);
    if (found.kind != TokenClass::Power) {
        return length;
    }
    const Nesting level(*this, found.start);
    Value exponent;
    const std::size_t exponentLength = rightOperand(&Evaluator::power, found, exponent);
    setErrorPosition(position(found.start));
    value = pow(value, exponent);
    return found.end + exponentLength - index;
}

/// signed operand = { "+" | "-" } postfix operand. The sign deliberately binds tighter than the power: -2^2 is 4.
std::size_t Evaluator::signedOperand(std::size_t index, Value& value) {
    std::size_t start = index;
    bool negative = false;
    for (; line_.isAt(TokenClass::Plus, start) || line_.isAt(TokenClass::Minus, start);
         start = line_.skipBlanks(start + 1)) {
        negative = negative != line_.isAt(TokenClass::Minus, start);
    }
    const std::size_t length = postfixOperand(start, value);
    if (length == 0) {
        return 0;
    }
    if (negative) {
        setErrorPosition(position(index));
        value = neg(value);
    }
    return start + length - index;
}

/// postfix operand = operand [ "%" | "!" ]
std::size_t Evaluator::postfixOperand(std::size_t index, Value& value) {
    const std::size_t length = operand(index, value);
    return length == 0 ? 0 : length + postfix(index + length, value);
}

std::size_t Evaluator::postfix(std::size_t index, Value& value) {
    const std::size_t start = line_.skipBlanks(index);
    const TokenClass kind = classOfCharacter(line_.at(start));
    if (kind != TokenClass::Percent && kind != TokenClass::Factorial) {
        return 0;
    }
    setErrorPosition(position(start));
    value = kind == TokenClass::Percent ? pct(value) : fact(value);
    return start + 1 - index;
}

/// operand = name operand | group | literal
std::size_t Evaluator::operand(std::size_t index, Value& value) {
    Real number = 0;
    if (const std::size_t length = readNumber(line_.text(), index, number); length != 0) {
        const std::int32_t end = position(index + length);
        value = Value(number).at({position(index), end, -1, end});
        return length;
    }
    return nameOrGroup(index, value);
}

std::size_t Evaluator::nameOrGroup(std::size_t index, Value& value) {
    if (!isBareOperandAt(index)) {
        return 0;
    }
    return isLetter(line_.at(index)) ? nameOperand(index, value) : group(index, value);
}

/// bare operand = (name operand | group) [ "%" | "!" ]
std::size_t Evaluator::bareOperand(std::size_t index, Value& value) {
    const std::size_t length = nameOrGroup(index, value);
    return length == 0 ? 0 : length + postfix(index + length, value);
}

/// A name, with its arguments if it is a function.
std::size_t Evaluator::nameOperand(std::size_t index, Value& value) {
    const std::size_t length = nameLength(line_.text(), index);
    const std::size_t nameEnd = index + length;
    const std::size_t keyword = lookup(line_.text().substr(index, length));
    if (keyword == 0) {
        raiseAt(ErrorCode::UnknownName, nameEnd);
    }
    const Binding& binding = bindingOf(keyword);
    if (const Value* constant = binding.as<Value>()) {
        value = *constant;
        return length;
    }
    const Nesting level(*this, index);
    setErrorPosition(position(nameEnd));
    if (const NullaryFunction* function = binding.as<NullaryFunction>()) {
        value = (*function)();
        return length;
    }
    if (const UnaryFunction* function = binding.as<UnaryFunction>()) {
        return length + unaryCall(nameEnd, *function, value);
    }
    return length + listCall(nameEnd, binding, value);
}

/// With one argument in parentheses, the call of it; with two, the call of the complex number that they make, with at
/// most one postfix operator; without parentheses right after the name, the call of the signed operand that follows.
std::size_t Evaluator::unaryCall(std::size_t nameEnd, UnaryFunction function, Value& value) {
    std::size_t end = line_.skipBlanks(nameEnd);
    Value argument;
    if (line_.isAt(TokenClass::ListOpen, nameEnd)) {
        const std::size_t first = arguments_.size();
        end = nameEnd + argumentList(nameEnd);
        const std::span<const Value> list = std::span(arguments_).subspan(first);
        if (list.size() == 2) {
            argument = complexNumber(line_, nameEnd, end, list[0], list[1]);
            end += postfix(end, argument);
        } else if (list.size() == 1) {
            argument = list[0];
        } else {
            raiseAt(ErrorCode::WrongArgumentCount, nameEnd);
        }
        arguments_.resize(first);
    } else {
        const std::size_t length = signedOperand(end, argument);
        if (length == 0) {
            raiseAt(ErrorCode::WrongArgumentCount, nameEnd);
        }
        end += length;
    }
    setErrorPosition(position(nameEnd));
    value = function(argument);
    return end - nameEnd;
}

/// The call of a function of two or three arguments or of a list, whose parentheses must be there.
std::size_t Evaluator::listCall(std::size_t nameEnd, const Binding& binding, Value& value) {
    if (binding.as<ReservedName>() != nullptr) {
        raiseAt(ErrorCode::UnknownName, nameEnd);
    }
    const std::size_t open = line_.skipBlanks(nameEnd);
    if (!line_.isAt(TokenClass::ListOpen, open)) {
        raiseAt(ErrorCode::WrongArgumentCount, nameEnd);
    }
    const std::size_t first = arguments_.size();
    const std::size_t end = open + argumentList(open);
    const std::span<const Value> list = std::span(arguments_).subspan(first);
    const auto expect = [&](std::size_t least, std::size_t most) {
        if (list.size() < least || list.size() > most) {
            raiseAt(ErrorCode::WrongArgumentCount, nameEnd);
        }
    };
    setErrorPosition(position(nameEnd));
    if (const BinaryFunction* function = binding.as<BinaryFunction>()) {
        expect(2, 2);
        value = (*function)(list[0], list[1]);
    } else if (const TernaryFunction* function = binding.as<TernaryFunction>()) {
        expect(3, 3);
        value = (*function)(list[0], list[1], list[2]);
    } else if (const ListFunction* function = binding.as<ListFunction>()) {
        expect(function->least, function->most);
        value = function->call(list);
    }
    arguments_.resize(first);
    return end - nameEnd;
}

/// group = "(" expression ")" | "(" expression ";" expression ")", the latter a complex number of two real parts.
std::size_t Evaluator::group(std::size_t index, Value& value) {
    const Nesting level(*this, index);
    std::size_t end = index + 1;
    const std::size_t length = expression(end, value);
    if (length == 0) {
        end = line_.skipBlanks(end);
        raiseAt(end < line_.text().size() ? ErrorCode::InvalidFormat : ErrorCode::Parentheses, end);
    }
    end += length;
    if (line_.isAt(TokenClass::ListClose, end)) {
        return end + 1 - index;
    }
    if (!line_.isAt(TokenClass::ListSeparator, end)) {
        raiseAt(ErrorCode::Incomplete, end);
    }
    Value imaginary;
    end += 1 + item(end + 1, imaginary);
    if (!line_.isAt(TokenClass::ListClose, end)) {
        raiseAt(line_.isAt(TokenClass::ListSeparator, end) ? ErrorCode::InvalidFormat : ErrorCode::Incomplete, end);
    }
    ++end;
    value = complexNumber(line_, index, end, value, imaginary);
    return end - index;
}

/// The item that must follow the beginning of a list or a separator.
std::size_t Evaluator::item(std::size_t index, Value& value) {
    const std::size_t length = expression(index, value);
    if (length == 0) {
        raiseAt(ErrorCode::Incomplete, line_.skipBlanks(index));
    }
    return length;
}

/// Makes room for the argument that ends at an index, and where that takes memory, for all that can follow it: each of
/// them but the first of a call comes after a separator. So long lists are never copied.
void Evaluator::makeRoomForArgument(std::size_t end) {
    if (arguments_.size() < arguments_.capacity()) {
        return;
    }
    setErrorPosition(position(end));
    const std::string_view rest = line_.text().substr(end);
    const auto separators = std::ranges::count(rest, TokenClass::ListSeparator, classOfCharacter);
    arguments_.reserve(arguments_.size() + static_cast<std::size_t>(separators) +
                       static_cast<std::size_t>(nestingLimit_) + 1);
}

/// argument list = "(" [ expression { ";" expression } ] ")"; the items are left on top of the arguments.
std::size_t Evaluator::argumentList(std::size_t index) {
    const std::size_t first = line_.skipBlanks(index + 1);
    if (line_.isAt(TokenClass::ListClose, first)) {
        return first + 1 - index;
    }
    if (arguments_.capacity() == 0) {
        arguments_.reserve(argumentsOnStack);
    }
    Value value;
    std::size_t end = index;
    do {
        end += 1 + item(end + 1, value);
        makeRoomForArgument(end);
        arguments_.push_back(value);
    } while (line_.isAt(TokenClass::ListSeparator, end));
    if (!line_.isAt(TokenClass::ListClose, end)) {
        raiseAt(ErrorCode::Incomplete, end);
    }
    return end + 1 - index;
}

}  // namespace

Evaluation evaluateLine(std::string_view line, int nestingLimit) {
    const FullPrecision precision;
    try {
        return Evaluator(line, nestingLimit).evaluate();
    } catch (const std::bad_alloc&) {
        raise(ErrorCode::LimitExceeded);
    }
}

}  // namespace calquo
