// Splits the command line into words.
#include "shell/command_line.h"

namespace calquo {
namespace {

constexpr std::wstring_view blanks = L" \t";

/// Takes the first word off a command line; quotation marks may stand anywhere in it.
std::wstring takeWord(std::wstring_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    std::wstring word;
    bool isQuoted = false;
    std::size_t length = 0;
    for (; length < line.size() && (isQuoted || blanks.find(line[length]) == blanks.npos); ++length) {
        if (line[length] == L'"') {
            isQuoted = !isQuoted;
        } else {
            word += line[length];
        }
    }
    line.remove_prefix(length);
    return word;
}

}  // namespace

std::wstring fileOnCommandLine(std::wstring_view commandLine) {
    takeWord(commandLine);
    return takeWord(commandLine);
}

}  // namespace calquo
