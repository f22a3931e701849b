// Any line under any format: the record that it gives is found right when it is checked, and recording it again changes
// nothing; a saved result that differs is told in one line.
#include "console/line_answerer.h"
#include "engine/characters.h"
#include "numeric/random.h"
#include "target.h"
#include "values/errors.h"
#include "workarea/visible_text.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

constexpr std::uint64_t seed = 7;

/// The line or the answer that an answerer gives for a line, with the same random numbers each time.
std::string answerTo(std::string_view line, const Options& options) {
    std::string output;
    LineAnswerer answerer(options);
    seedRandom(seed);
    const bool answered = answerer.answer(line, output);
    require(output.ends_with('\n'), "an answer without an end");
    output.pop_back();
    const bool maySayNothing = options.record;  // of a note
    require(answered || maySayNothing || output.find("Error (") != std::string::npos, "an error without a message");
    require(answered || answerer.errorPlace() <= line.size(), "the error is not in the line");
    const std::string caret = lineWithCaret(line, answerer.errorPlace());
    require(caret.ends_with("^\n"), "no caret is shown");
    return output;
}

void checkRecord(const std::string& line, Options options) {
    options.record = true;
    options.position = false;
    const std::string record = answerTo(line, options);
    require(answerTo(record, options) == record, "the record of a record is another");
    if (record.ends_with("(misplaced group mark)")) {
        return;  // a check allows groups of any length
    }

    const std::string_view tail = std::string_view(record).substr(std::min(record.find('=') + 1, record.size()));
    const bool isNote = !isWrittenAnswer(tail);
    options.record = false;
    options.check = true;
    applyToEngine(options);
    if (isNote && isWrittenAnswer(tail)) {
        return;  // what is a note with the groups of this format may be a result with others
    }
    seedRandom(seed);
    std::string output;
    require(LineAnswerer(options).check(record, "", output) && output.empty(), "a record is found wrong");
}

void checkSaved(std::string_view line, const Options& options) {
    std::string output;
    const std::string place = "sheet:1";
    const bool isSame = LineAnswerer(options).check(line, place, output);
    require(isSame == output.empty(), "what differs is not told");
    require(isSame || (output.starts_with(place + ": ") && output.ends_with(")\n")), "told in another form");
}

void check(FuzzInput input) {
    InputReader reader(input);
    Options options;
    options.kind = static_cast<FormatKind>(reader.byte() % formatKinds.size());
    const std::uint8_t choice = reader.byte();
    if (choice % 4 == 1) {
        options.word = static_cast<NumericFormat>(reader.number(4));
        setField(*options.word, field::groupSize, shortestGroup + reader.byte() % (longestGroup - shortestGroup + 1));
    }
    options.position = (choice & 4) != 0;
    options.seed = seed;
    options.decimalMark = (choice & 8) != 0 ? ',' : '.';
    options.groupMark = (choice & 8) != 0 ? '.' : ',';
    applyToEngine(options);
    std::string line = reader.text();
    std::erase_if(line, [](char character) { return character == '\r' || character == '\n'; });
    const std::string answer = answerTo(line, options);
    checkRecord(line, options);
    checkSaved(line, options);
    checkSaved("1=" + answer, options);
}

const Target target("records", check);

}  // namespace
}  // namespace calquo
