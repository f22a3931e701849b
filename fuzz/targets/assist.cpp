// Any line with the caret anywhere: what is offered there is in the line and in the tables, a completion is a name, and
// each form of a value is an expression of that value.
#include <algorithm>

#include "assist/call_arguments.h"
#include "assist/completion.h"
#include "assist/line_pieces.h"
#include "assist/name_dimension.h"
#include "assist/value_details.h"
#include "engine/characters.h"
#include "engine/evaluator.h"
#include "engine/keywords.h"
#include "engine/number_literal.h"
#include "same_value.h"
#include "shell/tip_contents.h"
#include "target.h"
#include "values/errors.h"
#include "widgets/tip_layout.h"
#include "workarea/carried_result.h"

namespace calquo {
namespace {

void checkPieces(std::string_view line) {
    for (std::size_t index = 0; index < line.size();) {
        const LinePiece piece = pieceAt(line, index);
        require(piece.begin == index && piece.end > index && piece.end <= line.size(), "a piece leaves its line");
        const bool isOperand = piece.kind != PieceKind::Other || line[index] == markCharacter(TokenClass::ListOpen);
        require(!isOperand || beginsOperand(std::wstring(1, static_cast<wchar_t>(line[index]))),
                "an operand goes on from a carried result");
        index = piece.end;
    }
}

/// A tip has all its rows, one below the other, and a place beside the line.
void checkTip(const TipContent& content) {
    constexpr TipMetrics metrics{300, 16, 12};
    constexpr int widthOfCharacter = 7;
    const auto measure = [](const TipCell&, TextSpan part) {
        return static_cast<int>(part.end - part.begin) * widthOfCharacter;
    };
    const TipLayout layout = layOutTip(content.rows, metrics, measure);
    require(layout.rows.size() == content.rows.size(), "a row of the tip is left out");
    int bottom = 0;
    for (const PlacedRow& row : layout.rows) {
        require(row.top >= bottom && row.height >= metrics.lineHeight, "two rows of the tip overlap");
        bottom = row.top + row.height;
    }
    constexpr Rectangle area{0, 0, 1000, 800};
    const Rectangle line{500, 400, 20, 16};
    const Size size{layout.width, std::min(bottom, roomBeside(line, bottom, area))};
    const Rectangle place = placeBeside(line, size, area);
    require(place.top >= line.top + line.height || place.top + place.height <= line.top, "the tip covers the line");
}

void checkCall(std::string_view line, std::size_t caret) {
    const auto call = callAt(line, caret);
    if (!call) {
        return;
    }
    require(call->function >= 1 && call->function <= keywordCount(), "a call of no name");
    require(!argumentTextOf(call->function).empty(), "a call of a name without arguments");
    const CallText text = textOf(*call);
    require(text.text.starts_with(nameOf(call->function)), "the text is of another function");
    checkTip(contentOf(*call));
    require(text.presentBegin <= text.presentEnd && text.presentEnd <= text.text.size(), "an argument out of place");
}

std::size_t lastPieceBegin(std::string_view line) {
    std::size_t begin = 0;
    for (std::size_t index = 0; index < line.size(); index = pieceAt(line, index).end) {
        begin = index;
    }
    return begin;
}

/// The length of the number at an index; 0 where the language reads none.
std::size_t numberLength(std::string_view line, std::size_t index) {
    try {
        Real number = 0;
        return readNumber(line, index, number);
    } catch (const Except&) {
        return 0;
    }
}

void checkCompletion(const std::string& line, std::size_t caret) {
    const auto completion = completionAt(line, caret);
    if (!completion) {
        return;
    }
    require(completion->begin <= caret && caret <= completion->end && completion->end <= line.size(),
            "a word that is not at the caret");
    require(completion->typed == std::string_view(line).substr(completion->begin, caret - completion->begin),
            "another word is completed");
    checkTip(contentOf(*completion));
    std::vector<std::size_t> names = completion->names;
    std::ranges::sort(names);
    require(std::ranges::adjacent_find(names) == names.end(), "a name is offered twice");
    require(names.empty() || (names.front() >= 1 && names.back() <= keywordCount()), "no name is offered");
    // After a base prefix letters are digits, and what is refused there stays so.
    const bool hasBase = line.find(markCharacter(TokenClass::BaseMark)) != std::string::npos;
    const std::size_t number = lastPieceBegin(line.substr(0, completion->begin));
    for (const std::size_t name : completion->names) {
        dimensionOf(name);
        const std::string text = textFor(name, line, *completion);
        const std::size_t blanks = text.starts_with(' ') ? 1 : 0;
        require(std::string_view(text).substr(blanks).starts_with(nameOf(name)) &&
                    text.size() <= blanks + nameOf(name).size() + 1,
                "another name is put in");
        std::string completed = line;
        completed.replace(completion->begin, completion->end - completion->begin, text);
        require(keywordAt(completed, completion->begin + blanks), "what is put in is no name");
        require(hasBase || numberLength(completed, number) == numberLength(line.substr(0, completion->begin), number),
                "what is put in changes the number before it");
    }
}

void checkDetails(const std::string& line) {
    checkTip(contentOf(detailsOfLine(line), DetailKeys::Letters));
    for (const Detail& detail : detailsOfLine(line)) {
        require(!detail.text.empty() && !detail.what.empty(), "an empty detail");
    }
    try {
        const Value value = evaluateLine(line).value;
        for (const Detail& detail : detailsOf(value, true)) {
            const bool isExact = isWrittenWithoutLoss(value) && !detail.text.starts_with("polar");
            require(!isExact || isSameValue(evaluateLine(detail.text).value, value), detail.text.c_str());
        }
    } catch (const Except&) {
        // A line without a value has no details of its own.
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    const bool hasComma = reader.byte() % 4 == 0;
    setMarks(hasComma ? ',' : '.', hasComma ? '.' : ',');
    const std::size_t place = reader.number(2);
    std::string line = reader.text();
    std::erase_if(line, [](char character) { return character == '\r' || character == '\n'; });
    const std::size_t caret = place % (line.size() + 1);
    checkPieces(line);
    require(nameAt(line, caret) <= keywordCount(), "the caret is at no name");
    checkCall(line, caret);
    checkCompletion(line, caret);
    checkDetails(line);
}

const Target target("assist", check);

}  // namespace
}  // namespace calquo
