// Follows groups and control words, so that each character that is shown has its look; everything else goes.
#include "workarea/rich_text_filter.h"

#include <algorithm>
#include <vector>

#include "engine/characters.h"
#include "workarea/file_fault.h"
#include "workarea/rich_text_shown.h"
#include "workarea/rich_text_tables.h"
#include "workarea/rich_text_tokens.h"
#include "workarea/rich_text_words.h"

namespace calquo {
namespace {

using Kind = RichTextToken::Kind;

constexpr std::size_t mostScopes = 256;       // deeper groups share what is said in them
constexpr std::int32_t longestFallback = 16;  // characters
constexpr std::int32_t smallestSize = 2;      // half points
constexpr std::int32_t largestSize = 400;
constexpr std::int32_t widestIndent = 20'000;  // twentieths of a point
constexpr std::int32_t largestCodePage = 65'535;

[[noreturn]] void fail(FileFailure failure) { throw FileFault{failure, {}}; }

enum class Part : std::uint8_t { Text, Fonts, Colors };

/// What a group changes for itself alone.
struct Scope {
    Look look;
    std::int32_t fallback = 1;  ///< How many characters after each \u are for readers without Unicode.
    Part part = Part::Text;
    bool hidden = false;
    bool deleted = false;
};

class Filter {
public:
    Filter(std::string_view bytes, std::uint64_t mostCost, const ColorChange& colors)
        : tokens_(bytes), shown_(mostCost), change_(colors) {}

    std::string run(LastLineEnd lastLineEnd, const UsualLook* usual) {
        do {
            const std::optional<RichTextToken> token = tokens_.next();
            if (!token) {
                fail(FileFailure::CutOff);
            }
            take(*token);
        } while (depth_ > 0);
        return shown_.finish({characterSet_, codePage_, fonts_.all(), usual}, lastLineEnd == LastLineEnd::Kept);
    }

private:
    void take(const RichTextToken& token);
    void beginGroup();
    void endGroup();
    void drop(WordKind kind);
    void takeDropped(WordKind kind, const RichTextToken& token);

    void takeShown(const RichTextToken& token);
    void takeCharacters(std::string_view characters);
    void takeSymbol(char symbol);
    void takeCharacter(char32_t code);
    void endLine();
    bool takeFallback();
    bool isShown() const { return !scopes_.back().hidden && !scopes_.back().deleted; }
    Look look() const;

    void takeWord(WordMeaning meaning, const RichTextToken& token);
    void takeOfHead(WordKind kind, const RichTextToken& token);
    void takeUnicode(std::int32_t code);
    void takeFormat(WordMeaning meaning, std::optional<std::int32_t> number);
    void takeParagraphFormat(WordMeaning meaning, std::optional<std::int32_t> number);

    RichTextTokens tokens_;
    ShownText shown_;
    RichTextFonts fonts_;
    RichTextColors colors_;
    const ColorChange& change_;
    std::string_view characterSet_ = "ansi";
    std::optional<std::int32_t> codePage_;

