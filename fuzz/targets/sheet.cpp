// Any sheet: evaluated anew it has the results that it would have, and nothing else changes, in rich text, too; the sum
// of its lines has a place in it, and its menu has what its keys do.
#include <algorithm>

#include "assist/lines_sum.h"
#include "engine/keywords.h"
#include "numeric/random.h"
#include "rich_text_checker.h"
#include "shell/help_topic.h"
#include "shell/sheet_commands.h"
#include "target.h"
#include "workarea/language_text.h"
#include "workarea/reevaluation.h"
#include "workarea/result_edits.h"
#include "workarea/rich_text_filter.h"
#include "workarea/text_cost.h"

namespace calquo {
namespace {

constexpr std::uint64_t seed = 5;

std::string withEdits(std::string_view text, const std::vector<ResultEdit>& edits) {
    std::string changed;
    std::size_t place = 0;
    for (const ResultEdit& edit : edits) {
        require(edit.begin >= place && edit.begin <= edit.end && edit.end <= text.size(), "a result out of place");
        changed.append(text.substr(place, edit.begin - place)).append(edit.result);
        place = edit.end;
    }
    return changed.append(text.substr(place));
}

/// Stands for a euro sign in the plain ASCII of a sheet.
constexpr char foreignCharacter = '~';
constexpr char16_t euroSign = 0x20AC;

/// Plain ASCII as rich text, in colour where its length is odd.
std::string richTextOf(std::string_view text) {
    std::string richText = "{\\rtf1\\ansi\\deff1{\\fonttbl{\\f1\\fnil A;}}";
    richText += text.size() % 2 == 1 ? "{\\colortbl;\\red255\\green0\\blue0;}\\f1\\cf1 " : "\\f1 ";
    for (const char one : text) {
        richText += one == '\\' || one == '{' || one == '}' ? "\\" : "";
        richText += one == '\n'               ? "\\par "
                    : one == foreignCharacter ? "\\u" + std::to_string(euroSign) + '?'
                                              : std::string(1, one);
    }
    return cleanRichText(richText + '}', mostInWine, LastLineEnd::Kept);
}

void checkReevaluation(const std::string& text, NumericFormat format) {
    seedRandom(seed);
    const Reevaluation outcome = reevaluate(text, format);
    require(outcome.failed <= outcome.evaluated && outcome.edits.size() <= outcome.evaluated,
            "more fails than there is");
    require(!hintAbout(outcome).empty(), "nothing is told");
    const std::string changed = withEdits(text, outcome.edits);
    require(std::ranges::count(changed, '\n') == std::ranges::count(text, '\n'), "a line comes or goes");
    seedRandom(seed);
    require(reevaluate(changed, format).edits.empty(), "evaluated again, results change");
    for (std::size_t position = 0; position <= text.size(); ++position) {
        require(positionAfter(outcome.edits, position) <= changed.size(), "a position leaves the text");
    }
    const auto richText = withResults(richTextOf(text), text.size(), outcome.edits, {"Arial"});
    require(richText.has_value(), "the rich text is said to have another length");
    const std::u16string shown = shownByStrictReader(cleanRichText(*richText, mostInWine, LastLineEnd::Kept));
    std::u16string expected(changed.begin(), changed.end());
    std::ranges::replace(expected, static_cast<char16_t>(foreignCharacter), euroSign);
    require(shown == expected, "the rich text shows something else");
}

void checkSum(const std::wstring& lines, NumericFormat format) {
    const LinesSum sum = sumOfLines(lines, format);
    require(sum.place <= lines.size(), "the sum leaves the lines");
    require(sum.expression.empty() || sum.expression.starts_with("sum("), "another function");
    require(sum.leftOut == 0 || !hintAbout(sum).empty(), "lines are left out silently");
}

void checkMenu(std::uint8_t bits, std::size_t name) {
    const SheetState state{(bits & 1) != 0,  (bits & 2) != 0,  (bits & 4) != 0,  (bits & 8) != 0,
                           (bits & 16) != 0, (bits & 32) != 0, (bits & 64) != 0, nameOf(name)};
    for (const ContextMenuEntry& entry : contextMenu(state)) {
        require(!entry.label.empty() || !entry.isEnabled, "an entry without words");
    }
    for (const SheetCommand& command : sheetCommands()) {
        require(command.stroke.key == 0 || !keyText(command.stroke).empty(), "a key without a name");
    }
    require(!windowKeys().empty(), "the window has no keys");
    require(name == 0 || helpTopicOf(nameOf(name)).find('#') != std::string::npos,
            "a name without a place in the help");
}

void check(FuzzInput input) {
    InputReader reader(input);
    const NumericFormat format = defaultFormats[reader.byte() % formatKinds.size()];
    const std::uint8_t bits = reader.byte();
    checkMenu(bits, reader.number(2) % (keywordCount() + 1));
    std::wstring lines;
    std::string text;
    for (const char one : reader.text()) {
        const auto code = static_cast<unsigned char>(one);
        lines += one == '\n' ? L'\r' : static_cast<wchar_t>(code < 0x80 ? code : code + 0x2000);
        if ((one >= ' ' && one <= '~') || one == '\n') {
            text += one;
        }
    }
    require(languageText(lines).size() == lines.size(), "a character comes or goes");
    require(languageText(controlText(text)) == text, "the engine's text is another in the control");
    checkSum(lines, format);
    checkReevaluation(text, format);
}

const Target target("sheet", check);

}  // namespace
}  // namespace calquo
