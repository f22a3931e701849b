// The working values of a format's dialog, and its words for faults.
#include "dialogs/attribute_controls.h"

#include <algorithm>
#include <charconv>

#include "widgets/widget_text.h"

namespace calquo {
namespace {

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

}  // namespace

std::vector<const Attribute*> attributesOf(FormatKind kind) {
    std::vector<const Attribute*> ordered;
    for (const char letter : formatKinds[static_cast<std::size_t>(kind)].letters) {
        ordered.push_back(attributeOf(kind, letter));
    }
    return ordered;
}

std::string rangeInWords(const Attribute& attribute) {
    // What the field cannot keep is refused later, so it is not offered.
    const std::uint32_t largest = std::min(attribute.range.largest, largestIn(attribute.field));
    return "a whole number from " + std::to_string(attribute.range.smallest) + " to " + std::to_string(largest);
}

TypedNumber readNumber(const Attribute& attribute, std::string_view typed) {
    const std::string_view text = withoutBlanks(typed);
    const char* const end = text.data() + text.size();
    std::uint32_t value = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    const bool isInRange =
        error == std::errc{} && stop == end && value >= attribute.range.smallest && value <= attribute.range.largest;
    if (!isInRange) {
        return {std::nullopt, withoutMnemonic(attribute.label) + ": please enter " + rangeInWords(attribute) + "."};
    }
    return {value, {}};
}

std::string widthFault(const Attribute& attribute, std::uint32_t value) {
    const std::uint32_t most = largestIn(attribute.field);
    return value <= most
               ? std::string()
               : withoutMnemonic(attribute.label) + ": a format cannot keep more than " + std::to_string(most) + ".";
}

WorkingValues::WorkingValues(NumericFormat word)
    : groupSize_(getField(word, field::groupSize)),
      digits_(getField(word, field::digits)),
      truncation_(getField(word, field::truncation)),
      significantDigits_(getField(word, field::significantDigits)),
      exponentLimit_(getField(word, field::exponentLimit)),
      flags_(getField(word, field::flags)) {}

std::uint32_t WorkingValues::*WorkingValues::numberIn(NumericFormat field) {
    switch (field) {
        case field::groupSize:
            return &WorkingValues::groupSize_;
        case field::digits:
            return &WorkingValues::digits_;
        case field::truncation:
            return &WorkingValues::truncation_;
        case field::significantDigits:
            return &WorkingValues::significantDigits_;
        case field::exponentLimit:
            return &WorkingValues::exponentLimit_;
        default:
            return nullptr;
    }
}

std::uint32_t WorkingValues::get(const Attribute& attribute) const {
    std::uint32_t WorkingValues::*const number = numberIn(attribute.field);
    return number != nullptr ? this->*number : getField(flags_, attribute.field);
}

void WorkingValues::set(const Attribute& attribute, std::uint32_t value) {
    if (std::uint32_t WorkingValues::*const number = numberIn(attribute.field)) {
        this->*number = value;
    } else {
        setField(flags_, attribute.field, value);
    }
}

void WorkingValues::applyTo(NumericFormat& word) const {
    const bool isInteger = getField(word, field::kind) == static_cast<std::uint32_t>(FormatKind::Integer);
    setField(word, field::groupSize, groupSize_);
    if (isInteger) {
        setField(word, field::truncation, truncation_);
    } else {
        setField(word, field::digits, digits_);
    }
    setField(word, field::significantDigits, significantDigits_);
    setField(word, field::exponentLimit, exponentLimit_);
    setField(word, field::flags, flags_);
}

}  // namespace calquo
