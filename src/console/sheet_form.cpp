// The first bytes by which the forms are told apart, and the readers that the window uses for them.
#include "console/sheet_form.h"

#include <cstddef>
#include <limits>

#include "workarea/plain_text.h"
#include "workarea/rich_text_plain.h"

namespace calquo {
namespace {

constexpr std::string_view richTextBeginning = "{\\rtf";

SheetForm formAfter(TextEncoding encoding) {
    return encoding == TextEncoding::Utf8WithMark ? SheetForm::PlainWithMark : SheetForm::Utf16;
}

/// A window shows less text than calq can read.
constexpr std::uint64_t anyCost = std::numeric_limits<std::uint64_t>::max();

}  // namespace

SheetForm sheetFormOf(std::string_view beginning) {
    if (beginning.starts_with(richTextBeginning)) {
        return SheetForm::RichText;
    }
    bool mayBecomeOne = richTextBeginning.starts_with(beginning);
    for (const ByteOrderMark& mark : byteOrderMarks) {
        if (beginning.starts_with(mark.bytes)) {
            return formAfter(mark.encoding);
        }
        mayBecomeOne = mayBecomeOne || mark.bytes.starts_with(beginning);
    }
    return mayBecomeOne ? SheetForm::Unknown : SheetForm::Plain;
}

std::size_t markLength(SheetForm form) {
    return form == SheetForm::PlainWithMark ? byteOrderMarks.front().bytes.size() : 0;
}

std::string textOfSheet(std::string_view bytes, SheetForm form) {
    if (form == SheetForm::RichText) {
        return plainTextOf(bytes, anyCost);
    }
    const PlainText text = decodePlainText(bytes, {windows1252(), anyCost});
    return encodePlainText(text.characters, {TextEncoding::Utf8, LineEnd::LineFeed}, windows1252());
}

}  // namespace calquo
