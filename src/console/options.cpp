// The table of options and everything that is derived from it; see options.h.
#include "console/options.h"

#include <algorithm>
#include <charconv>

#include "engine/characters.h"
#include "numeric/random.h"
#include "values/program.h"

namespace calquo {
namespace {

FormatKind readKind(std::string_view text) {
    const auto found = std::find_if(formatKinds.begin(), formatKinds.end(),
                                    [text](const FormatKindRow& row) { return row.optionName == text; });
    if (found == formatKinds.end()) {
        throw OptionFault{"there is no format \"" + std::string(text) + "\""};
    }
    return static_cast<FormatKind>(found - formatKinds.begin());
}

/// Reads all of `text` as a natural number; nothing when it is none or too large for the type.
template <typename Natural>
std::optional<Natural> readNatural(std::string_view text, int base) {
    Natural value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, base);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

NumericFormat readWord(std::string_view text) {
    const std::optional<NumericFormat> word = readNatural<NumericFormat>(text, 16);
    if (!word || text.size() > 8) {
        throw OptionFault{"a format word is 1 to 8 hexadecimal digits, not \"" + std::string(text) + "\""};
    }
    if (getField(*word, field::kind) >= formatKinds.size()) {
        throw OptionFault{"the format word " + std::string(text) + " is of no kind that there is"};
    }
    return *word;
}

char readMark(std::string_view text) {
    if (text.size() != 1 || text[0] <= ' ' || text[0] > '~') {
        throw OptionFault{"a mark is one printable ASCII character, not \"" + std::string(text) + "\""};
    }
    return text[0];
}

std::uint64_t readSeed(std::string_view text) {
    const std::optional<std::uint64_t> seed = readNatural<std::uint64_t>(text, 10);
    if (!seed) {
        throw OptionFault{"a seed is a whole number below 2^64, not \"" + std::string(text) + "\""};
    }
    return *seed;
}

std::uint32_t readDigits(std::string_view text) {
    const std::optional<std::uint32_t> digits = readNatural<std::uint32_t>(text, 10);
    if (!digits || *digits < 1 || *digits > allDigits) {
        throw OptionFault{"a number of digits is 1 to 21, which shows all, not \"" + std::string(text) + "\""};
    }
    return *digits;
}

struct OptionRow {
    std::string_view name;
    std::string_view argument;  ///< What the help calls the option's argument; empty when it takes none.
    std::string_view help;
    void (*apply)(Options&, std::string_view argument);  ///< Throws OptionFault.
    std::string_view shortName = {};
};

constexpr OptionRow optionTable[] = {
    {"file", "",
     "evaluate the lines of FILEs: sheets that Calquo has saved, as\nrich text or plain text, or any text; - is "
     "standard input",
     [](Options& options, std::string_view) { options.file = true; }},
    {"check", "",
     "evaluate the saved records of FILEs again (or of standard\ninput) and list those whose answer is no longer the "
     "same",
     [](Options& options, std::string_view) { options.check = true; }},
    {"record", "", "write records, as the work area does: EXPRESSION = RESULT",
     [](Options& options, std::string_view) { options.record = true; }},
    {"json", "", "write a JSON object a line: line, value, answer, error, hint",
     [](Options& options, std::string_view) { options.json = true; }},
    {"position", "", "append \" at N\" to errors: N characters come before the mistake",
     [](Options& options, std::string_view) { options.position = true; }},
    {"hints", "", "write hints at likely slips to standard error; without it only\non a terminal",
     [](Options& options, std::string_view) { options.hints = true; }},
    {"digits", "N", "write results with N significant digits; 21 shows all: the\nfewest that read back as the same",
     [](Options& options, std::string_view argument) { options.digits = readDigits(argument); }},
    {"format", "KIND", "write results in the format of this kind",
     [](Options& options, std::string_view argument) { options.kind = readKind(argument); }},
    {"word", "HEX", "write results under a packed format word; overrides --format",
     [](Options& options, std::string_view argument) { options.word = readWord(argument); }},
    {"decimal-comma", "", "write 1.234,5 for 1,234.5; short for both marks below",
     [](Options& options, std::string_view) {
         options.decimalMark = defaultGroupMark;
         options.groupMark = defaultDecimalMark;
     }},
    {"decimal-mark", "C", "use the character C in place of \".\"",
     [](Options& options, std::string_view argument) { options.decimalMark = readMark(argument); }},
    {"group-mark", "C",
     "use the character C in place of \",\"; a character that the\nlanguage needs, or that is the other mark, is not "
     "taken",
     [](Options& options, std::string_view argument) { options.groupMark = readMark(argument); }},
    {"seed", "N", "start the random numbers at N instead of at the clock",
     [](Options& options, std::string_view argument) { options.seed = readSeed(argument); }},
    {"names", "", "list every function, constant, unit and prefix, and end",
     [](Options& options, std::string_view) { options.names = true; }},
    {"help", "", "explain the program and end", [](Options& options, std::string_view) { options.help = true; }, "-h"},
    {"version", "", "show the version and end", [](Options& options, std::string_view) { options.version = true; },
     "-V"},
};

const OptionRow& findOption(std::string_view name) {
    const auto* found = std::find_if(std::begin(optionTable), std::end(optionTable),
                                     [name](const OptionRow& row) { return row.name == name; });
    if (found == std::end(optionTable)) {
        throw OptionFault{"there is no option --" + std::string(name) + "; put -- before a line that begins with it"};
    }
    return *found;
}

/// Reads the option that stands at `index` of the arguments, and goes on to its last word.
void takeOption(std::span<const char* const> arguments, std::size_t& index, Options& options) {
    const std::string_view word = arguments[index];
    const std::size_t equals = word.find('=');
    const bool joined = equals != std::string_view::npos;
    const std::string_view spelling = word.substr(0, equals);
    const OptionRow& row = findOption(spelling.substr(2));
    if (row.argument.empty() && joined) {
        throw OptionFault{std::string(spelling) + " takes no argument"};
    }
    std::string_view argument = joined ? word.substr(equals + 1) : std::string_view();
    if (!row.argument.empty() && !joined) {
        if (++index == arguments.size()) {
            throw OptionFault{std::string(spelling) + " needs its " + std::string(row.argument)};
        }
        argument = arguments[index];
    }
    row.apply(options, argument);
}

/// Throws OptionFault where options do not go together.
void refuseContradictions(const Options& options) {
    struct Pair {
        std::string_view names;
        bool areThere;
    };
    const Pair pairs[] = {
        {"--check and --file", options.check && options.file},
        {"--check and --record", options.check && options.record},
        {"--check and --json", options.check && options.json},
        {"--json and --record", options.json && options.record},
    };
    for (const Pair& pair : pairs) {
        if (pair.areThere) {
            throw OptionFault{std::string(pair.names) + " exclude each other"};
        }
    }
    const FormatKindRow& kind = formatKinds[getField(options.format(), field::kind)];
    if (options.digits && kind.letters.find('S') == std::string_view::npos) {
        throw OptionFault{"the format " + std::string(kind.optionName) + " has no significant digits for --digits"};
    }
    const bool asksForText = options.help || options.version || options.names;
    if (options.file && options.operands.empty() && !asksForText) {
        throw OptionFault{"--file needs a FILE, or - for standard input"};
    }
}

}  // namespace

NumericFormat Options::format() const {
    NumericFormat chosen = word ? *word : defaultFormats[static_cast<std::size_t>(kind)];
    if (digits) {
        setField(chosen, field::significantDigits, *digits);
        setField(chosen, field::digits, largestIn(field::digits));
    }
    return chosen;
}

Options parseOptions(std::span<const char* const> arguments) {
    Options options;
    bool optionsEnded = false;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view word = arguments[index];
        const auto* const shortOption = std::ranges::find(optionTable, word, &OptionRow::shortName);
        if (optionsEnded || word.empty() || (shortOption == std::end(optionTable) && !word.starts_with("--"))) {
            options.operands.push_back(word);
        } else if (shortOption != std::end(optionTable)) {
            shortOption->apply(options, {});
        } else if (word == "--") {
            optionsEnded = true;
        } else {
            takeOption(arguments, index, options);
        }
    }
    refuseContradictions(options);
    return options;
}

