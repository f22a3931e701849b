// The dialogs of the formats without their windows: controls, numbers as they are typed, and what applying does.
#include "format/attribute_controls.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

#include "values/errors.h"

namespace calquo {
namespace {

const Attribute& attributeIn(FormatKind kind, char letter) { return *attributeOf(kind, letter); }

/// A control as the person sees it: what it is, its label, and its range.
std::string shown(const Attribute& attribute) {
    constexpr const char* controls[] = {"field", "selector", "box"};
    std::string text = controls[static_cast<std::size_t>(attribute.control)];
    text += ' ' + std::string(attribute.label);
    std::erase(text, '&');
    if (attribute.control != AttributeControl::CheckBox) {
        text += ' ' + std::to_string(attribute.range.smallest) + '-' + std::to_string(attribute.range.largest);
    }
    return text;
}

TEST(AttributeControls, EachKindHasItsOwn) {
    const std::string groups = "field Number of digits in a group 2-8";
    const std::string fractional = "field Maximum fractional digits 0-15";
    const std::string denominator = "field Maximum denominator digits 1-15";
    const std::string significant = "field Maximum significant digits 1-64";
    const std::string limit = "field Fixed point exponent limit 2-15";
    const std::string method = "selector Truncation method 0-4";
    const std::string zeroOut = "box Zero-out insignificant values";
    const std::string zeros = "box Show trailing zeros";
    const std::string whole = "box Group digits in the whole part";
    const std::string fraction = "box Group digits in the fraction";
    const std::string exponent = "box Always show 'e'";
    const std::string mark = "box Always show the decimal mark";
    const std::string plus = "box Show + for positive values";
    const std::vector<std::vector<std::string>> expected = {
        {groups, significant, fractional, limit, zeroOut, zeros, whole, fraction, mark, plus},
        {groups, significant, zeroOut, zeros, fraction, exponent, mark, plus},
        {groups, fractional, zeroOut, zeros, whole, fraction, mark, plus},
        {groups, fractional, zeros, whole, fraction, mark, plus},
        {groups, method, whole, plus},
        {groups, denominator, fraction, plus},
        {groups, denominator, whole, fraction, plus},
    };
    for (std::size_t kind = 0; kind < expected.size(); ++kind) {
        std::vector<std::string> controls;
        for (const Attribute* const attribute : attributesOf(static_cast<FormatKind>(kind))) {
            controls.push_back(shown(*attribute));
        }
        EXPECT_EQ(controls, expected[kind]) << formatKinds[kind].title;
    }
}

TEST(AttributeControls, NoTwoOfAKindShareAKey) {
    for (std::size_t kind = 0; kind < formatKinds.size(); ++kind) {
        std::set<int> keys;
        for (const Attribute* const attribute : attributesOf(static_cast<FormatKind>(kind))) {
            const std::size_t mark = attribute->label.find('&');
            ASSERT_LT(mark + 1, attribute->label.size()) << attribute->label;
            const int key = std::tolower(static_cast<unsigned char>(attribute->label[mark + 1]));
            EXPECT_TRUE(std::isalpha(key)) << attribute->label;
            EXPECT_TRUE(keys.insert(key).second) << attribute->label << " of " << formatKinds[kind].title;
        }
    }
}

TEST(AttributeControls, TypedNumbersAreHeldAgainstTheirRange) {
    struct Row {
        FormatKind kind;
        char letter;
        const char* typed;
        int value;  // -1 for a fault
    };
    constexpr int fault = -1;
    const Row rows[] = {
        {FormatKind::Automatic, 'G', "2", 2},
        {FormatKind::Automatic, 'G', "8", 8},
        {FormatKind::Automatic, 'G', "1", fault},
        {FormatKind::Automatic, 'G', "9", fault},
        {FormatKind::Automatic, 'D', "0", 0},
        {FormatKind::Automatic, 'D', "16", fault},
        {FormatKind::Rational, 'D', "0", fault},
        {FormatKind::Fractional, 'D', "15", 15},
        {FormatKind::Automatic, 'S', "64", 64},
        {FormatKind::Scientific, 'S', "65", fault},
        {FormatKind::Automatic, 'S', "0", fault},
        {FormatKind::Automatic, 'X', "15", 15},
        {FormatKind::Automatic, 'X', "1", fault},
        {FormatKind::Automatic, 'S', " 007\t", 7},
        {FormatKind::Automatic, 'D', "", fault},
        {FormatKind::Automatic, 'D', "  ", fault},
        {FormatKind::Automatic, 'D', "-0", fault},
        {FormatKind::Automatic, 'D', "+3", fault},
        {FormatKind::Automatic, 'D', "3.0", fault},
        {FormatKind::Automatic, 'D', "3 4", fault},
        {FormatKind::Automatic, 'D', "0x3", fault},
        {FormatKind::Automatic, 'D', "three", fault},
        {FormatKind::Automatic, 'D', "4294967299", fault},  // 3 more than 2^32
        {FormatKind::Automatic, 'D', "99999999999999999999999999", fault},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.letter << " \"" << row.typed << '"');
        const TypedNumber read = readNumber(attributeIn(row.kind, row.letter), row.typed);
        EXPECT_EQ(read.value ? static_cast<int>(*read.value) : fault, row.value);
        EXPECT_EQ(read.fault.empty(), row.value != fault);
    }
}

TEST(AttributeControls, FaultsNameTheAttributeAndTheRange) {
    EXPECT_EQ(readNumber(attributeIn(FormatKind::Fractional, 'D'), "16").fault,
              "Maximum denominator digits: please enter a whole number from 1 to 15.");
    const Attribute& significant = attributeIn(FormatKind::Scientific, 'S');
    EXPECT_EQ(readNumber(significant, "x").fault,
              "Maximum significant digits: please enter a whole number from 1 to 64.");
    EXPECT_EQ(widthFault(significant, 32), "Maximum significant digits: a format cannot keep more than 31.");
    EXPECT_EQ(widthFault(significant, 31), "");
}

/// Changes one attribute, named by its letter, and applies.
NumericFormat changed(NumericFormat word, char letter, std::uint32_t value) {
    WorkingValues values(word);
    values.set(attributeIn(static_cast<FormatKind>(getField(word, field::kind)), letter), value);
    values.applyTo(word);
    return word;
}

TEST(WorkingValues, AppliedUnchangedLeaveEveryWordAsItIs) {
    for (const NumericFormat word : defaultFormats) {
        NumericFormat applied = word;
        WorkingValues(word).applyTo(applied);
        EXPECT_EQ(applied, word);
    }
    // Bits that no control of the kind shows.
    for (const NumericFormat word : {0x4418600Cu, 0x449B3E7Fu, 0x6318407Bu, 0x137A7E20u}) {
        NumericFormat applied = word;
        WorkingValues(word).applyTo(applied);
        EXPECT_EQ(applied, word) << std::hex << word;
    }
}

TEST(WorkingValues, ChangeTheBitsOfTheirAttributeOnly) {
    struct Row {
        NumericFormat word;
        char letter;
        std::uint32_t value;
        NumericFormat expected;
    };
    const Row rows[] = {
        {0x032A1044, 'G', 8, 0x082A1044},  {0x032A1044, 'S', 31, 0x032FD044}, {0x032A1044, 'D', 15, 0x037A1044},
        {0x032A1044, 'X', 15, 0x032A1E44}, {0x032A1044, 'I', 0, 0x032A1004},  {0x032A1044, 'Z', 1, 0x032A1054},
        {0x032A1044, 'W', 0, 0x032A1040},  {0x032A1044, 'F', 1, 0x032A104C},  {0x032A1044, '.', 1, 0x032A1046},
        {0x032A1044, '+', 1, 0x032A1045},  {0x13222040, 'E', 1, 0x13222044},  {0x33122034, 'Z', 0, 0x33122024},
        {0x4418200C, 'T', 4, 0x4498200C},  {0x449B200C, 'T', 0, 0x441B200C},  {0x53180000, 'D', 1, 0x53080000},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(changed(row.word, row.letter, row.value), row.expected) << std::hex << row.word << row.letter;
    }
}

TEST(WorkingValues, ApplyingStopsAtWhatDoesNotFit) {
    WorkingValues values(defaultFormats[0]);
    for (const auto& [letter, value] :
         {std::pair<char, std::uint32_t>{'G', 5}, {'D', 7}, {'S', 32}, {'X', 15}, {'+', 1}}) {
        values.set(attributeIn(FormatKind::Automatic, letter), value);
    }
    NumericFormat word = defaultFormats[0];
    try {
        values.applyTo(word);
        FAIL() << "32 significant digits do not fit into 5 bits";
    } catch (const Except& error) {
        EXPECT_EQ(error.code, ErrorCode::InternalFault);
    }
    EXPECT_EQ(word, 0x053A1044u);  // group size and digits
}

}  // namespace
}  // namespace calquo
