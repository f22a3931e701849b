// The table of the control words.
#include "workarea/rich_text_words.h"

#include <algorithm>
#include <array>

#include "workarea/rich_text_writer.h"

namespace calquo {
namespace {

struct WordRow {
    std::string_view word;
    WordKind kind;
    std::int32_t value = 0;
};

constexpr auto wordRows = [] {
    using enum WordKind;
    std::array rows = std::to_array<WordRow>({
        {"par", LineEnd},
        {"line", LineEnd},
        {"lbr", LineEnd},
        {"page", LineEnd},
        {"column", LineEnd},
        {"sect", LineEnd},
        {"cell", CellEnd},
        {"nestcell", CellEnd},
        {"row", LineEnd},
        {"nestrow", NestedRowEnd},

        {"tab", Character, '\t'},
        {"emspace", Character, 0x2003},
        {"enspace", Character, 0x2002},
        {"qmspace", Character, 0x2005},
        {"emdash", Character, 0x2014},
        {"endash", Character, 0x2013},
        {"bullet", Character, 0x2022},
        {"lquote", Character, 0x2018},
        {"rquote", Character, 0x2019},
        {"ldblquote", Character, 0x201C},
        {"rdblquote", Character, 0x201D},
        {"u", UnicodeCharacter},
        {"uc", UnicodeFallback},

        {"f", Font},
        {"fs", FontSize},
        {"cf", Color},
        {"cb", Background},
        {"chcbpat", Background},
        {"highlight", Background},
        {"b", Bold},
        {"i", Italic},
        {"ul", Underlined, 1},
        {"uld", Underlined, 1},
        {"uldash", Underlined, 1},
        {"uldashd", Underlined, 1},
        {"uldashdd", Underlined, 1},
        {"uldb", Underlined, 1},
        {"ulhwave", Underlined, 1},
        {"ulldash", Underlined, 1},
        {"ulth", Underlined, 1},
        {"ululdbwave", Underlined, 1},
        {"ulw", Underlined, 1},
        {"ulwave", Underlined, 1},
        {"ulnone", Underlined, 0},
        {"strike", StruckOut},
        {"striked", StruckOut},
        {"super", ScriptPlace, static_cast<std::int32_t>(Script::Super)},
        {"sub", ScriptPlace, static_cast<std::int32_t>(Script::Sub)},
        {"nosupersub", ScriptPlace, static_cast<std::int32_t>(Script::Normal)},
        {"v", Hidden},
        {"deleted", Deleted},
        {"plain", PlainCharacters},

        {"pard", PlainParagraph},
        {"ql", Alignment, 'l'},
        {"qr", Alignment, 'r'},
        {"qc", Alignment, 'c'},
        {"qj", Alignment, 'j'},
        {"li", LeftIndent},
        {"ri", RightIndent},
        {"fi", FirstLineIndent},

        {"ansi", CharacterSet},
        {"mac", CharacterSet},
        {"pc", CharacterSet},
        {"pca", CharacterSet},
        {"ansicpg", CodePage},
        {"deff", DefaultFont},
        {"fonttbl", FontTable},
        {"fnil", FontFamily},
        {"froman", FontFamily},
        {"fswiss", FontFamily},
        {"fmodern", FontFamily},
        {"fscript", FontFamily},
        {"fdecor", FontFamily},
        {"ftech", FontFamily},
        {"fbidi", FontFamily},
        {"fcharset", FontCharset},
        {"cpg", FontCodePage},
        {"colortbl", ColorTable},
        {"red", Red},
        {"green", Green},
        {"blue", Blue},

        // Groups that begin with an asterisk need no row.
        {"annotation", Dropped},
        {"comment", Dropped},
        {"do", Dropped},
        {"falt", Dropped},
        {"filetbl", Dropped},
        {"fldinst", Dropped},
        {"fontemb", Dropped},
        {"footer", Dropped},
        {"footerf", Dropped},
        {"footerl", Dropped},
        {"footerr", Dropped},
        {"footnote", Dropped},
        {"header", Dropped},
        {"headerf", Dropped},
        {"headerl", Dropped},
        {"headerr", Dropped},
        {"info", Dropped},
        {"listtext", Dropped},
        {"nonesttables", Dropped},
        {"nonshppict", Dropped},
        {"object", Dropped},
        {"panose", Dropped},
        {"pntext", Dropped},
        {"private", Dropped},
        {"rxe", Dropped},
        {"shp", Dropped},
        {"stylesheet", Dropped},
        {"tc", Dropped},
        {"tcn", Dropped},
        {"txe", Dropped},
        {"xe", Dropped},
        {"pict", Picture},
        {"bin", Bytes},
    });
    std::ranges::sort(rows, {}, &WordRow::word);
    return rows;
}();

static_assert(std::ranges::adjacent_find(wordRows, {}, &WordRow::word) == wordRows.end(), "a word has one row");

/// The place of a lower-case letter in the alphabet; one after the last for everything else.
constexpr std::size_t letterIndex(char letter) {
    constexpr std::size_t letters = 26;
    return letter >= 'a' && letter <= 'z' ? static_cast<std::size_t>(letter - 'a') : letters;
}

/// Where the rows of each letter begin: words are short and many, and half of a search would go over their beginnings.
constexpr auto firstOfLetter = [] {
    std::array<std::size_t, 28> firsts{};
    for (const WordRow& row : wordRows) {
        for (std::size_t after = letterIndex(row.word.front()) + 1; after < firsts.size(); ++after) {
            ++firsts[after];
        }
    }
    return firsts;
}();

}  // namespace

WordMeaning meaningOf(std::string_view word) {
    if (word.empty()) {
        return {};
    }
    const std::size_t letter = letterIndex(word.front());
    for (std::size_t place = firstOfLetter[letter]; place < firstOfLetter[letter + 1]; ++place) {
        const WordRow& row = wordRows[place];
        if (row.word == word) {
            return {row.kind, row.value};
        }
    }
    return {};
}

}  // namespace calquo
