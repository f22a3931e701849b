// The rows of the tips.
#include "shell/tip_contents.h"

#include <string>
#include <string_view>

#include "engine/keywords.h"

namespace calquo {
namespace {

/// The names, the descriptions and the forms of values are ASCII.
std::wstring wide(std::string_view text) { return {text.begin(), text.end()}; }

TipCell bold(std::string_view text) { return {wide(text), {0, text.size()}}; }
TipCell plain(std::string_view text) { return {wide(text)}; }
TipCell faint(std::string_view text) { return {wide(text), {}, true}; }

TipContent message(std::string_view text) { return {.rows = {{plain(text)}}, .spoken = wide(text)}; }

}  // namespace

TipContent contentOf(const std::vector<Detail>& details, DetailKeys keys) {
    if (details.empty()) {
        return message("This line has no value.");
    }
    const bool hasLetters = keys == DetailKeys::Letters;
    TipContent content{.footer = hasLetters ? L"A letter or a click copies its row." : L"A click copies a row.",
                       .canBeChosen = true};
    for (const Detail& detail : details) {
        TipRow& row = content.rows.emplace_back();
        if (hasLetters) {
            row.push_back(bold({&detail.letter, 1}));
        }
        row.push_back(faint(detail.what));
        row.push_back(plain(detail.text));
        content.spoken += (content.spoken.empty() ? L"" : L", ") + wide(detail.what) + L": " + wide(detail.text);
    }
    return content;
}

TipContent contentOf(const Completion& completion) {
    if (completion.names.empty()) {
        return message("No name has \"" + completion.typed + "\" in it or in its description.");
    }
    const std::size_t count = completion.names.size();
    TipContent content{.footer = std::to_wstring(count) + (count == 1 ? L" name" : L" names") +
                                 L". Enter or Tab takes the marked one, Esc none.",
                       .isList = true,
                       .canBeChosen = true};
    for (const std::size_t name : completion.names) {
        TipCell call = bold(nameOf(name));
        call.text += wide(argumentTextOf(name));
        content.rows.push_back({std::move(call), faint(descriptionOf(name))});
    }
    return content;
}

TipContent contentOf(const OpenCall& call) {
    const CallText text = textOf(call);
    const std::string_view present =
        std::string_view(text.text).substr(text.presentBegin, text.presentEnd - text.presentBegin);
    TipContent content;
    content.rows = {{{wide(text.text), {text.presentBegin, text.presentEnd}}}, {faint(descriptionOf(call.function))}};
    content.spoken = wide(text.text) + (present.empty() ? L"" : L": ") + wide(present);
    return content;
}

}  // namespace calquo
