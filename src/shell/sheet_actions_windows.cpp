// The commands of the sheet: what each asks of the work area, and the hint that it shows.
#include "shell/sheet_actions.h"

#include <utility>

#include "assist/line_pieces.h"
#include "assist/lines_sum.h"
#include "engine/keywords.h"
#include "widgets/clipboard.h"
#include "widgets/wide_text.h"
#include "workarea/language_text.h"
#include "workarea/reevaluation.h"

namespace calquo {
namespace {

constexpr wchar_t noSelectionHint[] = L"Select the lines whose values are to be added.";
constexpr wchar_t noResultHint[] = L"This line has no result to copy.";
constexpr wchar_t clipboardHint[] = L"Another program keeps the clipboard to itself: nothing is copied.";

std::string shownText(const LineValue& line) { return line.shown; }

}  // namespace

SheetActions::SheetActions(WorkArea& workArea, const UserDialogs& dialogs, std::function<NumericFormat()> format)
    : workArea_(workArea), dialogs_(dialogs), format_(std::move(format)) {}

void SheetActions::run(Command command) {
    switch (command) {
        case Command::Undo:
            return workArea_.undo();
        case Command::Redo:
            return workArea_.redo();
        case Command::Cut:
            return workArea_.cut();
        case Command::Copy:
            return copy();
        case Command::CopyResult:
            return copyResult(shownText);
        case Command::CopyFullResult:
            return copyResult(textInFull);
        case Command::Paste:
            return workArea_.paste();
        case Command::Delete:
            return workArea_.deleteSelection();
        case Command::SelectAll:
            return workArea_.selectAll();
        case Command::Evaluate:
            return workArea_.evaluate();
        case Command::EvaluateAll:
            return evaluateAll();
        case Command::AddSum:
            return addSum();
        default:
            return;
    }
}

SheetState SheetActions::state() const {
    const CurrentLine line = workArea_.currentLine();
    SheetState state;
    state.isEmpty = workArea_.isEmpty();
    state.hasSelection = workArea_.hasSelection();
    state.lineIsEmpty = line.text.empty();
    state.lineHasResult = valueOf(line.text, format_()).has_value();
    state.canUndo = workArea_.canUndo();
    state.canRedo = workArea_.canRedo();
    state.canPaste = workArea_.canPaste();
    state.name = nameOf(nameAt(line.text, line.selectionBegin));
    return state;
}

void SheetActions::evaluateAll() {
    const Reevaluation outcome = workArea_.evaluateAll();
    dialogs_.showHint(wideText(hintAbout(outcome)));
}

void SheetActions::addSum() {
    if (!workArea_.hasSelection()) {
        return dialogs_.showHint(noSelectionHint);
    }
    const Paragraph lines = workArea_.selectedLines();
    const LinesSum sum = sumOfLines(lines.text, format_());
    if (!sum.expression.empty()) {
        const std::int32_t place = lines.range.begin + static_cast<std::int32_t>(sum.place);
        workArea_.addLine(place, sum.replacesCarried ? LinePlace::Here : LinePlace::Below, sum.expression);
    }
    if (const std::string hint = hintAbout(sum); !hint.empty()) {
        dialogs_.showHint(wideText(hint));
    }
}

void SheetActions::copy() {
    if (workArea_.hasSelection()) {
        workArea_.copy();
    } else {
        copyResult(shownText);
    }
}

void SheetActions::copyResult(std::string (*textOf)(const LineValue&)) {
    const std::optional<LineValue> line = valueOf(workArea_.currentLine().text, format_());
    if (!line) {
        dialogs_.showHint(noResultHint);
    } else if (!copyToClipboard(workArea_.handle(), controlText(textOf(*line)))) {
        dialogs_.showHint(clipboardHint);
    }
}

}  // namespace calquo
