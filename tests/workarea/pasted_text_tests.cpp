// Text from other programs, as the language reads it.
#include "workarea/pasted_text.h"

#include <gtest/gtest.h>

#include <chrono>

#include "workarea/utf8.h"

namespace calquo {
namespace {

std::string utf8(std::u16string_view units) {
    std::string bytes;
    while (!units.empty()) {
        const UtfCharacter first = firstUtf16Character(units);
        appendUtf8(bytes, first.code);
        units.remove_prefix(first.length);
    }
    return bytes;
}

struct PastedRow {
    std::u16string_view pasted, text;
};

const PastedRow pastedRows[] = {
    {u"", u""},
    {u"2+3 = 5", u"2+3 = 5"},
    // Lines, by whatever breaks them.
    {u"200\u2028-4*3\v(1+2)\u20295\f6\u00857\r\n8\n9\r\r\n", u"200\n-4*3\n(1+2)\n5\n6\n7\n8\n9\n\n"},
    {u"\u22122\n\u22123", u"-2\n-3"},
    // Operators.
    {u"x²\u22121 × 2", u"x^2-1 * 2"},
    {u"6 ÷ 2 \u2215 3 \u2044 4 \u2236 5", u"6 / 2 / 3 / 4 / 5"},
    {u"2 \u2217 3 \u2715 4 \u2795 5 \u2796 6 \u2797 7", u"2 * 3 * 4 + 5 - 6 / 7"},
    {u"2·3 ⋅ x", u"2*3 * x"},
    {u"• 2 • 3 ·", u"• 2 * 3 ·"},
    {u"5 km \u2192 mile \u2013> m", u"5 km -> mile -> m"},
    {u"5 – 3 — x \u2010(2) \u2011.5 \u2012π \u2015\u00A02", u"5 - 3 - x -(2) -.5 -pi - 2"},
    {u"rent – — (!)– = –", u"rent – - (!)– = –"},
    {u"\uFF08\uFF11\uFF0B\uFF12\uFF09\uFF0A\uFF13\uFF1D\uFF0C\uFF58", u"(1+2)*3=,x"},
    // Blanks, and what is not seen.
    {u"2\u00A0+\u20093\u3000\u2003*\u200B\u00AD\uFEFF\u200E 4\x01\x7F", u"2 + 3  * 4"},
    {u"1\u202F234\u202F567.5 + 1\u00A0000 + 12\u2009345\u00A0m", u"1234567.5 + 1000 + 12345 m"},
    {u"2\u00A0345m 1234\u00A0567 1\u00A023 2\u00A0pi 1 234 1\u00A02345", u"2 345m 1234 567 1 23 2 pi 1 234 1 2345"},
    // Exponents, and names that end with a digit.
    {u"5 m² + 2km³ + cm²/s²", u"5 m2 + 2km3 + cm2/s^2"},
    {u"10⁻³ m⁻¹ x³y² (1+2)¹⁰ 5!² M²3", u"10^-3 m^-1 x^3 y^2 (1+2)^10 5!^2 M2 3"},
    {u"² a ² +²", u"² a ² +²"},
    {u"log₂(8) x₀₁₂₃₄₅₆₇₈₉ x⁰¹²³⁴⁵⁶⁷⁸⁹ x⁺¹", u"log2(8) x0123456789 x^0123456789 x^+1"},
    // Names.
    {u"2π πr² π2 rπ √2+√(3)+∛8 x√π sin(π)", u"2pi pi r^2 pi 2 r pi sqrt 2+sqrt(3)+cbrt 8 x sqrt pi sin(pi)"},
    {u"100 °C → °F 37℃ sin 30° cos(45 °) ° 1′", u"100 C -> F 37C sin (30 deg) cos((45 deg)) deg 1′"},
    {u"𝑥² + 𝟐𝜋 + ℎ ∞", u"x^2 + 2pi + h inf"},
    {u"½ 2½ 2 ¼ x¾ 2.5⅓", u"(1/2) (2+1/2) (2+1/4) x(3/4) (2.5+1/3)"},
    {u"⅔x⅕x⅖x⅗x⅘x⅙x⅚x⅛x⅜x⅝x⅞", u"(2/3)x(1/5)x(2/5)x(3/5)x(4/5)x(1/6)x(5/6)x(1/8)x(3/8)x(5/8)x(7/8)"},
    {u"16’FF ‚16 255 2‛101 „a‘ “b”", u"16'FF '16 255 2'101 \"a' \"b\""},
    // What has no counterpart.
    {u"α ≤ ∑ 中 \U0001F600 \xD83D!", u"α ≤ ∑ 中 \U0001F600 \xFFFD!"},
    // Cells.
    {u"1\r\n2,000.5\r\n\u22123%\r\n", u"1\n2,000.5\n-3%\n"},
    {u"1\t2\t3\r\n4\t\t 6\t\r\n(5)\t1e3\t", u"1; 2; 3\n4; 6\n(5); 1e3"},
    {u"rent\t800\t900\n\t2+3\t= 5", u"rent\t800; 900\n\t2+3\t= 5"},
};

TEST(PastedText, IsInTheLanguagesCharacters) {
    for (const PastedRow& row : pastedRows) {
        EXPECT_EQ(utf8(pastedText(row.pasted)), utf8(row.text)) << utf8(row.pasted);
        EXPECT_EQ(utf8(pastedText(row.text)), utf8(row.text)) << "when it is pasted again";
    }
}

TEST(PastedText, TakesTimeInProportionToItsLength) {
    for (const std::u16string_view piece : {u"2½", u"1\u00A0234", u"x²", u"π", u"–", u" –", u"a°", u"1\t", u"\t", u"²",
                                            u"2·", u"·\u200B", u"5 °", u"²\u200B", u"\u2028"}) {
        std::u16string text;
        while (text.size() < 1'000'000) {
            text += piece;
        }
        const auto start = std::chrono::steady_clock::now();
        pastedText(text);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2)) << utf8(piece);
    }
}

}  // namespace
}  // namespace calquo
