// Rich text from and for files: what is refused before anything is replaced, and what is taken off and put in.
#include "workarea/rich_text.h"

#include <gtest/gtest.h>

#include <optional>

#include "support/repeated.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t mostCost = 1'000'000;

TEST(RichText, EndsInFrontOfItsLastParagraphsEnd) {
    struct Row {
        std::string_view bytes;
        std::string_view text;
    };
    const Row rows[] = {
        {"{\\rtf1 2+3}", "{\\rtf1 2+3}"},
        {"{\\rtf}", "{\\rtf}"},
        {"{\\rtf1 2\\par\r\n}\r\n\0"sv, "{\\rtf1 2\r\n}"},
        {"{\\rtf1 2\\par }trailing {", "{\\rtf1 2}"},
        {"{\\rtf1 2\\par\\par}", "{\\rtf1 2\\par}"},
        {"{\\rtf1 2\\\r\n}", "{\\rtf1 2\n}"},
        {"{\\rtf1 {\\b 2\\par}}", "{\\rtf1 {\\b 2}}"},
        {"{\\rtf1 2\\par{\\*\\themedata 1f\\par}}", "{\\rtf1 2{\\*\\themedata 1f\\par}}"},
        {"{\\rtf1 2\\par{\\pict ffff}}", "{\\rtf1 2{\\pict ffff}}"},
        // Something follows the last end of a paragraph.
        {"{\\rtf1 2\\par 3}", "{\\rtf1 2\\par 3}"},
        {"{\\rtf1 2\\par  }", "{\\rtf1 2\\par  }"},
        {"{\\rtf1 2\\par\\'41}", "{\\rtf1 2\\par\\'41}"},
        {"{\\rtf1 2\\par\\tab}", "{\\rtf1 2\\par\\tab}"},
        {"{\\rtf1 2\\pard}", "{\\rtf1 2\\pard}"},
        // Braces that open or close nothing.
        {"{\\rtf1 \\{ \\} \\\\}", "{\\rtf1 \\{ \\} \\\\}"},
        {"{\\rtf1{\\pict\\bin3 }}\\}}", "{\\rtf1{\\pict\\bin3 }}\\}}"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.bytes);
        EXPECT_EQ(richTextToRead(row.bytes, mostCost), row.text);
    }
}

std::optional<FileFailure> failureToRead(std::string_view bytes) {
    try {
        richTextToRead(bytes, mostCost);
        return std::nullopt;
    } catch (const FileFault& fault) {
        return fault.failure;
    }
}

TEST(RichText, WhatTheControlCouldNotTakeIsRefused) {
    struct Row {
        std::string_view bytes;
        FileFailure failure;
    };
    const Row rows[] = {
        {"2+3", FileFailure::NotRichText},
        {" {\\rtf1 2}", FileFailure::NotRichText},
        {"{\\RTF1 2}", FileFailure::NotRichText},
        {"{\\rt", FileFailure::NotRichText},
        {"{\\rtfx 2}", FileFailure::NotRichText},
        {"\xEF\xBB\xBF{\\rtf1 2}", FileFailure::NotRichText},
        {"{\\rtf", FileFailure::CutOff},
        {"{\\rtf1 2+3", FileFailure::CutOff},
        {"{\\rtf1 {\\b 2}", FileFailure::CutOff},
        {"{\\rtf1 2\\", FileFailure::CutOff},
        {"{\\rtf1 2\\}", FileFailure::CutOff},
        {"{\\rtf1{\\pict\\bin9 }}", FileFailure::CutOff},
        {"{\\rtf1{\\pict\\bin99999999999999999999 }}", FileFailure::CutOff},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(failureToRead(row.bytes), row.failure) << row.bytes;
    }
    EXPECT_EQ(failureToRead("{\\rtf1" + repeated(31, "{") + repeated(32, "}")), std::nullopt);
    EXPECT_EQ(failureToRead("{\\rtf1" + repeated(32, "{") + repeated(33, "}")), FileFailure::NestedTooDeeply);

    EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(mostCost - 1, "\\par\n") + "}"), std::nullopt);
    EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(mostCost, "\\par\n") + "}"), FileFailure::TooMuchText);
    EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(200'000, "x") + "}"), FileFailure::TooMuchText);
    // A picture's digits are no text.
    EXPECT_EQ(failureToRead("{\\rtf1{\\pict " + repeated(200'000, "f") + "}}"), std::nullopt);
}

TEST(RichText, IsWrittenInAsciiForAllReaders) {
    struct Row {
        std::string_view control;
        std::string_view text;
    };
    const Row rows[] = {
        {"{\\urtf\\deff0 2\\par\r\n}\0"sv, "{\\rtf1\\ansi\\deff0 2\\par\r\n}"},
        {"{\\urtf1\\deff0 2}\r\n\0"sv, "{\\rtf1\\ansi\\deff0 2}\r\n"},
        {"{\\urtf1 \xC2\xB5\xE2\x88\x9E\xEF\xBF\xBD\xF0\x9F\x98\x80}",
         "{\\rtf1\\ansi \\u181?\\u8734?\\u-3?\\u-10179?\\u-8704?}"},
        // A control that does not know UTF-8 here.
        {"{\\rtf1\\ansicpg1252 \\'b5\xE9}", "{\\rtf1\\ansicpg1252 \\'b5\\'e9}"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(richTextToWrite(row.control), row.text);
    }
}

}  // namespace
}  // namespace calquo
