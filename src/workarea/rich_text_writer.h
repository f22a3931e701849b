// Writes rich text of styled characters and paragraphs, and of nothing else. The same characters in the same formats
// are always the same bytes.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {

/// A font as rich text describes it.
struct RichTextFont {
    std::string family = "nil";  ///< Its control word, without the leading "f".
    std::optional<std::int32_t> charset;
    std::optional<std::int32_t> codePage;
    std::string name;  ///< As it stands in rich text.
};

enum class Script : std::uint8_t { Normal, Super, Sub };

struct CharacterFormat {
    static constexpr std::int32_t unset = -1;

    std::int32_t font = unset;  ///< A place in the list of fonts.
    std::int32_t size = unset;  ///< In half points.
    /// Red in bits 16 to 23, then green, then blue.
    std::int32_t color = unset;
    std::int32_t background = unset;
    bool bold = false;
    bool italic = false;
    bool underlined = false;
    bool struckOut = false;
    Script script = Script::Normal;

    friend bool operator==(const CharacterFormat&, const CharacterFormat&) = default;
};

/// Indents in twentieths of a point.
struct ParagraphFormat {
    char alignment = 'l';  ///< Or 'r', 'c', 'j'.
    std::int32_t left = 0;
    std::int32_t right = 0;
    std::int32_t firstLine = 0;

    friend bool operator==(const ParagraphFormat&, const ParagraphFormat&) = default;
};

/// The look of characters without a format: black, in this font.
struct UsualLook {
    std::string font;  ///< Its name, as rich text has it.
    std::int32_t halfPoints = 24;
};

class RichTextWriter {
public:
    /// What all of the text depends on.
    struct Header {
        std::string_view characterSet = "ansi";  ///< A control word.
        std::optional<std::int32_t> codePage;
        const std::vector<RichTextFont>& fonts;
        const UsualLook* usual = nullptr;  ///< Null leaves the usual look to the reader.
    };

    /// Appends characters of printable ASCII.
    void add(const CharacterFormat& format, std::string_view characters);
    /// Appends a tab.
    void addTab(const CharacterFormat& format);
    /// Appends a byte of the font's code page.
    void addByte(const CharacterFormat& format, unsigned char byte);
    /// Appends a character beyond ASCII by its UTF-16 unit or pair of units.
    void addCharacter(const CharacterFormat& format, char32_t code);
    /// Ends a paragraph; its end has the look of a character.
    void endParagraph(const CharacterFormat& format, const ParagraphFormat& paragraph);

    /// The whole text, whose last paragraph has this format.
    std::string finish(const Header& header, const ParagraphFormat& lastParagraph);

private:
    void use(const CharacterFormat& format);
    void takeLine(const ParagraphFormat& paragraph);
    std::int32_t numberOfFont(std::int32_t font);
    std::int32_t numberOfColor(std::int32_t color);
    std::string wordsBetween(const CharacterFormat& before, const CharacterFormat& after);
    std::string tables(const Header& header) const;

    std::string body_;
    std::string line_;  ///< The present paragraph, which follows the body.
    ParagraphFormat paragraph_;

    CharacterFormat wanted_;                  ///< What the last character was to look like.
    CharacterFormat present_;                 ///< What it looks like, with no more fonts and colours than there may be.
    std::optional<CharacterFormat> outside_;  ///< Before the group that is open, if one is.
    CharacterFormat presentAtLine_;           ///< The same two where the present paragraph begins.
    std::optional<CharacterFormat> outsideAtLine_;

    std::map<std::int32_t, std::int32_t> fontNumbers_;  ///< From 1 on, in the order of their first use.
    std::map<std::int32_t, std::int32_t> colorNumbers_;
};

/// Appends a character by the number of its UTF-16 unit or units, each followed by the question mark that readers
/// without Unicode show instead.
void appendByNumber(std::string& richText, char32_t code);

/// Appends a byte of a code page.
void appendByte(std::string& richText, unsigned char byte);

}  // namespace calquo