    std::vector<Scope> scopes_{Scope{}};  ///< The first is that of no group.
    std::size_t depth_ = 0;
    std::size_t droppedDepth_ = 0;   ///< Of the outermost group that is left out; 0 outside of any.
    std::size_t pictureDepth_ = 0;   ///< The same for pictures.
    std::int32_t fallbackLeft_ = 0;  ///< Characters that only stand for one that has been shown.
};

// --- Groups ---------------------------------------------------------------------------------------------------------

void Filter::take(const RichTextToken& token) {
    const WordMeaning meaning = token.kind == Kind::Word ? meaningOf(token.text) : WordMeaning{};
    if (token.kind == Kind::GroupBegin) {
        beginGroup();
    } else if (token.kind == Kind::GroupEnd) {
        endGroup();
    } else if (meaning.kind == WordKind::Dropped || meaning.kind == WordKind::Picture ||
               (token.kind == Kind::Symbol && token.text == "*")) {
        drop(meaning.kind);
    } else if (droppedDepth_ != 0) {
        takeDropped(meaning.kind, token);
    } else if (scopes_.back().part == Part::Fonts) {
        fonts_.take(meaning, token);
    } else if (scopes_.back().part == Part::Colors) {
        colors_.take(meaning, token);
    } else if (token.kind == Kind::Word) {
        takeWord(meaning, token);
    } else {
        takeShown(token);
    }
}

void Filter::beginGroup() {
    fallbackLeft_ = 0;
    ++depth_;
    if (scopes_.size() < mostScopes) {
        scopes_.push_back(scopes_.back());
    }
}

void Filter::endGroup() {
    fallbackLeft_ = 0;
    if (scopes_.back().part == Part::Fonts && droppedDepth_ == 0) {
        fonts_.end();
    }
    for (std::size_t* const depth : {&droppedDepth_, &pictureDepth_}) {
        *depth = *depth == depth_ ? 0 : *depth;
    }
    if (depth_ < scopes_.size()) {
        scopes_.pop_back();
    }
    --depth_;
}

/// Leaves out the rest of the present group.
void Filter::drop(WordKind kind) {
    if (droppedDepth_ == 0) {
        droppedDepth_ = depth_;
    }
    if (kind == WordKind::Picture && pictureDepth_ == 0) {
        pictureDepth_ = depth_;
    }
}

void Filter::takeDropped(WordKind kind, const RichTextToken& token) {
    if (kind == WordKind::Bytes && pictureDepth_ != 0) {
        const auto count = static_cast<std::size_t>(std::max(token.number.value_or(0), 0));
        if (!tokens_.skip(count)) {
            fail(FileFailure::CutOff);
        }
    } else if (kind == WordKind::NestedRowEnd && droppedDepth_ == depth_) {
        endLine();
    }
}

// --- What is shown --------------------------------------------------------------------------------------------------

void Filter::takeShown(const RichTextToken& token) {
    if (token.kind == Kind::Characters) {
        takeCharacters(token.text);
    } else if (token.kind == Kind::Symbol) {
        takeSymbol(token.text.front());
    } else if (!takeFallback() && isShown()) {
        shown_.addByte(look(), static_cast<unsigned char>(*token.number));
    }
}

void Filter::takeCharacters(std::string_view characters) {
    const std::size_t fallback = std::min(characters.size(), static_cast<std::size_t>(fallbackLeft_));
    fallbackLeft_ -= static_cast<std::int32_t>(fallback);
    characters.remove_prefix(fallback);
    if (!isShown()) {
        return;
    }
    const auto isPlain = [](char character) { return character >= ' ' && character < 0x7F; };
    const Look now = look();
    while (!characters.empty()) {
        const auto plain = static_cast<std::size_t>(std::ranges::find_if_not(characters, isPlain) - characters.begin());
        if (plain > 0) {
            shown_.add(now, characters.substr(0, plain));
        } else {
            shown_.addByte(now, static_cast<unsigned char>(characters.front()));
        }
        characters.remove_prefix(std::max<std::size_t>(plain, 1));
    }
}

void Filter::takeSymbol(char symbol) {
    constexpr char32_t noBreakBlank = 0xA0;
    constexpr char32_t noBreakHyphen = 0x2011;
    switch (symbol) {
        case '\r':
        case '\n':
            endLine();
            break;
        case '\\':
        case '{':
        case '}':
        case '\t':
            takeCharacter(static_cast<char32_t>(symbol));
            break;
        case '~':
            takeCharacter(noBreakBlank);
            break;
        case '_':
            takeCharacter(noBreakHyphen);
            break;
        default:
            break;
    }
}

void Filter::takeCharacter(char32_t code) {
    if (!takeFallback() && isShown()) {
        shown_.addCharacter(look(), code);
    }
}

void Filter::endLine() {
    fallbackLeft_ = 0;
    if (isShown()) {
        shown_.endLine(look());
    }
}

/// Whether the next character only stands for one that has been shown.
bool Filter::takeFallback() {
    const bool isFallback = fallbackLeft_ > 0;
    fallbackLeft_ -= isFallback ? 1 : 0;
    return isFallback;
}

Look Filter::look() const {
    Look look = scopes_.back().look;
    if (look.characters.font == CharacterFormat::unset) {
        look.characters.font = fonts_.defaultPlace();
    }
    if (change_.ofCharacters) {
        look.characters.color = change_.ofCharacters(look.characters.color);
        look.characters.background = change_.behindThem(look.characters.background);
    }
    return look;
}

// --- Control words --------------------------------------------------------------------------------------------------

void Filter::takeWord(WordMeaning meaning, const RichTextToken& token) {
    if (meaning.kind == WordKind::Character) {
        takeCharacter(static_cast<char32_t>(meaning.value));
        return;
    }
    fallbackLeft_ = 0;  // a line end or a look stands for no character
    switch (meaning.kind) {
        case WordKind::LineEnd:
        case WordKind::NestedRowEnd:
            endLine();
            break;
        case WordKind::CellEnd:
            shown_.endCell();
            break;
        case WordKind::UnicodeCharacter:
            takeUnicode(token.number.value_or(0));
            break;
        case WordKind::UnicodeFallback:
            scopes_.back().fallback = std::clamp(token.number.value_or(1), 0, longestFallback);
            break;
        case WordKind::FontTable:
        case WordKind::ColorTable:
        case WordKind::CharacterSet:
        case WordKind::CodePage:
        case WordKind::DefaultFont:
            takeOfHead(meaning.kind, token);
            break;
        default:
            takeFormat(meaning, token.number);
    }
}

void Filter::takeOfHead(WordKind kind, const RichTextToken& token) {
    const std::int32_t number = token.number.value_or(0);
    if (kind == WordKind::FontTable || kind == WordKind::ColorTable) {
        scopes_.back().part = kind == WordKind::FontTable ? Part::Fonts : Part::Colors;
    } else if (kind == WordKind::CharacterSet) {
        characterSet_ = token.text;
    } else if (kind == WordKind::DefaultFont) {
        fonts_.setDefault(number);
    } else if (number > 0 && number <= largestCodePage) {
        codePage_ = number;
    }
}

void Filter::takeUnicode(std::int32_t code) {
    constexpr std::int32_t units = 0x1'0000;
    constexpr std::int32_t characters = 0x11'0000;
    // Units from 8000 on are written as negative numbers.
    code += code < 0 && code >= -units / 2 ? units : 0;
    if (code > 0 && code < characters) {
        takeCharacter(static_cast<char32_t>(code));
    }
    fallbackLeft_ = scopes_.back().fallback;
}

void Filter::takeFormat(WordMeaning meaning, std::optional<std::int32_t> number) {
    Scope& scope = scopes_.back();
    CharacterFormat& now = scope.look.characters;
    const bool on = number != 0;
    switch (meaning.kind) {
        case WordKind::Font:
            now.font = fonts_.place(number.value_or(0));
            break;
        case WordKind::FontSize:
            now.size = number ? std::clamp(*number, smallestSize, largestSize) : CharacterFormat::unset;
            break;
        case WordKind::Color:
            now.color = colors_.color(number.value_or(0));
            break;
        case WordKind::Background:
            now.background = colors_.color(number.value_or(0));
            break;
        case WordKind::Bold:
            now.bold = on;
            break;
        case WordKind::Italic:
            now.italic = on;
            break;
        case WordKind::Underlined:
            now.underlined = on && meaning.value != 0;
            break;
        case WordKind::StruckOut:
            now.struckOut = on;
            break;
        case WordKind::ScriptPlace:
            now.script = on ? static_cast<Script>(meaning.value) : Script::Normal;
            break;
        case WordKind::Hidden:
            scope.hidden = on;
            break;
        case WordKind::Deleted:
            scope.deleted = on;
            break;
        case WordKind::PlainCharacters:
            now = {};
            scope.hidden = scope.deleted = false;
            break;
        default:
            takeParagraphFormat(meaning, number);
    }
}

void Filter::takeParagraphFormat(WordMeaning meaning, std::optional<std::int32_t> number) {
    ParagraphFormat& now = scopes_.back().look.paragraph;
    const std::int32_t indent = std::clamp(number.value_or(0), -widestIndent, widestIndent);
    switch (meaning.kind) {
        case WordKind::PlainParagraph:
            now = {};
            break;
        case WordKind::Alignment:
            now.alignment = static_cast<char>(meaning.value);
            break;
        case WordKind::LeftIndent:
            now.left = indent;
            break;
        case WordKind::RightIndent:
            now.right = indent;
            break;
        case WordKind::FirstLineIndent:
            now.firstLine = indent;
            break;
        default:
            break;
    }
}

/// Whether the text begins as rich text does, in whatever version.
bool isRichText(std::string_view bytes) {
    constexpr std::string_view signature = "{\\rtf";
    return bytes.starts_with(signature) && !isLetter(characterAt(bytes, signature.size()));
}

}  // namespace

std::string cleanRichText(std::string_view bytes, std::uint64_t mostCost, LastLineEnd lastLineEnd,
                          const ColorChange& colors, const UsualLook* usual) {
    if (!isRichText(bytes)) {
        fail(FileFailure::NotRichText);
    }
    return Filter(bytes, mostCost, colors).run(lastLineEnd, usual);
}

}  // namespace calquo
