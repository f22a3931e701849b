// Any button pressed on any line with any selection: the edit stays in the line, and so does the caret after the edit.
#include <string>

#include "panels/button_action.h"
#include "target.h"
#include "widgets/key_stroke.h"
#include "widgets/widget_text.h"

namespace calquo {
namespace {

struct Checker {
    const LineSelection& line;

    void operator()(NoAction) const {}
    void operator()(EditingOperation) const {}
    void operator()(TypeCharacters typing) const { require(!typing.characters.empty(), "nothing is typed"); }
    void operator()(const SurroundCharacters& change) const {
        checkPlace(change.begin, change.end, change.before.size() + change.after.size() + change.end - change.begin,
                   change.caret);
    }
    void operator()(const ReplaceCharacters& change) const {
        checkPlace(change.begin, change.end, change.text.size(), change.caret);
    }

private:
    void checkPlace(std::size_t begin, std::size_t end, std::size_t length, std::size_t caret) const {
        require(begin <= end && end <= line.text.size(), "the edit leaves the line");
        require(caret <= line.text.size() - (end - begin) + length, "the caret leaves the changed line");
    }
};

/// What is said of a button with any text, and of any key with a label.
void checkTexts(std::string_view text, std::size_t choice, std::size_t key) {
    const std::string_view description = descriptionOf(text);
    for (const bool labelIsSeen : {false, true}) {
        require(spokenNameOf(text, labelIsSeen).ends_with(description), "a description is not read out");
    }
    require(withoutMnemonic(text).size() <= text.size(), "a label grows");
    const auto modifiers = static_cast<Modifiers>(choice % (static_cast<std::size_t>(Modifiers::ControlShift) + 1));
    const std::string name = keyText({static_cast<std::uint32_t>(key), modifiers});
    require((key == 0) == name.empty(), "a key without a name");
}

void check(FuzzInput input) {
    InputReader reader(input);
    const auto panels = panelCatalogue();
    const PanelEntry& panel = panels[reader.byte() % panels.size()];
    const PanelRow row = panel.rows[reader.byte() % panel.rows.size()];
    const PanelButton& button = row[reader.byte() % row.size()];
    const auto angle = static_cast<AngleOption>(reader.byte() % 4);
    const std::size_t begin = reader.byte();
    const std::size_t end = begin + reader.byte();
    const std::string text = reader.text();
    const LineSelection line{text, begin, end};
    std::visit(Checker{line}, actionOf(panel, button, line, angle));
    checkTexts(text, begin, end);
}

const Target target("buttons", check);

}  // namespace
}  // namespace calquo
