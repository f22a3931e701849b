// Plain text in files: which encoding bytes are taken for, and that the same bytes are written again.
#include "workarea/plain_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "support/repeated.h"
#include "workarea/file_fault.h"
#include "workarea/file_kind.h"

namespace calquo {
namespace {

using namespace std::string_view_literals;
using enum TextEncoding;
using enum LineEnd;

constexpr std::uint64_t mostCost = 1'000'000;

PlainText decode(std::string_view bytes) { return decodePlainText(bytes, {windows1252(), mostCost}); }
std::string encode(std::u16string_view characters, TextForm form) {
    return encodePlainText(characters, form, windows1252());
}

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
    {"\xEF\xBB\xBF\x80"sv, u"\u00EF\u00BB\u00BF\u20AC", {SystemCodePage, CarriageReturnLineFeed}},
    {"\xFF\xFE"
     "2\0\r\0\n\0\x1E\x22\x3D\xD8\x00\xDE"sv,
     u"2\r\u221E\U0001F600",
     {Utf16LittleEndian, CarriageReturnLineFeed}},
    {"\xFE\xFF\0002\0\n\xD8\x3D"sv, u"2\r\xD83D", {Utf16BigEndian, LineFeed}},
    // No UTF-8: a stray byte, a missing one, too long an encoding, half of a pair, too large a number.
    {"5 \x80", u"5 \u20AC", {SystemCodePage, CarriageReturnLineFeed}},
    {"\xE2\x88 \n", u"\u00E2\u02C6 \r", {SystemCodePage, LineFeed}},
    {"\xC1\xA1", u"\u00C1\u00A1", {SystemCodePage, CarriageReturnLineFeed}},
    {"\xE0\x81\xA1", u"\u00E0\u0081\u00A1", {SystemCodePage, CarriageReturnLineFeed}},
    {"\xED\xA0\xBD", u"\u00ED\u00A0\u00BD", {SystemCodePage, CarriageReturnLineFeed}},
    {"\xF4\x90\xA0\xA0", u"\u00F4\u0090\u00A0\u00A0", {SystemCodePage, CarriageReturnLineFeed}},
    {"\xF8\xA1\xA1\xA1\xA1", u"\u00F8\u00A1\u00A1\u00A1\u00A1", {SystemCodePage, CarriageReturnLineFeed}},
    {"\x81\x8D\x8F\x90\x9D\x9F\xA0",
     u"\u0081\u008D\u008F\u0090\u009D\u0178\u00A0",
     {SystemCodePage, CarriageReturnLineFeed}},
    // An odd number of bytes is no UTF-16.
    {"\xFF\xFE"
     "2",
     u"\u00FF\u00FE"
     u"2",
     {SystemCodePage, CarriageReturnLineFeed}},
};

TEST(PlainText, IsReadAndWrittenWithTheSameBytes) {
    for (const TextRow& row : textRows) {
        SCOPED_TRACE(testing::PrintToString(std::string(row.bytes)));
        const PlainText text = decode(row.bytes);
        EXPECT_EQ(text.characters, row.characters);
        EXPECT_EQ(text.form.encoding, row.form.encoding);
        EXPECT_EQ(text.form.lineEnd, row.form.lineEnd);
        EXPECT_EQ(encode(text.characters, text.form), row.bytes);
    }
}

TEST(PlainText, LineEndsThatDifferBecomeTheSystemsOwn) {
    const PlainText text = decode("a\nb\rc\r\nd\r\r\ne\n\r");
    EXPECT_EQ(text.characters, u"a\rb\rc\rd\r\re\r\r");
    EXPECT_EQ(encode(text.characters, text.form), "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\n");
    // What breaks a line is an end of it, and says nothing of the others.
    const PlainText soft = decode(
        "a\vb\fc\xC2\x85"
        "d\xE2\x80\xA8"
        "e\xE2\x80\xA9"
        "f\n");
    EXPECT_EQ(soft.characters, u"a\rb\rc\rd\re\rf\r");
    EXPECT_EQ(soft.form.lineEnd, LineFeed);
    // As the control writes them.
    EXPECT_EQ(encode(u"a\r\nb\r\n", {Utf8, LineFeed}), "a\nb\n");
}

std::optional<FileFailure> failureToDecode(std::string_view bytes) {
    try {
        decode(bytes);
        return std::nullopt;
    } catch (const FileFault& fault) {
        return fault.failure;
    }
}

TEST(PlainText, WhatIsNoneOrTooMuchIsRefused) {
    EXPECT_EQ(failureToDecode("a\0b"sv), FileFailure::NotText);
    EXPECT_EQ(failureToDecode("\xFF\xFE\0\0"sv), FileFailure::NotText);
    EXPECT_EQ(failureToDecode("2\0+\0"sv), FileFailure::NotText);

    EXPECT_EQ(failureToDecode(repeated(mostCost - 1, "\n")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(mostCost, "\n")), FileFailure::TooMuchText);
    // A line counts the square of its rows of 64 characters.
    EXPECT_EQ(failureToDecode(repeated(150'000, "x")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(200'000, "x")), FileFailure::TooMuchText);
    EXPECT_EQ(failureToDecode(repeated(5'000, repeated(2'000, "x") + "\n")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(10'000, repeated(2'000, "x") + "\n")), FileFailure::TooMuchText);
    // So do changes between letters, digits and marks.
    EXPECT_EQ(failureToDecode(repeated(100'000, repeated(20, "a b") + "\n")), std::nullopt);
    EXPECT_EQ(failureToDecode(repeated(100'000, repeated(20, "a1,") + "\n")), FileFailure::TooMuchText);
}

TEST(PlainText, EveryTextIsReadAsItWasWritten) {
    // Characters in which encodings differ, and such as bytes of one encoding give in another.
    constexpr std::u16string_view samples =
        u"2\r\t\u00E2\u201A\u00AC\u00C3\u00A9\u00EF\u00BB\u00BF\u00FF\u00FE\uFEFF\uFFFE\u221E\u0100";
    constexpr TextEncoding encodings[] = {Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian, SystemCodePage};
    std::mt19937 random(20261);
    for (int count = 0; count < 20'000; ++count) {
        std::u16string text;
        for (std::size_t length = random() % 5; length > 0; --length) {
            text += samples[random() % samples.size()];
        }
        const TextForm form{encodings[random() % std::size(encodings)], static_cast<LineEnd>(random() % 3)};
        const std::string bytes = encode(text, form);
        ASSERT_EQ(decode(bytes).characters, text) << testing::PrintToString(bytes);
        // And any bytes are written as they were read.
        std::string any;
        for (std::size_t length = random() % 12; length > 0; --length) {
            any += static_cast<char>(1 + random() % 255);
        }
        if (any.find_first_of("\n\v\f\r\x85") == std::string::npos &&
            !failureToDecode(any)) {  // NUL characters of UTF-16
            const PlainText read = decode(any);
            ASSERT_EQ(encode(read.characters, read.form), any) << testing::PrintToString(any);
        }
    }
}

/// A code page of two letters, alpha and beta at 80 and 81.
const CodePage greek{[](std::string_view bytes) -> std::optional<std::u16string> {
                         std::u16string units;
                         for (const char byte : bytes) {
                             const auto code = static_cast<unsigned char>(byte);
                             if (code > 0x81) {
                                 return std::nullopt;
                             }
                             units += static_cast<char16_t>(code < 0x80 ? code : 0x3B1 + code - 0x80);
                         }
                         return units;
                     },
                     [](std::u16string_view units) {
                         std::string bytes;
                         for (const char16_t unit : units) {
                             bytes += static_cast<char>(unit < 0x80 ? unit : unit - 0x3B1 + 0x80);
                         }
                         return bytes;
                     }};

TEST(PlainText, ThatIsNoUnicodeIsInTheSystemsCodePage) {
    struct Row {
        std::string_view bytes;
        std::u16string_view characters;
        TextEncoding encoding;
    };
    for (const Row& row : {Row{"a \x80\x81", u"a \u03B1\u03B2", SystemCodePage}, Row{"\xCE\xB1", u"\u03B1", Utf8},
                           // No text there either.
                           Row{"\x80\x82", u"\u20AC\u201A", Windows1252}}) {
        const PlainText text = decodePlainText(row.bytes, {greek, mostCost});
        EXPECT_EQ(text.characters, row.characters);
        EXPECT_EQ(text.form.encoding, row.encoding);
        EXPECT_EQ(encodePlainText(text.characters, text.form, greek), row.bytes);
    }
    // What it lacks changes the encoding.
    EXPECT_EQ(encodePlainText(u"\u03B1\u221E", {SystemCodePage, LineFeed}, greek), "\xCE\xB1\xE2\x88\x9E");
}

TEST(PlainText, ACharacterThatTheEncodingLacksChangesTheEncodingAlone) {
    EXPECT_EQ(encode(u"\u00B5\n", {SystemCodePage, LineFeed}), "\xB5\n");
    EXPECT_EQ(encode(u"\u00B5 \u221E\n", {SystemCodePage, LineFeed}), "\xC2\xB5 \xE2\x88\x9E\n");
    // Written as it was, this would be read as an acute e.
    EXPECT_EQ(encode(u"\u00C3\u00A9", {SystemCodePage, LineFeed}), "\xC3\x83\xC2\xA9");
    EXPECT_EQ(encode(u"\xD83D!", {Utf8, LineFeed}), "\xEF\xBF\xBD!");
}

}  // namespace
}  // namespace calquo
