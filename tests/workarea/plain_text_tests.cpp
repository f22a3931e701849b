// Plain text in files: which encoding bytes are taken for, and that the same bytes are written again.
#include "workarea/plain_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "support/repeated.h"
#include "workarea/file_fault.h"
#include "workarea/file_kind.h"
#include "workarea/text_cost.h"

namespace calquo {
namespace {

using namespace std::string_view_literals;
using enum TextEncoding;
using enum LineEnd;

TEST(FileKind, GoesByTheEndingOfTheName) {
    for (const wchar_t* name : {L".\\WorkArea.rtf", L"C:\\a b\\x.RTF", L"x.rTf", L".rtf"}) {
        EXPECT_EQ(fileKindOf(name), FileKind::RichText) << testing::PrintToString(std::wstring(name));
    }
    for (const wchar_t* name : {L"rtf", L"x.rtf.txt", L"x.rtf\\y", L"", L"x rtf", L"x.rt\u0166", L"x\x0Ertf"}) {
        EXPECT_EQ(fileKindOf(name), FileKind::PlainText) << testing::PrintToString(std::wstring(name));
    }
}

struct TextRow {
    std::string_view bytes;
    std::u16string_view characters;
    TextForm form;
};

const TextRow textRows[] = {
    {"", u"", {Utf8, CarriageReturnLineFeed}},
    {"a\r\nb\r\n", u"a\rb\r", {Utf8, CarriageReturnLineFeed}},
    {"a\nb\n\n", u"a\rb\r\r", {Utf8, LineFeed}},
    {"a\rb", u"a\rb", {Utf8, CarriageReturn}},
    {"\xC2\xB5 \xE2\x88\x9E \xF0\x9F\x98\x80", u"\u00B5 \u221E \U0001F600", {Utf8, CarriageReturnLineFeed}},
    {"\xF4\x8F\xBF\xBF\xED\x9F\xBF\xEE\x80\x80", u"\U0010FFFF\uD7FF\uE000", {Utf8, CarriageReturnLineFeed}},
    {"\xEF\xBB\xBF"
     "2\n",
     u"2\r",
     {Utf8WithMark, LineFeed}},
    {"\xEF\xBB\xBF\xEF\xBB\xBF", u"\uFEFF", {Utf8WithMark, CarriageReturnLineFeed}},
    {"\xEF\xBB\xBF\x80"sv, u"\u00EF\u00BB\u00BF\u20AC", {Windows1252, CarriageReturnLineFeed}},
    {"\xFF\xFE"
     "2\0\r\0\n\0\x1E\x22\x3D\xD8\x00\xDE"sv,
     u"2\r\u221E\U0001F600",
     {Utf16LittleEndian, CarriageReturnLineFeed}},
    {"\xFE\xFF\0002\0\n\xD8\x3D"sv, u"2\r\xD83D", {Utf16BigEndian, LineFeed}},
    // No UTF-8: a stray byte, a missing one, too long an encoding, half of a pair, too large a number.
    {"5 \x80", u"5 \u20AC", {Windows1252, CarriageReturnLineFeed}},
    {"\xE2\x88 \n", u"\u00E2\u02C6 \r", {Windows1252, LineFeed}},
    {"\xC1\xA1", u"\u00C1\u00A1", {Windows1252, CarriageReturnLineFeed}},
    {"\xE0\x81\xA1", u"\u00E0\u0081\u00A1", {Windows1252, CarriageReturnLineFeed}},
    {"\xED\xA0\xBD", u"\u00ED\u00A0\u00BD", {Windows1252, CarriageReturnLineFeed}},
    {"\xF4\x90\xA0\xA0", u"\u00F4\u0090\u00A0\u00A0", {Windows1252, CarriageReturnLineFeed}},
    {"\xF8\xA1\xA1\xA1\xA1", u"\u00F8\u00A1\u00A1\u00A1\u00A1", {Windows1252, CarriageReturnLineFeed}},
    {"\x81\x8D\x8F\x90\x9D\x9F\xA0",
     u"\u0081\u008D\u008F\u0090\u009D\u0178\u00A0",
     {Windows1252, CarriageReturnLineFeed}},
    // An odd number of bytes is no UTF-16.
    {"\xFF\xFE"
     "2",
     u"\u00FF\u00FE"
     u"2",
     {Windows1252, CarriageReturnLineFeed}},
};

TEST(PlainText, IsReadAndWrittenWithTheSameBytes) {
    for (const TextRow& row : textRows) {
        SCOPED_TRACE(testing::PrintToString(std::string(row.bytes)));
        const PlainText text = decodePlainText(row.bytes);
        EXPECT_EQ(text.characters, row.characters);
        EXPECT_EQ(text.form.encoding, row.form.encoding);
        EXPECT_EQ(text.form.lineEnd, row.form.lineEnd);
        EXPECT_EQ(encodePlainText(text.characters, text.form), row.bytes);
    }
}

TEST(PlainText, LineEndsThatDifferBecomeTheSystemsOwn) {
    const PlainText text = decodePlainText("a\nb\rc\r\nd\r\r\ne\n\r");
    EXPECT_EQ(text.characters, u"a\rb\rc\rd\r\re\r\r");
    EXPECT_EQ(encodePlainText(text.characters, text.form), "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\n");
    // As the control writes them.
    EXPECT_EQ(encodePlainText(u"a\r\nb\r\n", {Utf8, LineFeed}), "a\nb\n");
}

std::optional<FileFailure> failureToDecode(std::string_view bytes) {
    try {
        decodePlainText(bytes);
        return std::nullopt;
    } catch (const FileFault& fault) {
        return fault.failure;
    }
}

TEST(PlainText, WhatIsNoneOrTooMuchIsRefused) {
    EXPECT_EQ(failureToDecode("a\0b"sv), FileFailure::NotText);
    EXPECT_EQ(failureToDecode("\xFF\xFE\0\0"sv), FileFailure::NotText);
    EXPECT_EQ(failureToDecode("2\0+\0"sv), FileFailure::NotText);

    EXPECT_EQ(failureToDecode(repeated(TextCost::most - 1, "\n")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(TextCost::most, "\n")), FileFailure::TooMuchText);
    // A line counts the square of its rows of 64 characters.
    EXPECT_EQ(failureToDecode(repeated(40'000, "x")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(70'000, "x")), FileFailure::TooMuchText);
    EXPECT_EQ(failureToDecode(repeated(150, repeated(2'000, "x") + "\n")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(1'500, repeated(2'000, "x") + "\n")), FileFailure::TooMuchText);
}

TEST(PlainText, EveryTextIsReadAsItWasWritten) {
    // Characters in which encodings differ, and such as bytes of one encoding give in another.
    constexpr std::u16string_view samples =
        u"2\r\t\u00E2\u201A\u00AC\u00C3\u00A9\u00EF\u00BB\u00BF\u00FF\u00FE\uFEFF\uFFFE\u221E\u0100\u2028";
    constexpr TextEncoding encodings[] = {Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian, Windows1252};
    std::mt19937 random(20261);
    for (int count = 0; count < 20'000; ++count) {
        std::u16string text;
        for (std::size_t length = random() % 5; length > 0; --length) {
            text += samples[random() % samples.size()];
        }
        const TextForm form{encodings[random() % std::size(encodings)], static_cast<LineEnd>(random() % 3)};
        const std::string bytes = encodePlainText(text, form);
        ASSERT_EQ(decodePlainText(bytes).characters, text) << testing::PrintToString(bytes);
        // And any bytes are written as they were read.
        std::string any;
        for (std::size_t length = random() % 12; length > 0; --length) {
            any += static_cast<char>(1 + random() % 255);
        }
        if (any.find_first_of("\r\n") == std::string::npos && !failureToDecode(any)) {  // NUL characters of UTF-16
            const PlainText read = decodePlainText(any);
            ASSERT_EQ(encodePlainText(read.characters, read.form), any) << testing::PrintToString(any);
        }
    }
}

TEST(PlainText, ACharacterThatTheEncodingLacksChangesTheEncodingAlone) {
    EXPECT_EQ(encodePlainText(u"\u00B5\n", {Windows1252, LineFeed}), "\xB5\n");
    EXPECT_EQ(encodePlainText(u"\u00B5 \u221E\n", {Windows1252, LineFeed}), "\xC2\xB5 \xE2\x88\x9E\n");
    // Written as it was, this would be read as an acute e.
    EXPECT_EQ(encodePlainText(u"\u00C3\u00A9", {Windows1252, LineFeed}), "\xC3\x83\xC2\xA9");
    EXPECT_EQ(encodePlainText(u"\xD83D!", {Utf8, LineFeed}), "\xEF\xBF\xBD!");
}

}  // namespace
}  // namespace calquo
