// Escaping inputs, and reading them back.
#include "corpus_text.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "engine/characters.h"

namespace calquo {
namespace {

constexpr std::string_view hexadecimalDigits = "0123456789abcdef";

struct NamedEscape {
    char character;
    char letter;
};
constexpr NamedEscape namedEscapes[] = {{'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}, {'\\', '\\'}};

[[noreturn]] void refuse(std::string_view what) {
    std::fprintf(stderr, "not a line of a corpus: %.*s\n", static_cast<int>(what.size()), what.data());
    std::exit(2);
}

void appendByNumber(std::string& line, char byte) {
    const auto code = static_cast<unsigned char>(byte);
    line += "\\x";
    line += hexadecimalDigits[code >> 4];
    line += hexadecimalDigits[code & 0xF];
}

void appendEscaped(std::string& line, char byte) {
    for (const NamedEscape& escape : namedEscapes) {
        if (escape.character == byte) {
            line += '\\';
            line += escape.letter;
            return;
        }
    }
    if (byte >= ' ' && byte <= '~') {
        line += byte;
    } else {
        appendByNumber(line, byte);
    }
}

/// The byte that the escape at the start of `rest` stands for, which is taken away.
char takeEscape(std::string_view& rest, std::string_view line) {
    const char letter = characterAt(rest, 1);
    for (const NamedEscape& escape : namedEscapes) {
        if (escape.letter == letter) {
            rest.remove_prefix(2);
            return escape.character;
        }
    }
    const std::size_t high = hexadecimalDigits.find(characterAt(rest, 2));
    const std::size_t low = hexadecimalDigits.find(characterAt(rest, 3));
    if (letter != 'x' || high == std::string_view::npos || low == std::string_view::npos) {
        refuse(line);
    }
    rest.remove_prefix(4);
    return static_cast<char>(high << 4 | low);
}

}  // namespace

std::string escapedInput(std::string_view bytes) {
    std::string line;
    for (const char byte : bytes) {
        appendEscaped(line, byte);
    }
    if (line.ends_with(' ')) {
        line.pop_back();
        appendByNumber(line, ' ');
    }
    return line;
}

std::string inputOf(std::string_view line) {
    std::string bytes;
    for (std::string_view rest = line; !rest.empty();) {
        if (rest.front() == '\\') {
            bytes += takeEscape(rest, line);
        } else {
            bytes += rest.front();
            rest.remove_prefix(1);
        }
    }
    return bytes;
}

std::vector<std::string> readCorpus(const char* file) {
    std::ifstream stream(file);
    std::vector<std::string> inputs;
    for (std::string line; std::getline(stream, line);) {
        inputs.push_back(inputOf(line));
    }
    if (inputs.empty()) {
        refuse(file);
    }
    return inputs;
}

}  // namespace calquo
