// bare_lines ROW: answers each line of standard input with the bare arithmetic of a row of the corpus, whatever stands
// in the line. What no program that reads lines and writes numbers can do without.
#include <cstdio>
#include <cstdlib>

#include "corpus.h"

int main(int count, char** arguments) {
    const auto rows = calquo::bench::corpus();
    const std::size_t row = count == 2 ? std::strtoul(arguments[1], nullptr, 10) : rows.size();
    if (row >= rows.size()) {
        std::fprintf(stderr, "usage: bare_lines ROW, a row being a number below %zu\n", rows.size());
        return 2;
    }
    char line[256];
    while (std::fgets(line, sizeof line, stdin) != nullptr) {
        char digits[64];
        std::snprintf(digits, sizeof digits, "%.8Lg\n", rows[row].arithmetic());
        std::fputs(digits, stdout);
    }
    return 0;
}
