// Reads the options, then answers lines until the input ends; see calq.h.
#include "console/calq.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "console/byte_streams.h"
#include "console/line_answerer.h"
#include "console/line_reader.h"
#include "console/system_files.h"
#include "engine/characters.h"
#include "engine/keywords.h"
#include "values/program.h"
#include "workarea/visible_text.h"

namespace calquo {
namespace {

constexpr int allWell = 0;
constexpr int someFailed = 1;
constexpr int notDone = 2;

constexpr std::string_view prompt = "> ";

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

std::string hintLine(const std::string& hint) { return hint.empty() ? hint : "Hint: " + hint + "\n"; }

/// What is told about a line of the command line beside its answer.
std::string remarksOn(std::string_view line, bool isAnswered, const LineAnswerer& answerer, bool wantsHints) {
    const bool isWatched = isTerminal(standardError);
    std::string remarks;
    if (!isAnswered && isWatched) {
        remarks = lineWithCaret(line, answerer.errorPlace());
    }
    if (!isAnswered && isFile(std::string(line))) {
        return remarks.append("calq: ").append(line).append(" is a file; calq --file evaluates its lines\n");
    }
    return wantsHints || isWatched ? remarks + hintLine(answerer.hint(line)) : remarks;
}

int answerArguments(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    int status = allWell;
    for (const std::string_view argument : options.operands) {
        forEachLine(argument, [&](std::string_view line) {
            const bool isAnswered = answerer.answer(line, output.text());
            output.lineEnded();
            if (!isAnswered) {
                status = someFailed;
            }
            const std::string remarks = remarksOn(line, isAnswered, answerer, options.hints);
            if (!remarks.empty()) {
                output.flush();
                writeMessage(remarks);
            }
        });
    }
    return status;
}

/// A conversation: both the lines and the answers are on a terminal.
void answerPerson(LineAnswerer& answerer, LineReader& reader, OutputStream& output) {
    std::string_view line;
    while (reader.next(line)) {
        if (line.find_first_not_of(" \t") == std::string_view::npos) {
            continue;
        }
        std::string text;
        if (!answerer.answer(line, text)) {
            output.text().append(indentTo(line, answerer.errorPlace()).insert(0, prompt.size(), ' ')).append("^\n");
        }
        output.text() += text;
        output.text() += hintLine(answerer.hint(line));
        output.lineEnded();
    }
    output.text() += '\n';
}

void tellHint(const std::string& hint, const std::string& place, OutputStream& output) {
    if (!hint.empty()) {
        output.flush();
        writeMessage(place + ": " + hint + "\n");
    }
}

void answerFile(const Options& options, LineAnswerer& answerer, const InputFile& file, OutputStream& output) {
    LineReader reader(file, output);
    std::string_view line;
    for (std::size_t number = 1; reader.next(line); ++number) {
        answerer.answer(line, output.text());
        output.lineEnded();
        if (options.hints) {
            tellHint(answerer.hint(line), file.name() + ":" + std::to_string(number), output);
        }
    }
    output.flush();
}

int answerStandardInput(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    const InputFile input("-");
    if (output.isTerminal() && isTerminal(standardInput) && !options.json) {
        LineReader reader(input, output, prompt);
        answerPerson(answerer, reader, output);
    } else {
        answerFile(options, answerer, input, output);
    }
    return allWell;
}

/// Goes on after a file that cannot be read. The status is the worst of what `use` gives for each.
template <typename Use>
int forEachFile(const std::vector<std::string_view>& names, OutputStream& output, Use use) {
    int status = allWell;
    for (const std::string_view name : names) {
        try {
            status = std::max(status, use(InputFile(std::string(name))));
        } catch (const ReadFault& fault) {
            output.flush();
            writeMessage("calq: " + fault.message + "\n");
            status = notDone;
        }
    }
    return status;
}

int answerFiles(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    return forEachFile(options.operands, output, [&](const InputFile& file) {
        answerFile(options, answerer, file, output);
        return allWell;
    });
}

/// Whether all records of an open file give today what was saved.
bool checkFile(LineAnswerer& answerer, const InputFile& file, OutputStream& output) {
    LineReader reader(file, output);
    bool allSame = true;
    std::string_view line;
    for (std::size_t number = 1; reader.next(line); ++number) {
        if (!answerer.check(line, file.name() + ":" + std::to_string(number), output.text())) {
            allSame = false;
            output.lineEnded();
        }
    }
    output.flush();
    return allSame;
}

int checkRecords(const Options& options, OutputStream& output) {
    LineAnswerer answerer(options);
    std::vector<std::string_view> files = options.operands;
    if (files.empty()) {
        files.emplace_back("-");
    }
    return forEachFile(files, output,
                       [&](const InputFile& file) { return checkFile(answerer, file, output) ? allWell : someFailed; });
}

/// Says on standard error when the engine has kept another mark than the one that was asked for.
void reportRefusedMark(std::optional<char> wanted, TokenClass mark, TokenClass otherMark, const char* name) {
    const char kept = markCharacter(mark);
    if (!wanted || *wanted == kept) {
        return;
    }
    const bool isTaken = *wanted == markCharacter(otherMark);
    writeMessage(
        std::string("calq: \"") + *wanted + "\" " +
        (isTaken ? "is the other mark (give both to exchange them, or --decimal-comma)" : "has a meaning of its own") +
        "; the " + name + " mark stays \"" + kept + "\"\n");
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

/// Whether the options ask for a text and nothing else.
bool appendRequestedText(const Options& options, std::string& text) {
    if (options.names) {
        appendNames(text);
    } else if (options.help) {
        text += helpText();
    } else if (options.version) {
        text.append(programName).append(" ").append(programVersion).append("\n");
    }
    return options.names || options.help || options.version;
}

int runWith(const Options& options, OutputStream& output) {
    if (appendRequestedText(options, output.text())) {
        return allWell;
    }
    applyToEngine(options);
    reportRefusedMark(options.decimalMark, TokenClass::DecimalMark, TokenClass::GroupMark, "decimal");
    reportRefusedMark(options.groupMark, TokenClass::GroupMark, TokenClass::DecimalMark, "group");
    if (options.check) {
        return checkRecords(options, output);
    }
    if (options.file) {
        return answerFiles(options, output);
    }
    return options.operands.empty() ? answerStandardInput(options, output) : answerArguments(options, output);
}

}  // namespace

int runCalq(std::span<const char* const> arguments) {
    try {
        const Options options = parseOptions(arguments);
        OutputStream output(standardOutput);
        const int status = runWith(options, output);
        output.flush();
        return status;
    } catch (const OptionFault& fault) {
        writeMessage("calq: " + fault.message + "\nTry calq --help.\n");
    } catch (const StreamFault& fault) {
        writeMessage("calq: " + fault.message + "\n");
    } catch (const std::bad_alloc&) {
        std::fputs("calq: there is not enough memory\n", stderr);
    }
    return notDone;
}

}  // namespace calquo
