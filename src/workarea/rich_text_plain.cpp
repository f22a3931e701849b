// Reads the text from a rich text that has been cleaned, which has few words left.
#include "workarea/rich_text_plain.h"

#include <cstddef>

#include "workarea/plain_text.h"
#include "workarea/rich_text_filter.h"
#include "workarea/rich_text_tokens.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

using Kind = RichTextToken::Kind;

class TextReader {
public:
    void take(const RichTextToken& token) {
        depth_ += token.kind == Kind::GroupBegin ? 1 : 0;
        if (token.kind == Kind::GroupEnd && depth_-- == tableDepth_) {
            tableDepth_ = 0;
        } else if (token.kind == Kind::Word && (token.text == "fonttbl" || token.text == "colortbl")) {
            tableDepth_ = depth_;
        } else if (tableDepth_ == 0) {
            takeText(token);
        }
    }

    [[nodiscard]] const std::u16string& text() const { return text_; }

private:
    void takeText(const RichTextToken& token) {
        switch (token.kind) {
            case Kind::Word:
                takeWord(token);
                break;
            case Kind::Byte: {
                const auto byte = static_cast<char>(*token.number);
                text_ += windows1252().decode({&byte, 1}).value_or(u"");
                break;
            }
            case Kind::Symbol:
            case Kind::Characters:
                text_.append(token.text.begin() + (isAfterNumber_ ? 1 : 0), token.text.end());
                isAfterNumber_ = false;
                break;
            case Kind::GroupBegin:
            case Kind::GroupEnd:
                break;
        }
    }

    void takeWord(const RichTextToken& token) {
        if (token.text == "par") {
            text_ += u'\n';
        } else if (token.text == "tab") {
            text_ += u'\t';
        } else if (token.text == "u") {
            text_ += static_cast<char16_t>(token.number.value_or(0));
            isAfterNumber_ = true;  // the question mark for readers without Unicode follows
        }
    }

    std::u16string text_;
    std::size_t depth_ = 0;
    std::size_t tableDepth_ = 0;  // of the table of fonts or colours; 0 outside
    bool isAfterNumber_ = false;
};

}  // namespace

std::string plainTextOf(std::string_view richText, std::uint64_t mostCost) {
    const std::string clean = cleanRichText(richText, mostCost, LastLineEnd::Dropped);
    RichTextTokens tokens(clean);
    TextReader reader;
    while (const auto token = tokens.next()) {
        reader.take(*token);
    }
    return encodePlainText(reader.text(), {TextEncoding::Utf8, LineEnd::LineFeed}, windows1252());
}

}  // namespace calquo
