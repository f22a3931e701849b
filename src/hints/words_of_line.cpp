// One pass over the characters of a line; see words_of_line.h.
#include "hints/words_of_line.h"

#include <algorithm>
#include <array>

#include "engine/characters.h"
#include "engine/keywords.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr std::array<std::string_view, 5> doubleMarks = {"->", "**", "//", "<<", ">>"};

bool isNumberMark(char character) {
    return character == '.' || character == ',' || character == markCharacter(TokenClass::DecimalMark) ||
           character == markCharacter(TokenClass::GroupMark);
}

/// Past the digits at an index and the marks that stand between digits; a decimal mark may end them.
std::size_t digitsEnd(std::string_view line, std::size_t index, bool lettersToo) {
    const auto isDigit = [&](std::size_t i) {
        const char character = characterAt(line, i);
        return isDecimalDigit(character) || (lettersToo && isLetter(character));
    };
    while (isDigit(index) || (isNumberMark(characterAt(line, index)) && isDigit(index + 1))) {
        ++index;
    }
    const bool endsInMark = characterAt(line, index) == markCharacter(TokenClass::DecimalMark);
    return endsInMark && index > 0 && isDigit(index - 1) ? index + 1 : index;
}

std::size_t numberEnd(std::string_view line, std::size_t index) {
    std::size_t first = index;
    while (isDecimalDigit(characterAt(line, first))) {
        ++first;
    }
    const bool hasPrefix =
        first - index <= 2 && characterAt(line, first) == '\'' && isNameCharacter(characterAt(line, first + 1));
    std::size_t end = hasPrefix ? digitsEnd(line, first + 1, true) : digitsEnd(line, index, false);
    const char mark = lowerCase(characterAt(line, end));
    if (mark == '@' || (mark == 'e' && !hasPrefix)) {
        const char sign = characterAt(line, end + 1);
        const std::size_t digits = end + (sign == '+' || sign == '-' ? 2 : 1);
        if (isDecimalDigit(characterAt(line, digits))) {
            end = digitsEnd(line, digits, false);
        }
    }
    return end;
}

Word wordAt(std::string_view line, std::size_t index) {
    const char character = line[index];
    if (isDecimalDigit(character) || (isNumberMark(character) && isDecimalDigit(characterAt(line, index + 1)))) {
        return {WordKind::Number, line.substr(index, numberEnd(line, index) - index)};
    }
    if (isLetter(character)) {
        std::size_t end = index;
        while (isNameCharacter(characterAt(line, end))) {
            ++end;
        }
        return {WordKind::Name, line.substr(index, end - index)};
    }
    if (static_cast<unsigned char>(character) >= 0x80) {
        const auto first = firstUtf8Character(line.substr(index));
        return {WordKind::Foreign, line.substr(index, first ? first->length : 1)};
    }
    const std::string_view pair = line.substr(index, 2);
    // The second characters of the double marks.
    const char second = characterAt(line, index + 1);
    const bool mayBeDouble = second == '>' || second == '<' || second == character;
    const bool isDouble = mayBeDouble && std::ranges::find(doubleMarks, pair) != doubleMarks.end();
    return {WordKind::Mark, isDouble ? pair : pair.substr(0, 1)};
}

}  // namespace

void splitIntoWords(std::string_view line, Words& words) {
    bool afterBlank = false;
    for (std::size_t index = 0; index < line.size();) {
        if (static_cast<unsigned char>(line[index]) <= ' ') {
            afterBlank = true;
            ++index;
            continue;
        }
        Word word = wordAt(line, index);
        word.afterBlank = afterBlank;
        word.keyword = word.isName() ? lookup(word.text) : 0;
        afterBlank = false;
        index += word.text.size();
        words.push_back(word);
    }
}

bool sameLetters(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

bool isWholeNumber(std::string_view text) { return !text.empty() && std::ranges::all_of(text, isDecimalDigit); }

}  // namespace calquo
