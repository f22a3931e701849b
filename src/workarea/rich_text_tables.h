// The tables at the head of a rich text, as it is read: its fonts and its colours.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "workarea/rich_text_tokens.h"
#include "workarea/rich_text_words.h"
#include "workarea/rich_text_writer.h"

namespace calquo {

/// No more than some thousand fonts, of which names are cut to the length that the system knows.
class RichTextFonts {
public:
    /// A token of the table, a word with its meaning; groups in it that describe no fonts are to be left out.
    void take(WordMeaning meaning, const RichTextToken& token);
    /// The description of a font ends.
    void end();

    void setDefault(std::int32_t number) { default_ = number; }
    /// The place of the font of a number among all, or CharacterFormat::unset.
    std::int32_t place(std::int32_t number) const;
    std::int32_t defaultPlace() const { return defaultPlace_; }

    const std::vector<RichTextFont>& all() const { return fonts_; }

private:
    void takeWord(WordMeaning meaning, const RichTextToken& token);
    void appendToName(std::string_view richText);

    std::vector<RichTextFont> fonts_;
    std::map<std::int32_t, std::int32_t> places_;
    std::optional<std::int32_t> default_;
    std::int32_t defaultPlace_ = CharacterFormat::unset;

    RichTextFont font_;  ///< That is being described, with its number and the characters of its name so far.
    std::optional<std::int32_t> number_;
    std::size_t nameLength_ = 0;
    bool skipsFallback_ = false;
};

/// No more than some thousand colours.
class RichTextColors {
public:
    void take(WordMeaning meaning, const RichTextToken& token);

    /// The colour of a number as in CharacterFormat, or CharacterFormat::unset.
    std::int32_t color(std::int32_t number) const;

private:
    std::vector<std::int32_t> colors_;
    std::int32_t color_ = CharacterFormat::unset;  ///< That is being described.
};

}  // namespace calquo
