// Escapes text and wraps it in elements; see html.h.
#include "html.h"

#include <algorithm>

#include "engine/characters.h"

namespace calquo {

std::string escaped(std::string_view text) {
    std::string html;
    for (const char character : text) {
        switch (character) {
            case '&':
                html += "&amp;";
                break;
            case '<':
                html += "&lt;";
                break;
            case '>':
                html += "&gt;";
                break;
            case '"':
                html += "&quot;";
                break;
            default:
                html += character;
        }
    }
    return html;
}

std::string element(std::string_view tag, std::string_view content) {
    std::string html = "<";
    html.append(tag).append(">").append(content).append("</").append(tag.substr(0, tag.find(' '))).append(">");
    return html;
}

std::string inLowerCase(std::string_view text) {
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(), lowerCase);
    return small;
}

}  // namespace calquo
