// The dialogs of the formats without their windows: the controls, typed numbers, and what applying them does.
#include "dialogs/attribute_controls.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "engine/characters.h"

namespace calquo {
namespace {

TEST(AttributeControls, EachKindHasItsOwnWithKeysOfTheirOwn) {
    // Letters of attributes, in the order in which the dialog shows them.
    constexpr std::string_view expected[] = {"GSDXIZWF.+", "GSIZFE.+", "GDIZWF.+", "GDZWF.+", "GTW+", "GDF+", "GDWF+"};
    for (std::size_t kind = 0; kind < formatKinds.size(); ++kind) {
        std::string letters;
        std::set<char> keys;
        for (const Attribute* const attribute : attributesOf(static_cast<FormatKind>(kind))) {
            letters += attribute->letter;
            const char key = lowerCase(characterAt(attribute->label, attribute->label.find('&') + 1));
            EXPECT_TRUE(key >= 'a' && key <= 'z' && keys.insert(key).second) << attribute->label;
        }
        EXPECT_EQ(letters, expected[kind]) << formatKinds[kind].title;
    }
}

TEST(AttributeControls, TypedNumbersAreHeldAgainstTheirRange) {
    struct Row {
        FormatKind kind;
        char letter;
        const char* typed;
        int value;  // -1 for a fault
    };
    using enum FormatKind;
    const Row rows[] = {
        {Automatic, 'G', "2", 2},      {Automatic, 'G', "8", 8},           {Automatic, 'G', "1", -1},
        {Automatic, 'G', "9", -1},     {Automatic, 'D', "0", 0},           {Automatic, 'D', "16", -1},
        {Rational, 'D', "0", -1},      {Fractional, 'D', "15", 15},        {Automatic, 'S', "64", 64},
        {Scientific, 'S', "65", -1},   {Automatic, 'S', "0", -1},          {Automatic, 'X', "15", 15},
        {Automatic, 'X', "1", -1},     {Automatic, 'S', " 007\t", 7},      {Automatic, 'D', "", -1},
        {Automatic, 'D', "  ", -1},    {Automatic, 'D', "-0", -1},         {Automatic, 'D', "+3", -1},
        {Automatic, 'D', "3.0", -1},   {Automatic, 'D', "3 4", -1},        {Automatic, 'D', "0x3", -1},
        {Automatic, 'D', "three", -1}, {Automatic, 'D', "4294967299", -1},  // 3 more than 2^32
    };
    for (const Row& row : rows) {
        const TypedNumber read = readNumber(*attributeOf(row.kind, row.letter), row.typed);
        EXPECT_EQ(read.value ? static_cast<int>(*read.value) : -1, row.value) << row.letter << " " << row.typed;
        EXPECT_EQ(read.fault.empty(), read.value.has_value()) << row.letter << " " << row.typed;
    }
}

TEST(WorkingValues, AppliedUnchangedLeaveBitsThatNoControlOfTheKindShows) {
    for (const NumericFormat word : {0x4418600Cu, 0x449B3E7Fu, 0x6318407Bu, 0x137A7E20u}) {
        NumericFormat applied = word;
        WorkingValues(word).applyTo(applied);
        EXPECT_EQ(applied, word) << std::hex << word;
    }
}

}  // namespace
}  // namespace calquo