std::string helpText() {
    constexpr std::size_t textColumn = 20;
    std::string text =
        "Usage: calq [OPTION...] [LINE...]\n"
        "  or:  calq --file [OPTION...] FILE...\n"
        "  or:  calq --check [OPTION...] [FILE...]\n\n";
    text += programName;
    text +=
        " evaluates each LINE, or without one each line of standard input, and writes one\n"
        "line for it: the result, or \"Error (MESSAGE)\". An empty line gives an empty line.\n"
        "The text from the first \"=\" on is ignored, so that records can be evaluated again.\n\n";
    for (const OptionRow& row : optionTable) {
        std::string lead = "  ";
        if (!row.shortName.empty()) {
            lead.append(row.shortName).append(", ");
        }
        lead.append("--").append(row.name);
        if (!row.argument.empty()) {
            lead.append(" ").append(row.argument);
        }
        lead.resize(textColumn, ' ');
        text += lead;
        for (const char character : row.help) {
            text += character;
            if (character == '\n') {
                text.append(textColumn, ' ');
            }
        }
        text += '\n';
    }
    text += "  --                take everything that follows for LINEs or FILEs\n\nKINDs:";
    for (const FormatKindRow& kind : formatKinds) {
        text.append(" ").append(kind.optionName);
    }
    text +=
        "\n\n"
        "Exit status: 0 when all went well; 1 when a LINE of the command line has an error, or\n"
        "a checked record differs; 2 for a wrong option, or when reading or writing failed.\n"
        "An error in a line of standard input or of a FILE shows in its answer alone.\n";
    return text;
}

void applyToEngine(const Options& options) {
    setMarks(options.decimalMark.value_or(markCharacter(TokenClass::DecimalMark)),
             options.groupMark.value_or(markCharacter(TokenClass::GroupMark)));
    if (options.check) {
        // A sheet does not say under which format its results were written.
        setGroupLengths(shortestGroup, longestGroup);
    } else {
        const std::uint32_t length = getField(options.format(), field::groupSize);
        setGroupLengths(length, length);
    }
    if (options.seed) {
        seedRandom(*options.seed);
    } else {
        seedRandomFromClock();
    }
}

}  // namespace calquo
