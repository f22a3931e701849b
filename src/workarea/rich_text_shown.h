// The characters that a rich text shows, one after another, on their way to the writer.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "workarea/rich_text_writer.h"
#include "workarea/text_cost.h"

namespace calquo {

/// How the next characters look.
struct Look {
    CharacterFormat characters;
    ParagraphFormat paragraph;
};

/// Leaves control characters out, makes pairs of surrogates, lines of whatever breaks a line, and tabs of what stands
/// between the cells of a table. Throws FileFault, TooMuchText, when the TextCost is above the most.
class ShownText {
public:
    explicit ShownText(std::uint64_t mostCost) : mostCost_(mostCost) {}

    /// Characters of printable ASCII.
    void add(const Look& look, std::string_view characters);
    /// A byte of a code page.
    void addByte(const Look& look, unsigned char byte);
    /// A character, or one of the two surrogates that make one.
    void addCharacter(const Look& look, char32_t code);
    void endLine(const Look& look);
    /// The cell of a table ends; what follows on the line is the next one.
    void endCell() { ++cells_; }

    /// The whole text; the end of the last line only where it is wanted or something follows.
    std::string finish(const RichTextWriter::Header& header, bool keepsLastLineEnd);

private:
    void begin(const Look& look);
    void settle();
    void settleSurrogate();
    void count();
    void refuseTooMuch() const;

    std::uint64_t mostCost_;
    RichTextWriter writer_;
    TextCost cost_;
    Look look_;                  ///< Of the last character.
    std::size_t cells_ = 0;      ///< That have ended without anything after them on the line.
    char32_t surrogate_ = 0;     ///< The first of a pair; the other is to follow.
    bool hasLineEnded_ = false;  ///< With nothing after it so far.
};

}  // namespace calquo
