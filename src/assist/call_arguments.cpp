// Calls in a line that is being written.
#include "assist/call_arguments.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "assist/line_pieces.h"
#include "engine/characters.h"
#include "engine/keywords.h"

namespace calquo {
namespace {

constexpr std::string_view separator = "; ";
/// Stands for any number of further arguments.
constexpr std::string_view furtherArguments = "...";

/// The names of a function's arguments, one after the other.
std::vector<std::string_view> argumentNames(std::size_t function) {
    std::vector<std::string_view> names;
    std::string_view rest = argumentsOf(function);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(separator), rest.size());
        names.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + separator.size(), rest.size()));
    }
    return names;
}

/// How many of a function's arguments must be there.
std::size_t requiredArguments(std::size_t function) {
    const auto* const list = bindingOf(function).as<ListFunction>();
    const bool isBounded = list != nullptr && list->most != std::numeric_limits<std::size_t>::max();
    return isBounded ? list->least : std::numeric_limits<std::size_t>::max();
}

}  // namespace

std::optional<OpenCall> callAt(std::string_view line, std::size_t caret) {
    if (line.substr(0, caret).find(markCharacter(TokenClass::Equals)) != std::string_view::npos) {
        return std::nullopt;
    }
    std::vector<OpenCall> open;  // a group is a call of no function
    OpenCall name;               // the one that ends where the next piece begins
    for (std::size_t index = 0; index < std::min(caret, line.size());) {
        const LinePiece piece = pieceAt(line, index);
        const TokenClass kind = piece.kind == PieceKind::Other ? classOfCharacter(line[piece.begin]) : TokenClass::None;
        if (kind == TokenClass::ListOpen) {
            open.push_back(argumentsOf(name.function).empty() ? OpenCall{} : name);
        } else if (kind == TokenClass::ListClose && !open.empty()) {
            open.pop_back();
        } else if (kind == TokenClass::ListSeparator && !open.empty()) {
            ++open.back().argument;
        }
        const bool isName = piece.kind == PieceKind::Name;
        name = {isName ? lookup(line.substr(piece.begin, piece.end - piece.begin)) : 0, 0, piece.begin};
        index = piece.end;
    }
    const auto call = std::find_if(open.rbegin(), open.rend(), [](const OpenCall& one) { return one.function != 0; });
    return call == open.rend() ? std::nullopt : std::optional(*call);
}

CallText textOf(const OpenCall& call) {
    CallText result{std::string(nameOf(call.function)) + "("};
    const std::vector<std::string_view> names = argumentNames(call.function);
    const std::size_t required = requiredArguments(call.function);
    const bool goesOn = !names.empty() && names.back() == furtherArguments;
    const std::size_t present = goesOn ? std::min(call.argument, names.size() - 1) : call.argument;
    for (std::size_t index = 0; index < names.size(); ++index) {
        result.text += index == 0 ? "" : separator;
        result.text += index == required ? "[" : "";
        if (index == present) {
            result.presentBegin = result.text.size();
            result.presentEnd = result.presentBegin + names[index].size();
        }
        result.text += names[index];
    }
    result.text += names.size() > required ? "])" : ")";
    return result;
}

std::string argumentTextOf(std::size_t name) {
    return argumentsOf(name).empty() ? std::string() : textOf({name}).text.substr(nameOf(name).size());
}

}  // namespace calquo
