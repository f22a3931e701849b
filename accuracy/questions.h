// The files of lines that calq answers, each under a word of its own.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "format/numeric_format.h"

namespace calquo {

/// The same for the lines and for the answers: a name, and the word in hexadecimal digits.
inline std::string fileName(std::string_view name, NumericFormat word) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08X", word);
    return std::string(name) + "-" + digits;
}

inline constexpr std::string_view functionsName = "functions";
inline constexpr std::string_view cancellingName = "cancelling";
inline constexpr std::string_view literalsName = "literals";

}  // namespace calquo
