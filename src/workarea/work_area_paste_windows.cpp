// Text of other programs on its way into the work area: what it becomes, and why it may not come.
#include "workarea/work_area.h"

#include <new>

#include "widgets/wide_text.h"
#include "workarea/file_fault.h"
#include "workarea/pasted_text.h"
#include "workarea/plain_text.h"
#include "workarea/rich_text_plain.h"
#include "workarea/text_cost.h"

namespace calquo {
namespace {

std::wstring_view wide(std::u16string_view text) {
    return {reinterpret_cast<const wchar_t*>(text.data()), text.size()};
}

/// The characters of a text of which there may be a rich form alone; nothing where that is damaged.
std::u16string plainFormOf(const ForeignText& text) {
    if (!text.plain.empty() || text.rich.empty()) {
        return text.plain;
    }
    try {
        const std::wstring characters = wideText(plainTextOf(text.rich, mostTextCost()));
        return {characters.begin(), characters.end()};
    } catch (const FileFault& fault) {
        if (fault.failure == FileFailure::TooMuchText) {
            throw;
        }
        return {};
    }
}

}  // namespace

void WorkArea::insertForeignText(const std::function<ForeignText()>& source, ForeignForm form) {
    try {
        const ForeignText text = source();
        if (form == ForeignForm::Plain || !insertRichText(text)) {
            insertPlainText(text);
        }
    } catch (const FileFault&) {
        listener_.refused(L"This text is too long, or has too many lines, to be put into the sheet.");
    } catch (const std::bad_alloc&) {
        listener_.refused(L"There is not enough memory to put this text into the sheet.");
    }
}

void WorkArea::insertPlainText(const ForeignText& foreign) {
    std::u16string text = pastedText(plainFormOf(foreign));
    refuseTooMuchText(text, mostTextCost());
    const TextRange place = placeFor(wide(text));
    const bool beginsLine = paragraphAt(place.begin).range.begin == place.begin;
    // What spreadsheets say of one cell ends with a line end, which is wanted between lines alone.
    if (text.find(u'\n') + 1 == text.size() && !(beginsLine && paragraphAt(place.end).range.end > place.end)) {
        text.erase(text.find_last_not_of(u'\n') + 1);
    }
    if (!text.empty()) {
        replace(place, {normalRun(std::wstring(wide(text)))}, place.begin + static_cast<std::int32_t>(text.size()));
        endFreshness();
    }
}

/// False where there is no rich text, or a damaged one.
bool WorkArea::insertRichText(const ForeignText& foreign) {
    std::string text;
    try {
        text = onScreen(foreign.rich, mostTextCost());
    } catch (const FileFault& fault) {
        if (fault.failure == FileFailure::TooMuchText) {
            throw;
        }
        return false;
    }
    select(isFresh() ? placeFor(wide(plainFormOf(foreign))) : selection());
    endFreshness();
    return replaceSelectionByRichText(text);
}

void WorkArea::paste() {
    insertForeignText([this] { return clipboardText(handle(), ForeignForm::Plain); }, ForeignForm::Plain);
}

void WorkArea::pasteWithLooks() {
    insertForeignText([this] { return clipboardText(handle(), ForeignForm::Rich); }, ForeignForm::Rich);
}

}  // namespace calquo
