// The checker: a recursive-descent parser of rich text, and the table of the control words that it allows.
#include "rich_text_checker.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>

#include "engine/characters.h"
#include "target.h"

namespace calquo {
namespace {

constexpr std::string_view hexadecimalDigits = "0123456789abcdef";

/// A word of the text, and the numbers that it may have; the same numbers twice where it must have none.
struct WordRow {
    std::string_view word;
    std::int32_t least = 0;
    std::int32_t most = 0;
    bool needsNumber = false;
};
constexpr WordRow wordRows[] = {
    {"par"},
    {"tab"},
    {"pard"},
    {"qr"},
    {"qc"},
    {"qj"},
    {"super"},
    {"sub"},
    {"nosupersub"},
    {"b"},
    {"i"},
    {"ul"},
    {"strike"},
    {"fs", 2, 400, true},
    {"f", 1, 256, true},
    {"cf", 0, 256, true},
    {"highlight", 0, 256, true},
    {"u", -32'768, 32'767, true},
    {"li", -20'000, 20'000, true},
    {"ri", -20'000, 20'000, true},
    {"fi", -20'000, 20'000, true},
};

class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::u16string document() {
        expect("{\\rtf1\\");
        const std::string_view set = letters();
        require(set == "ansi" || set == "mac" || set == "pc" || set == "pca", "an unknown character set");
        if (takes("\\ansicpg")) {
            numberWithin(1, 65'535);
        }
        fonts();
        colors();
        expect("\n");
        items(0);
        expect("}");
        require(rest_.empty(), "something follows the last brace");
        require(!first_, "half of a surrogate pair at the end");
        return shown_;
    }

private:
    bool takes(std::string_view wanted) {
        const bool isThere = rest_.starts_with(wanted);
        rest_.remove_prefix(isThere ? wanted.size() : 0);
        return isThere;
    }
    void expect(std::string_view wanted) {
        if (!takes(wanted)) {
            reportFault("not \"" + std::string(wanted) + "\" but: " + std::string(rest_.substr(0, 60)));
        }
    }
    std::string_view letters() {
        const auto end = std::ranges::find_if_not(rest_, [](char one) { return one >= 'a' && one <= 'z'; });
        const std::string_view word = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
        require(!word.empty() && word.size() <= 32, "a control word without letters, or with too many");
        rest_.remove_prefix(word.size());
        return word;
    }
    std::optional<std::int32_t> number() {
        std::int32_t value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (error == std::errc::invalid_argument) {
            return std::nullopt;
        }
        require(error == std::errc{}, "a number that is too large");
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return value;
    }
    std::int32_t numberWithin(std::int32_t least, std::int32_t most) {
        const auto value = number();
        require(value && *value >= least && *value <= most, "a missing number, or one that is out of its range");
        return *value;
    }

    void fonts() {
        if (!takes("{\\fonttbl")) {
            return;
        }
        while (takes("{\\f")) {
            require(fonts_.insert(numberWithin(1, 256)).second, "two fonts of a number");
            expect("\\f");
            letters();
            if (takes("\\fcharset")) {
                numberWithin(0, 255);
            }
            if (takes("\\cpg")) {
                numberWithin(0, 65'535);
            }
            expect(" ");
            isName_ = true;
            while (!takes(";}")) {
                character();
            }
            isName_ = false;
        }
        expect("}");
    }
    void colors() {
        if (!takes("{\\colortbl;")) {
            return;
        }
        while (takes("\\red")) {
            numberWithin(0, 255);
            expect("\\green");
            numberWithin(0, 255);
            expect("\\blue");
            numberWithin(0, 255);
            expect(";");
            ++colors_;
        }
        expect("}");
    }

    void items(int depth) {
        while (!rest_.empty() && rest_.front() != '}') {
            if (takes("{")) {
                require(depth == 0, "a group in a group");
                items(depth + 1);
                expect("}");
            } else if (!takes("\n")) {
                character();
            }
        }
    }
    /// One character of the text or the name of a font, or a word.
    void character() {
        require(!rest_.empty() && rest_.front() >= ' ' && rest_.front() <= '~', "a byte that is no printable ASCII");
        if (!takes("\\")) {
            require(rest_.front() != '{' && rest_.front() != '}', "a brace out of place");
            show(static_cast<char16_t>(takeOne()));
        } else if (takes("'")) {
            const std::size_t high = hexadecimalDigits.find(takeOne());
            const std::size_t low = hexadecimalDigits.find(takeOne());
            require(high != std::string_view::npos && low != std::string_view::npos, "a byte without its digits");
            show(static_cast<char16_t>(high << 4 | low));
        } else if (takes("\\") || takes("{") || takes("}")) {
            show(static_cast<char16_t>(*(rest_.data() - 1)));
        } else {
            word();
        }
    }
    char takeOne() {
        require(!rest_.empty(), "the end is missing");
        const char one = rest_.front();
        rest_.remove_prefix(1);
        return one;
    }
    void word() {
        const std::string_view name = letters();
        const auto* const row = std::ranges::find(wordRows, name, &WordRow::word);
        if (row == std::end(wordRows)) {
            reportFault("an unknown word: " + std::string(name));
        }
        const auto value = number();
        require(value ? *value >= row->least && *value <= row->most : !row->needsNumber, "a word with a wrong number");
        if (name == "u") {
            expect("?");
            show(static_cast<char16_t>(*value));
            return;
        }
        takes(" ");
        require(name != "f" || fonts_.contains(*value), "a font that is not in the table");
        require((name != "cf" && name != "highlight") || *value <= colors_, "a color that is not in the table");
        if (name == "par" || name == "tab") {
            show(name == "par" ? u'\n' : u'\t');
        }
    }
    void show(char16_t unit) {
        if (isName_) {
            return;
        }
        const bool isSecond = (unit & 0xFC00) == 0xDC00;
        require(first_ == isSecond, "half of a surrogate pair");
        first_ = (unit & 0xFC00) == 0xD800;
        shown_ += unit;
    }

    std::string_view rest_;
    std::u16string shown_;
    bool isName_ = false;  ///< Of a font, whose characters are not shown.
    bool first_ = false;   ///< The first half of a pair stands last.
    std::set<std::int32_t> fonts_;
    std::int32_t colors_ = 0;
};

}  // namespace

std::u16string shownByStrictReader(std::string_view richText) { return Reader(richText).document(); }

}  // namespace calquo
