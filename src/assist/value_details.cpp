// Chooses which forms of a line's value are shown.
#include "assist/value_details.h"

#include <optional>

#include "assist/line_pieces.h"
#include "assist/name_dimension.h"
#include "assist/value_forms.h"
#include "engine/characters.h"
#include "engine/evaluator.h"
#include "engine/keywords.h"
#include "units/unit_table.h"
#include "values/errors.h"
#include "workarea/record.h"

namespace calquo {
namespace {

std::optional<Value> valueOf(std::string_view expression) {
    try {
        return evaluateLine(expression).value;
    } catch (const Except&) {
        return std::nullopt;
    }
}

/// Whether any name of an expression is one that `isSuch`.
template <typename IsSuch>
bool hasName(std::string_view expression, const IsSuch& isSuch) {
    for (std::size_t index = 0; index < expression.size();) {
        const LinePiece piece = pieceAt(expression, index);
        if (piece.kind == PieceKind::Name && isSuch(expression.substr(piece.begin, piece.end - piece.begin))) {
            return true;
        }
        index = piece.end;
    }
    return false;
}

bool isTimeUnit(std::string_view name) { return dimensionOf(lookup(name)) == dimension::time; }

/// The expression with units of time that are twice as large.
std::string withDoubledTime(std::string_view expression) {
    std::string doubled;
    for (std::size_t index = 0; index < expression.size();) {
        const LinePiece piece = pieceAt(expression, index);
        const std::string_view text = expression.substr(piece.begin, piece.end - piece.begin);
        if (piece.kind == PieceKind::Name && isTimeUnit(text)) {
            doubled += "(2 ";
            doubled += text;
            doubled += ')';
        } else {
            doubled += text;
        }
        index = piece.end;
    }
    return doubled;
}

/// Whether an expression of this value is a length of time. A speed halves when units of time are doubled, a number of
/// hours stays as it is, and seconds double.
bool isTime(std::string_view expression, const Value& value) {
    return hasName(expression, isTimeUnit) && readsAs(withDoubledTime(expression), {2 * value.re, 2 * value.im});
}

/// What stands after the first "=" of a line.
std::string_view resultOf(std::string_view line) {
    const std::size_t equals = line.find(markCharacter(TokenClass::Equals));
    return equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1);
}

}  // namespace

std::vector<Detail> detailsOf(const Value& value, bool isTime) {
    std::vector<Detail> details;
    const auto add = [&](char letter, std::string_view what, std::string text) {
        if (!text.empty()) {
            details.push_back({letter, what, std::move(text)});
        }
    };
    add('v', "value in full", fullText(value));
    if (value.im == 0) {
        add('f', "fraction", fractionText(value.re));
        add('b', "base 2", baseText(value.re, 2));
        add('h', "base 16", baseText(value.re, 16));
        add('t', "time", isTime ? timeText(value.re) : "");
    } else if (!details.empty()) {
        add('p', "polar, radians", polarText(value, "", 1));
        add('d', "polar, degrees", polarText(value, "deg", pi / 180));
    }
    return details;
}

bool drawsRandomNumbers(std::string_view expression) {
    return hasName(expression, [](std::string_view name) { return nameOf(lookup(name)).starts_with("rnd"); });
}

std::vector<Detail> detailsOfLine(std::string_view line) {
    const std::string_view expression = expressionOf(line);
    if (!drawsRandomNumbers(expression)) {
        if (const auto value = valueOf(expression)) {
            return detailsOf(*value, isTime(expression, *value));
        }
    }
    const auto value = valueOf(resultOf(line));
    return value ? detailsOf(*value, false) : std::vector<Detail>();
}

}  // namespace calquo
