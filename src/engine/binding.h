// What a name of the language stands for: a constant or a function, whose argument class follows from its type.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <variant>

#include "values/value.h"

namespace calquo {

/// How many arguments a name takes.
enum class ArgumentClass : std::uint8_t { None = 0, One = 1, Two = 2, Three = 3, List = 255 };

using NullaryFunction = Value (*)();
using UnaryFunction = Value (*)(const Value&);
using BinaryFunction = Value (*)(const Value&, const Value&);
using TernaryFunction = Value (*)(const Value&, const Value&, const Value&);

/// A function of a list, with the bounds on its length.
struct ListFunction {
    Value (*call)(std::span<const Value>) = nullptr;
    std::size_t least = 0;
    std::size_t most = std::numeric_limits<std::size_t>::max();
};

/// A name that is kept for later: of argument class three, and unknown on every use.
struct ReservedName {};

/// Made from anything that a name can stand for. The constructors, one a signature, choose among overloads by
/// themselves.
class Binding {
public:
    constexpr Binding() = default;
    constexpr Binding(const Value& constant) : meaning(constant) {}
    constexpr Binding(NullaryFunction function) : meaning(function) {}
    constexpr Binding(UnaryFunction function) : meaning(function) {}
    constexpr Binding(BinaryFunction function) : meaning(function) {}
    constexpr Binding(TernaryFunction function) : meaning(function) {}
    constexpr Binding(const ListFunction& function) : meaning(function) {}
    constexpr Binding(ReservedName name) : meaning(name) {}

    /// What the name stands for if it is of that type, else null.
    template <typename Meaning>
    [[nodiscard]] constexpr const Meaning* as() const {
        return std::get_if<Meaning>(&meaning);
    }

    [[nodiscard]] constexpr ArgumentClass argumentClass() const {
        constexpr std::array classes = {ArgumentClass::None, ArgumentClass::None,  ArgumentClass::One,
                                        ArgumentClass::Two,  ArgumentClass::Three, ArgumentClass::List,
                                        ArgumentClass::Three};
        static_assert(classes.size() == std::variant_size_v<decltype(meaning)>);
        return classes[meaning.index()];
    }

private:
    std::variant<Value, NullaryFunction, UnaryFunction, BinaryFunction, TernaryFunction, ListFunction, ReservedName>
        meaning;
};

}  // namespace calquo
