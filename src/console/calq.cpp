// Streaming lines through the engine; see calq.h.
#include "console/calq.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include "console/byte_streams.h"
#include "engine/characters.h"
#include "engine/keywords.h"
#include "values/program.h"

namespace calquo {
namespace {

constexpr int allWell = 0;
constexpr int someFailed = 1;
constexpr int notDone = 2;

std::string_view withoutBlanksAround(std::string_view text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') {
        text.remove_suffix(1);
    }
    return text;
}

/// Calls `take` with each line of `text`; a line end at its very end begins no further line.
template <typename TakeLine>
void forEachLine(std::string_view text, TakeLine take) {
    for (;;) {
        const std::size_t lineEnd = text.find('\n');
        std::string_view line = text.substr(0, lineEnd);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        take(line);
        if (lineEnd == std::string_view::npos || lineEnd + 1 == text.size()) {
            return;
        }
        text.remove_prefix(lineEnd + 1);
    }
}

int answerArguments(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    const bool showsCaret = isTerminal(standardError);
    int status = allWell;
    for (const std::string_view argument : options.operands) {
        forEachLine(argument, [&](std::string_view line) {
            const bool answered = answerer.answer(line, output.text());
            output.lineEnded();
            if (answered) {
                return;
            }
            status = someFailed;
            if (showsCaret) {
                output.flush();
                std::fputs(lineWithCaret(line, answerer.errorPlace()).c_str(), stderr);
            }
        });
    }
    return status;
}

int answerStandardInput(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    LineReader reader(standardInput, "standard input", output);
    std::string_view line;
    while (reader.next(line)) {
        answerer.answer(line, output.text());
        output.lineEnded();
    }
    return allWell;
}

/// Whether all records of an open file give today what was saved.
bool checkFile(LineAnswerer& answerer, int file, const std::string& name, OutputStream& output) {
    LineReader reader(file, name, output);
    bool allSame = true;
    std::string_view line;
    for (std::size_t number = 1; reader.next(line); ++number) {
        if (!answerer.check(line, name + ":" + std::to_string(number), output.text())) {
            allSame = false;
        }
        output.lineEnded();
    }
    output.flush();
    return allSame;
}

int checkRecords(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    bool allSame = true;
    if (options.operands.empty()) {
        allSame = checkFile(answerer, standardInput, "standard input", output);
    }
    for (const std::string_view operand : options.operands) {
        const std::string path(operand);
        const InputFile file(path);
        if (!checkFile(answerer, file.descriptor(), path, output)) {
            allSame = false;
        }
    }
    return allSame ? allWell : someFailed;
}

/// Says on standard error when the engine has kept another mark than the one that was asked for.
void reportRefusedMark(std::optional<char> wanted, TokenClass mark, TokenClass otherMark, const char* name) {
    const char kept = markCharacter(mark);
    if (wanted && *wanted != kept) {
        const bool taken = *wanted == markCharacter(otherMark);
        std::fprintf(stderr, "calq: \"%c\" %s; the %s mark stays \"%c\"\n", *wanted,
                     taken ? "is the other mark (give both to exchange them)" : "has a meaning of its own", name, kept);
    }
}

/// Every name with its arguments and what it means, a line each.
void appendNames(std::string& text) {
    constexpr std::size_t column = 24;
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        std::string name(nameOf(index));
        if (!argumentsOf(index).empty()) {
            name.append("(").append(argumentsOf(index)).append(")");
        }
        name.resize(std::max(column, name.size() + 2), ' ');
        text.append(name).append(descriptionOf(index)).append("\n");
    }
}

int runWith(const Options& options, OutputStream& output) {
    if (options.names) {
        appendNames(output.text());
        return allWell;
    }
    if (options.help) {
        output.text() += helpText();
        return allWell;
    }
    if (options.version) {
        output.text().append(programName).append(" ").append(programVersion).append("\n");
        return allWell;
    }
    applyToEngine(options);
    reportRefusedMark(options.decimalMark, TokenClass::DecimalMark, TokenClass::GroupMark, "decimal");
    reportRefusedMark(options.groupMark, TokenClass::GroupMark, TokenClass::DecimalMark, "group");
    if (options.check) {
        return checkRecords(options, output);
    }
    return options.operands.empty() ? answerStandardInput(options, output) : answerArguments(options, output);
}

}  // namespace

LineAnswerer::LineAnswerer(const Options& options)
    : format_(options.format()),
      writesRecords_(options.record),
      place_(options.position ? ErrorPlace::Shown : ErrorPlace::Hidden) {}

bool LineAnswerer::answer(std::string_view line, std::string& output) {
    const std::string_view expression = expressionOf(line);
    latest_.failed = false;
    if (expression.empty()) {
        // The work area leaves such a line as it is, and so does its record.
        if (writesRecords_) {
            output += line;
        }
    } else {
        evaluateInto(latest_, expression, format_);
        if (writesRecords_) {
            appendRecord(output, expression, latest_, place_);
        } else {
            appendAnswer(output, latest_, place_);
        }
    }
    output += '\n';
    return !latest_.failed;
}

const std::string& LineAnswerer::answerText(ErrorPlace shownOrHidden) {
    text_.clear();
    appendAnswer(text_, latest_, shownOrHidden);
    return text_;
}

bool LineAnswerer::check(std::string_view line, std::string_view place, std::string& output) {
    const std::size_t equals = line.find('=');
    const std::string_view expression = expressionOf(line);
    if (equals == std::string_view::npos || expression.empty()) {
        return true;
    }
    const std::string_view saved = withoutBlanksAround(line.substr(equals + 1));

    evaluateInto(latest_, expression, format_);
    if (saved == answerText(ErrorPlace::Hidden) || saved == answerText(ErrorPlace::Shown)) {
        return true;
    }
    output.append(place).append(": ").append(expression).append(" = ").append(saved);
    output.append(" (now ").append(answerText(place_)).append(")\n");
    return false;
}

std::string lineWithCaret(std::string_view line, std::size_t position) {
    std::string text(line);
    text += '\n';
    for (const char character : line.substr(0, position)) {
        const bool continuesCharacter = (static_cast<unsigned char>(character) & 0xC0) == 0x80;
        if (!continuesCharacter) {
            text += character == '\t' ? '\t' : ' ';
        }
    }
    text += "^\n";
    return text;
}

int runCalq(std::span<const char* const> arguments) {
    try {
        const Options options = parseOptions(arguments);
        OutputStream output(standardOutput);
        const int status = runWith(options, output);
        output.flush();
        return status;
    } catch (const OptionFault& fault) {
        std::fprintf(stderr, "calq: %s\nTry calq --help.\n", fault.message.c_str());
    } catch (const StreamFault& fault) {
        std::fprintf(stderr, "calq: %s\n", fault.message.c_str());
    } catch (const std::bad_alloc&) {
        std::fputs("calq: there is not enough memory\n", stderr);
    }
    return notDone;
}

}  // namespace calquo
