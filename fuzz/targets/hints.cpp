// Any line with its answer under any format: the hint is one short line of valid text, and looking for it changes
// nothing that the next line depends on.
#include "hints/hints.h"

#include "engine/characters.h"
#include "hints/foreign_words.h"
#include "numeric/random.h"
#include "panels/angle_options.h"
#include "target.h"
#include "workarea/record.h"
#include "workarea/utf8.h"
#include "workarea/visible_text.h"

namespace calquo {
namespace {

constexpr std::size_t longestHint = 400;  // bytes

/// The characters of the bytes but for line ends, control characters among them.
std::string lineFrom(std::string_view bytes) {
    std::string line;
    while (!bytes.empty()) {
        const auto character = firstUtf8Character(bytes);
        const std::size_t length = character ? character->length : 1;
        if (character && character->code != U'\n' && character->code != U'\r') {
            line += bytes.substr(0, length);
        }
        bytes.remove_prefix(length);
    }
    return line;
}

void checkText(const std::string& hint) {
    require(hint.size() <= longestHint, "a long hint");
    require(hint.find('\n') == std::string::npos && visibleText(hint) == hint, "a hint that is no line of text");
}

/// A word that few inputs have, or more blanks than a line with a hint has; mostly nothing.
std::string furtherText(std::uint8_t choice, std::uint8_t word) {
    const auto oneOf = [&](const auto& rows) { return ' ' + std::string(rows[word % rows.size()].word); };
    switch (choice / 16) {
        case 12:
            return oneOf(foreignNames());
        case 13:
            return oneOf(foreignCalls());
        case 14:
            return oneOf(missingWords());
        case 15:
            return std::string(16 * std::size_t{word}, ' ');
        default:
            return {};
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    const std::uint8_t choice = reader.byte();
    const bool hasComma = choice % 8 == 0;
    setMarks(hasComma ? ',' : '.', hasComma ? '.' : ',');
    const std::uint8_t second = reader.byte();
    HintSettings settings{defaultFormats[second % formatKinds.size()], {}};
    settings.angleUnit = angleUnitOf(static_cast<AngleOption>(choice / 8 % 4));
    const std::uint32_t groups = getField(settings.format, field::groupSize);
    setGroupLengths(groups, groups);
    const std::string line = lineFrom(reader.text()) + furtherText(choice, second);

    constexpr std::uint64_t seed = 11;
    seedRandom(seed);
    const std::string_view expression = expressionOf(line);
    Answer answer;
    if (!expression.empty()) {
        evaluateInto(answer, expression, settings.format);
    }
    const std::string hint = hintFor(line, expression.empty() ? nullptr : &answer, settings);
    checkText(hint);
    const std::uint64_t next = randomWord();

    seedRandom(seed);
    if (!expression.empty()) {
        evaluateInto(answer, expression, settings.format);
    }
    require(randomWord() == next, "looking for a hint changes the random numbers");
}

const Target target("hints", check);

}  // namespace
}  // namespace calquo
