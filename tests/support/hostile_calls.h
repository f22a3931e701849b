// Calls of every name with arguments that nobody would type: what the tests drive and the benchmark searches for the
// slowest one.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/keywords.h"

namespace calquo {

// clang-format off
inline const std::vector<std::string> hostileArguments = {
    "0", "-1", "1", "0.5", "-2.5", "inf", "NaN", "2^64", "2^64-1", "2^63", "1e4932", "1e-4940", "1e4000", "-1e4000",
    "18446744073709551557", "(1; 2)", "(-1e4000; 1e-4000)", "(NaN; inf)", "1 year", "86400", "1e15"};
// clang-format on

/// A list of the arguments, from an offset on in steps; a step of 0 repeats one of them.
inline std::string hostileList(std::size_t offset, std::size_t length, std::size_t step) {
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        text += (i == 0 ? "" : "; ") + hostileArguments[(offset + i * step) % hostileArguments.size()];
    }
    return text;
}

/// Bare, in lists of every length that the name takes and of lengths that it does not.
inline std::vector<std::string> hostileCalls(std::size_t keyword) {
    const std::string name(nameOf(keyword));
    std::vector<std::string> calls = {name, name + "()", name + " -" + name, "1 " + name + " -> " + name};
    std::vector<std::size_t> lengths = {1, 2, 3};
    if (classOf(keyword) == ArgumentClass::List) {
        lengths = {1, 2, 4, 7, 1000, 10000};
    }
    for (const std::size_t length : lengths) {
        for (std::size_t offset = 0; offset < (length < 100 ? hostileArguments.size() : 1); ++offset) {
            for (std::size_t step = 0; step < (length == 1 || length > 100 ? 1 : hostileArguments.size()); ++step) {
                calls.push_back(name + "(" + hostileList(offset, length, step) + ")");
            }
        }
        // Long lists of one item each, since a single refused item hides what the others would do.
        for (std::size_t offset = 0; length >= 1000 && offset < hostileArguments.size(); ++offset) {
            calls.push_back(name + "(" + hostileList(offset, length, 0) + ")");
        }
    }
    return calls;
}

}  // namespace calquo
