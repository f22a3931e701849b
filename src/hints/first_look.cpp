// The tables of the first look, made from the rules when they are first needed.
#include "hints/first_look.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "engine/characters.h"
#include "engine/keywords.h"
#include "hints/rules.h"

namespace calquo {
namespace {

/// A set of characters of ASCII. Any other character counts as one of them, so that a set may hold too much.
class Characters {
public:
    explicit Characters(std::string_view text) {
        for (const char character : text) {
            const auto code = static_cast<unsigned char>(character);
            bits_[code / 64 % 2] |= std::uint64_t{1} << (code % 64);
        }
    }
    bool holds(const Characters& other) const {
        return (other.bits_[0] & ~bits_[0]) == 0 && (other.bits_[1] & ~bits_[1]) == 0;
    }
    bool holdsLetter() const {
        constexpr std::uint64_t letters = 0x07FFFFFE07FFFFFE;
        return (bits_[1] & letters) != 0;
    }

private:
    std::array<std::uint64_t, 2> bits_{};
};

/// What the rules need of a line.
class Needs {
public:
    Needs() : ofName_(keywordCount() + 1, 0) {
        for (const Rule& rule : hintRules()) {
            const RuleSet bit = RuleSet{1} << marks_.size();
            marks_.emplace_back(rule.marks);
            withMarks_ |= rule.marks.empty() ? 0 : bit;
            addNames(rule, bit);
        }
    }

    RuleSet metBy(const Situation& situation) const {
        const Characters present(situation.line);
        RuleSet met = withoutName_;
        if (present.holdsLetter()) {
            for (const Word& word : situation.words()) {
                met |= ofName_[word.keyword];
            }
        }
        for (RuleSet left = met & withMarks_; left != 0; left &= left - 1) {
            met &=
                present.holds(marks_[static_cast<std::size_t>(std::countr_zero(left))]) ? ~RuleSet{} : ~(left & -left);
        }
        return met;
    }

private:
    void addNames(const Rule& rule, RuleSet bit) {
        if (rule.names.empty() && rule.concerns == nullptr) {
            withoutName_ |= bit;
        }
        for (std::string_view names = rule.names; !names.empty();) {
            const std::string_view name = names.substr(0, names.find(' '));
            ofName_[lookup(name)] |= bit;
            names.remove_prefix(std::min(name.size() + 1, names.size()));
        }
        for (std::size_t index = 1; rule.concerns != nullptr && index < ofName_.size(); ++index) {
            ofName_[index] |= rule.concerns(index) ? bit : 0;
        }
    }

    std::vector<Characters> marks_;
    std::vector<RuleSet> ofName_;  ///< By the names' numbers; 0 is that of unknown ones.
    RuleSet withoutName_ = 0;
    RuleSet withMarks_ = 0;
};

}  // namespace

RuleSet rulesToAsk(const Situation& situation) {
    static const Needs needs;
    return needs.metBy(situation);
}

}  // namespace calquo
