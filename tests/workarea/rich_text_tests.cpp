// Rich text on its way into a sheet and out of it: what is let through, what goes, and what is refused.
#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "support/repeated.h"
#include "workarea/file_fault.h"
#include "workarea/rich_text.h"
#include "workarea/rich_text_filter.h"

namespace calquo {
namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t mostCost = 1'000'000;

std::string clean(std::string_view bytes, LastLineEnd lastLineEnd = LastLineEnd::Kept) {
    return cleanRichText(bytes, mostCost, lastLineEnd);
}

/// The body of the clean text that `body` gives, with "/" for the end of a line.
std::string cleanBody(std::string_view body) {
    const std::string text = clean("{\\rtf1" + std::string(body) + "}");
    std::string shown = text.substr(text.find('\n') + 1);
    for (std::size_t place = 0; (place = shown.find("\\par\n", place)) != std::string::npos;) {
        shown.replace(place, 5, "/");
    }
    return shown.substr(0, shown.size() - 1);
}

struct BodyRow {
    std::string_view body, clean;
};

const BodyRow bodyRows[] = {
    {R"( 2+3)", R"(2+3)"},
    {R"()", R"()"},
    {R"( \{ \} \\)", R"(\{ \} \\)"},
    // Lines, by whatever breaks them.
    {R"( 1\par 2\line 3\page 4\sect 5\column 6\lbr1 7)", R"(1/2/3/4/5/6/7)"},
    {" 1\\\r\n2\\\n3\v4\f5\\'0b6\\'0a7", R"(1/2/3/4/5/6/7)"},
    {R"( 1\u8232 ?2\u8233 ?3\u11 ?4\u133 ?5\uc0\u8232 6)", R"(1/2/3/4/5/6)"},
    {" 1\r\n2\n3\0004"sv, R"(1234)"},
    {R"( 1\par\par)", R"(1//)"},
    {R"(\pard\par{\b\par})", R"(/\b /)"},
    // Characters.
    {R"( \u8722?\u-3 ?\u65533 ?\u8722\'2d)", R"(\u8722?\u-3?\u-3?\u8722?)"},
    {R"( \uc2\u8722 ab3{\uc0\u8722 a}\u8722 ab4\uc0\u8722 5)", R"(\u8722?3\u8722?a\u8722?4\u8722?5)"},
    {R"( \u-10179?\u-8704?\u128512 ?)", R"(\u-10179?\u-8704?\u-10179?\u-8704?)"},
    {R"( \u-10179?x\u-8704?\u-10179?)", R"(\u-3?x\u-3?\u-3?)"},
    {R"(\u49\u43\u50\u0\u7\u1114112\u-40000\u99999999999 ?)", R"(1+2)"},
    {R"(\u49\par 2\u51\b 4)", R"(1/23\b 4)"},
    {R"( \~\_\-\'b5\'41\'00\'7f\'zz\:\|)", R"(\u160?\u8209?\'b5\'41zz)"},
    {R"(\emdash\endash\lquote\rquote\ldblquote\rdblquote\bullet\enspace)",
     R"(\u8212?\u8211?\u8216?\u8217?\u8220?\u8221?\u8226?\u8194?)"},
    {" \xE9\x01\x7F\t\\tab\\\t", R"(\'e9\tab \tab \tab )"},
    // Formats as what changes; a group only where a size or font is taken back.
    {R"( 1{\b 2}{\i\b\ul 3}4\b\b0 5\b1 6\plain 7)", R"(1\b 2\i\ul 3\b0\i0\ul0 45\b 6\b0 7)"},
    {R"({\fs48 1\b 2}3\fs20\fs 4{\fs9999 5})", R"({\fs48 1\b 2}34{\fs400 5})"},
    {R"({\super 2}{\sub 3}4{\strike\uldb 5\ulnone\strike0 6})",
     R"(\super 2\sub 3\nosupersub 4\ul\strike 5\ul0\strike0 6)"},
    {R"({\qc 1\par}2\par\qr\li99999999\fi-20 3)", R"(\pard\qc 1/\pard 2/\pard\qr\li20000\fi-20 3)"},
    {R"({\fs24 1\par{\qc 2\par}}3)", R"({\fs24 1/}\pard\qc {\fs24 2/}\pard 3)"},
    // Tables: lines, with tabs between the cells.
    {R"(\trowd\cellx500\cellx900\intbl 1\cell 2\cell\row 3\cell\cell 4\cell\row 5)", R"(1\tab 2/3\tab \tab 4/5)"},
    {R"({1\nestcell 2\nestcell{\*\nesttableprops\trowd\nestrow}{\nonesttables\par}}3)", R"(1\tab 2/3)"},
    {R"( 1\nestcell{\*\nesttableprops\nestrow}2\nestcell{\*\nesttableprops\nestrow}3{\header{\*\x\nestrow}}4)",
     R"(1/2/34)"},
    // What goes.
    {R"( 1{\pict\pngblip 89504e47}2{\*\shppict{\pict 00}}{\nonshppict{\pict 00}}3)", R"(123)"},
    {R"( 1{\object\objemb{\*\objdata 0105}{\result 9}}2{\shp{\*\shpinst 9}{\shprslt 9}}3)", R"(123)"},
    {R"( 1{\field{\*\fldinst HYPERLINK "http://x"}{\fldrslt{\ul 2}}}{\field{\fldinst DATE}{\fldrslt 3}})",
     R"(1\ul 2\ul0 3)"},
    {R"({\info{\author 9}}{\stylesheet{\s0 9;}}{\header 9\par}{\footnote 9}{\*\generator 9;}{\*\x{9}9}1)", R"(1)"},
    {R"( 1{\v 9\par}2\v 9\v0 3{\deleted 9}4{\pntext\'b7\tab}{\xe 9}5)", R"(12345)"},
    {R"( 1\s3\cs5\styrsid9\lang1033\kerning0\protect\sl-99\tx720\trowd\foo{\bar 2}\bin3 }})", R"(12)"},
    {R"( 1{\pict\bin3 }}}}2{\*\shppict{\pict\bin1 {}}3{\pict\bin-5 }4{\pict{\*\picprop}\bin0 }5)", R"(12345)"},
    {R"({\fonttbl{\f7 X;}}\cf5\f9 1)", R"(1)"},
};

TEST(RichTextFilter, LetsThroughWhatASheetIsMadeOf) {
    for (const BodyRow& row : bodyRows) {
        SCOPED_TRACE(row.body);
        EXPECT_EQ(cleanBody(row.body), row.clean);
    }
    EXPECT_EQ(clean("{\\rtf1 1" + repeated(5'000, "{\\b\\abc ") + "2" + repeated(5'000, "}") + "3}trailing {"),
              "{\\rtf1\\ansi\n1\\b 2\\b0 3}");
    EXPECT_EQ(clean("{\\rtf1 1\\" + repeated(2'000, "x") + " 2\\" + repeated(33, "b") + "1 3}"), "{\\rtf1\\ansi\n123}");
    EXPECT_EQ(clean("{\\rtf1 1{\\pict\\bin1000 " + repeated(1'000, "{") + "}2}"), "{\\rtf1\\ansi\n12}");
}

TEST(RichTextFilter, TheTablesHaveWhatIsUsed) {
    EXPECT_EQ(clean("{\\rtf1\\mac\\ansicpg1251\\deff3{\\fonttbl{\\f0\\froman\\fprq2{\\*\\panose 02}Arial{\\*\\falt X};}"
                    "{\\f3\\fmodern\\fcharset204\\cpg1251 Courier \\'cd\\u8722 ?ew;}\\f4 " +
                    repeated(40, "y") +
                    ";\\f5\\fcharset999 ;}{\\colortbl;\\red255\\green999\\blue0;\\red1;;}"
                    "1{\\f0\\cf2\\highlight1 2}\\cf3\\f4 3\\f0\\cf1 4}"),
              "{\\rtf1\\mac\\ansicpg1251{\\fonttbl{\\f1\\fmodern\\fcharset204\\cpg1251 Courier \\'cd\\u8722?ew;}"
              "{\\f2\\froman Arial;}{\\f3\\fnil " +
                  repeated(31, "y") +
                  ";}}{\\colortbl;\\red1\\green0\\blue0;\\red255\\green255\\blue0;}\n"
                  "{\\f1 1\\f2\\cf1\\highlight2 2\\f3\\cf0\\highlight0 3\\f2\\cf2 4}}");
}

TEST(RichTextFilter, TheLastLineEndIsLeftOutWhereItWouldBeginAnotherLine) {
    for (const auto& [bytes, text] : {std::pair("{\\rtf1 2\\par}\r\n", "{\\rtf1\\ansi\n2}"),
                                      std::pair("{\\rtf1 2\\par\\par}", "{\\rtf1\\ansi\n2\\par\n}"),
                                      std::pair("{\\rtf1 {\\b 2\\par}\\pard{\\pict 0}}", "{\\rtf1\\ansi\n\\b 2}"),
                                      std::pair("{\\rtf1 2\\par  }", "{\\rtf1\\ansi\n2\\par\n }")}) {
        EXPECT_EQ(clean(bytes, LastLineEnd::Dropped), text);
    }
}

/// Rich text at random, of pieces that mean something beside one another.
std::string anyRichText(std::mt19937& random) {
    constexpr std::string_view pieces[] = {
        "{",       "{",       "}",        "\\b ",    "\\b0 ",  "\\fs30 ",  "\\f0 ",   "\\f1 ",     "\\plain ",
        "\\cf1 ",  "\\cf2 ",  "\\cf0 ",   "\\par ",  "\\line", "\\cell ",  "\\row ",  "\\qc ",     "\\pard ",
        "\\li40 ", "\\super", "\\ul ",    "\\v ",    "\\v0 ",  "\\u8722?", "\\uc0 ",  "\\u-10179", "\\u-8704 ?",
        "x",       "y z",     "\\{",      "\\'e9",   "\\tab",  "\t",       "\xE9",    "{\\pict ",  "\\*",
        "\\deff1", "\\ul0 ",  "\\u8232?", "\\i\\b ", "\\fs ",  "\\'",      "\\bin2 ", "{\\*\\x ",  "\\nosupersub ",
    };
    std::string text = "{\\rtf1\\ansi{\\fonttbl{\\f0\\fswiss Arial;}{\\f1 Courier;}}{\\colortbl;\\red9;\\blue7;}";
    int depth = 1;
    for (auto count = random() % 40; count > 0; --count) {
        const std::string_view piece = pieces[random() % std::size(pieces)];
        if (piece != "}" || depth > 1) {
            text += piece;
            depth += piece.front() == '{' ? 1 : piece == "}" ? -1 : 0;
        }
    }
    return text + std::string(static_cast<std::size_t>(depth), '}');
}

TEST(RichTextFilter, WhatIsCleanPassesUnchanged) {
    std::mt19937 random(20262);
    for (int count = 0; count < 20'000; ++count) {
        const std::string text = anyRichText(random);
        std::string once;
        try {
            once = clean(text);
        } catch (const FileFault&) {
            continue;  // bytes of a picture that reach into the end
        }
        ASSERT_EQ(clean(once), once) << text;
    }
}

std::optional<FileFailure> failureToRead(std::string_view bytes) {
    try {
        clean(bytes);
        return std::nullopt;
    } catch (const FileFault& fault) {
        return fault.failure;
    }
}

TEST(RichTextFilter, WhatIsNoneOrTooMuchIsRefused) {
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
        {"{\\rtf1 2\\'4", FileFailure::CutOff},
        {"{\\rtf1{\\pict\\bin9 }}", FileFailure::CutOff},
        {"{\\rtf1{\\pict\\bin99999999999999999999 }}", FileFailure::CutOff},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(failureToRead(row.bytes), row.failure) << row.bytes;
    }
    // Text counts however it is spelt, and what is not shown does not.
    EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(mostCost - 1, "\\par\n") + "}"), std::nullopt);
    EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(mostCost, "\\line\n") + "}"), FileFailure::TooMuchText);
    for (const char* spelling : {"x", "\\u49", "\\'31", "\\tab", "\\{", "\\emdash", "\\~", "{x}", "\\cell x"}) {
        EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(200'000, spelling) + "}"), FileFailure::TooMuchText) << spelling;
    }
    for (const char* spelling : {"\\foo", "\\cell", "{\\*\\x y}", "\\u0 ", "\\v x", "{}"}) {
        EXPECT_EQ(failureToRead("{\\rtf1 " + repeated(200'000, spelling) + "}"), std::nullopt) << spelling;
    }
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
