// The signatures of the forms, and the readers that the window has for them.
#include "console/sheet_form.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>

#include "workarea/plain_text.h"
#include "workarea/rich_text_plain.h"

namespace calquo {
namespace {

struct SignatureRow {
    std::string_view bytes;
    SheetForm form;
};
constexpr SignatureRow signatureRows[] = {
    {"{\\rtf", SheetForm::RichText},
    {"\xEF\xBB\xBF", SheetForm::PlainWithMark},
    {"\xFF\xFE", SheetForm::Utf16},
    {"\xFE\xFF", SheetForm::Utf16},
};

/// A window shows less text than calq can read.
constexpr std::uint64_t anyCost = std::numeric_limits<std::uint64_t>::max();

}  // namespace

SheetForm sheetFormOf(std::string_view beginning) {
    for (const SignatureRow& row : signatureRows) {
        if (beginning.starts_with(row.bytes)) {
            return row.form;
        }
    }
    const bool mayBecomeOne =
        std::ranges::any_of(signatureRows, [&](const SignatureRow& row) { return row.bytes.starts_with(beginning); });
    return mayBecomeOne ? SheetForm::Unknown : SheetForm::Plain;
}

std::size_t markLength(SheetForm form) {
    const auto* const row = std::ranges::find(signatureRows, form, &SignatureRow::form);
    return form == SheetForm::PlainWithMark ? row->bytes.size() : 0;
}

std::string textOfSheet(std::string_view bytes, SheetForm form) {
    if (form == SheetForm::RichText) {
        return plainTextOf(bytes, anyCost);
    }
    const PlainText text = decodePlainText(bytes, {windows1252(), anyCost});
    return encodePlainText(text.characters, {TextEncoding::Utf8, LineEnd::LineFeed}, windows1252());
}

}  // namespace calquo
