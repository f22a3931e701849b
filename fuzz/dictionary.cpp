// Prints a dictionary for the fuzzers: the words of the language from the tables that it is made of, and some of what
// files of rich text and calq's arguments have in them.
#include <cstdio>
#include <sstream>
#include <string>

#include "engine/keyword_table.h"

/// With blanks between them, and escaped as in a dictionary.
constexpr const char* otherWords = R"(
    -> ( ) ; ! % ^ 16' 2' @- \x20'16 = 0. 1e4932
    {\\rtf1 \\par\x20 \\'e9 \\u-10179? \\u8730? {\\* \\f1\x20 {\\fonttbl {\\pict \\bin3\x20 \\cell\x20 \\line\x20 \\uc0
    {\\colortbl \\red9 \\cf1\x20 \\plain\x20
    --format\x0A --word= --record --check \xE2\x88\x92 \xC3\x97
)";

int main() {
    for (const calquo::Keyword& keyword : calquo::keywordTable) {
        if (!keyword.name.empty()) {
            std::printf("\"%.*s\"\n", static_cast<int>(keyword.name.size()), keyword.name.data());
        }
    }
    std::istringstream others(otherWords);
    for (std::string word; others >> word;) {
        std::printf("\"%s\"\n", word.c_str());
    }
}
