// Prints the words of the language as a dictionary for the fuzzers, from the tables that the language is made of.
#include <algorithm>
#include <cstdio>

#include "engine/keyword_table.h"

int main() {
    for (const calquo::Keyword& keyword : calquo::keywordTable) {
        if (!keyword.name.empty()) {
            std::printf("\"%.*s\"\n", static_cast<int>(keyword.name.size()), keyword.name.data());
        }
    }
    for (const char* const sign :
         {"->", "(", ")", ";", "!", "%", "^", "16'", "2'", "@-", " '16", "=", "0.", "1e4932"}) {
        std::printf("\"%s\"\n", sign);
    }
}
