// The options of calq, the console program: one table that reads them, explains them and says what they change.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "format/numeric_format.h"

namespace calquo {

/// So many digits show every number so that it reads back as the same; fewer do where they suffice.
constexpr std::uint32_t allDigits = 21;

/// What the command line asks for.
struct Options {
    bool record = false;
    bool position = false;
    bool json = false;
    bool hints = false;
    bool check = false;
    bool file = false;
    bool names = false;
    bool help = false;
    bool version = false;
    FormatKind kind = FormatKind::Automatic;
    std::optional<NumericFormat> word;    ///< Overrides `kind`.
    std::optional<std::uint32_t> digits;  ///< Significant ones, 1 to allDigits.
    std::optional<char> decimalMark;
    std::optional<char> groupMark;
    std::optional<std::uint64_t> seed;
    std::vector<std::string_view> operands;  ///< The LINEs, or with --check or --file the files.

    /// The format that results are written in, with the digits that are asked for.
    NumericFormat format() const;
};

/// What is wrong with a command line, in words for its user.
struct OptionFault {
    std::string message;
};

/// Reads the arguments that follow the program's name. What begins with "--" is an option, up to a lone "--", and so
/// are
/// "-h" and "-V"; everything else is an operand, so that "-2^2" is a line to evaluate. An option's argument follows it
/// as the next argument or after "=". Of an option given twice the last counts. Throws OptionFault.
Options parseOptions(std::span<const char* const> arguments);

/// What --help prints.
std::string helpText();

/// Puts the marks of the options and the lengths of groups that their format writes into the character table, and seeds
/// the random generator, from the clock unless the options give a seed. A mark whose character is taken leaves the
/// table as it was; given together, the marks may exchange their characters. Checking allows every length that people
/// may choose.
void applyToEngine(const Options& options);

}  // namespace calquo
