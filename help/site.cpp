// The help as a folder for a web server: the pages with a search in them, and the index that its script reads.
#include <array>
#include <fstream>
#include <utility>

#include "book.h"
#include "html.h"

namespace calquo {
namespace {

/// What a reader sees of HTML, in one line, as a literal of the script's language.
std::string scriptText(std::string_view html) {
    static constexpr std::array<std::pair<std::string_view, char>, 5> references{
        {{"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&amp;", '&'}, {"&nbsp;", ' '}}};
    std::string text = "\"";
    for (std::size_t i = 0; i < html.size(); ++i) {
        char character = html[i] == '\n' ? ' ' : html[i];
        if (character == '<') {
            i = html.find('>', i);
            character = ' ';
        }
        for (const auto& [reference, meant] : references) {
            if (html.substr(i, reference.size()) == reference) {
                i += reference.size() - 1;
                character = meant;
                break;
            }
        }
        if (character == '"' || character == '\\') {
            text += '\\';
        }
        if (character != ' ' || text.back() != ' ') {
            text += character;
        }
    }
    return text + '"';
}

std::string row(const std::string& target, std::string_view title, std::string_view text) {
    return "    [\"" + target + "\", " + scriptText(title) + ", " + scriptText(text) + "],\n";
}

}  // namespace

std::string Book::searchIndex() const {
    std::string index = "// What the search looks through: where, a title, and a text.\nvar searchIndex = [\n";
    for (const auto& [depth, page] : chapters_) {
        const std::string file = page.name + ".html";
        std::string terms;
        for (const Landmark& term : page.indexTerms) {
            terms += term.text + "; ";
        }
        // Who looks for a word of a page's index finds the names that the page explains, too.
        for (std::size_t name = 1; name <= keywordCount(); ++name) {
            const std::string entry = tables_.entryOf(nameOf(name));
            if (entry.starts_with(file + "#")) {
                index += row(entry, escaped(nameOf(name)), escaped(std::string(descriptionOf(name)) + "; " + terms));
            }
        }
        std::string target = file;
        std::string title = page.title;
        std::size_t start = 0;
        for (const Landmark& section : page.sections) {
            const std::size_t end = page.body.find(" id=\"" + section.anchor + "\"", start);
            index += row(target, escaped(title), page.body.substr(start, page.body.rfind('<', end) - start));
            target = file + "#" + section.anchor;
            title = page.title + ": " + section.text;
            start = page.body.find('>', end) + 1;
        }
        index += row(target, escaped(title), page.body.substr(start));
    }
    return index + "];\n";
}

void Book::writeSite(const std::filesystem::path& folder) const {
    std::filesystem::create_directories(folder);
    const auto write = [&](const std::string& name, const std::string& text) {
        std::ofstream stream;
        stream.exceptions(std::ios::failbit | std::ios::badbit);
        stream.open(folder / name, std::ios::binary);
        stream << text;
        stream.close();
    };
    constexpr std::string_view scripts =
        "<script src=\"search_index.js\" defer></script>\n<script src=\"search.js\" defer></script>\n";
    for (std::size_t chapter = 0; chapter < chapters_.size(); ++chapter) {
        std::string html = pageHtml(chapter);
        html.insert(html.find("</head>"), scripts);
        write(chapters_[chapter].page.name + ".html", html);
    }
    write("search_index.js", searchIndex());
}

}  // namespace calquo
