// Reading the markup block by block; see markup.h.
#include "markup.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace calquo {
namespace {

bool isLetterOrDigit(char character) { return std::isalnum(static_cast<unsigned char>(character)) != 0; }

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + separator.size());
    }
}

/// The text of a heading without its marks.
std::string plainText(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            plain += text[++i];
        } else if (text[i] != '`' && text[i] != '*') {
            plain += text[i];
        }
    }
    return plain;
}

std::string anchorOf(std::string_view heading) {
    std::string anchor;
    for (const char character : heading) {
        if (isLetterOrDigit(character)) {
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        } else if (!anchor.empty() && anchor.back() != '-') {
            anchor += '-';
        }
    }
    return anchor.ends_with('-') ? anchor.substr(0, anchor.size() - 1) : anchor;
}

/// "page.md#section" as the pages know each other, or the entry of a name.
std::string linkTarget(std::string_view target, const PageSources& sources) {
    constexpr std::string_view nameMark = "name:";
    if (target.starts_with(nameMark)) {
        return sources.linkOfName(target.substr(nameMark.size()));
    }
    std::string link(target);
    const std::size_t ending = link.find(".md");
    if (ending != std::string::npos) {
        link.replace(ending, 3, ".html");
    }
    return link;
}

std::string element(std::string_view tag, std::string_view content) {
    std::string html = "<";
    html.append(tag).append(">").append(content).append("</").append(tag.substr(0, tag.find(' '))).append(">");
    return html;
}

/// One pass over a page's lines.
class PageReader {
public:
    PageReader(const std::string& name, std::string_view markup, const PageSources& sources)
        : sources_(sources), lines_(split(markup, "\n")) {
        page_.name = name;
    }

    Page read() {
        while (next_ < lines_.size()) {
            try {
                readBlock();
            } catch (const std::invalid_argument& fault) {
                fail(fault.what());
            }
        }
        if (page_.title.empty()) {
            fail("the page has no title");
        }
        return std::move(page_);
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw MarkupFault{page_.name + ".md:" + std::to_string(next_) + ": " + what};
    }

    bool atEnd() const { return next_ == lines_.size(); }
    std::string_view line() const { return atEnd() ? std::string_view() : trimmed(lines_[next_]); }
    std::string text(std::string_view markup) const { return textHtml(markup, sources_); }
    void append(std::string_view html) { page_.body.append(html).append("\n"); }

    void readBlock() {
        const std::string_view first = line();
        if (first.empty()) {
            ++next_;
        } else if (first.starts_with('#')) {
            readHeading(first);
        } else if (first.starts_with("<!--")) {
            readComment(first);
        } else if (first.starts_with("```")) {
            readFenced(first.substr(3));
        } else if (first.starts_with('|')) {
            readTable();
        } else if (first.starts_with('@')) {
            readRequest(first.substr(1));
        } else if (itemTextBegin(first) != 0) {
            readList(first.starts_with('-') ? "ul" : "ol");
        } else {
            append(element("p", text(readParagraph())));
        }
    }

    void readHeading(std::string_view heading) {
        ++next_;
        const std::size_t level = heading.find_first_not_of('#');
        const std::string_view markup = trimmed(heading.substr(std::min(level, heading.size())));
        const std::string plain = plainText(markup);
        if (level > 3 || plain.empty() || (level == 1) != page_.title.empty()) {
            fail("a page has one title, then sections and subsections");
        }
        anchor_ = level == 1 ? std::string() : anchorOf(plain);
        const std::string tag = "h" + std::to_string(level);
        if (level == 1) {
            page_.title = plain;
            append(element(tag, text(markup)));
            return;
        }
        append(element(tag + " id=\"" + anchor_ + "\"", text(markup)));
        if (level == 2) {
            page_.sections.push_back({plain, anchor_});
        }
    }

    void readComment(std::string_view comment) {
        ++next_;
        constexpr std::string_view indexMark = "<!-- index:", calqMark = "<!-- calq:", end = "-->";
        if (!comment.ends_with(end)) {
            fail("a comment ends on its line");
        }
        if (comment.starts_with(indexMark)) {
            comment.remove_prefix(indexMark.size());
            comment.remove_suffix(end.size());
            for (const std::string_view term : split(comment, ";")) {
                page_.indexTerms.push_back({std::string(trimmed(term)), anchor_});
            }
        } else if (comment.starts_with(calqMark)) {
            append(comment);
        } else {
            fail("a comment is for the index or for calq");
        }
    }

    void readFenced(std::string_view kind) {
        const std::size_t first = next_ + 1;
        do {
            ++next_;
            if (atEnd()) {
                fail("a block has no end");
            }
        } while (!line().starts_with("```"));
        ++next_;
        if (kind != "lines" && kind != "console" && kind != "text") {
            fail("there is no block of the kind \"" + std::string(kind) + "\"");
        }
        std::string content;
        for (std::size_t i = first; i + 1 < next_; ++i) {
            content += kind == "lines" ? recordHtml(lines_[i]) : escaped(lines_[i]);
            content += '\n';
        }
        append(element("pre class=\"" + std::string(kind) + "\"", content));
    }

    std::vector<std::string_view> readCells() {
        std::string_view row = line();
        ++next_;
        if (row.size() < 2 || !row.ends_with('|')) {
            fail("a row of a table ends with \"|\"");
        }
        row.remove_prefix(1);
        row.remove_suffix(1);
        std::vector<std::string_view> cells = split(row, "|");
        std::transform(cells.begin(), cells.end(), cells.begin(), trimmed);
        return cells;
    }

    void readTable() {
        const std::vector<std::string_view> head = readCells();
        if (!line().starts_with("|-")) {
            fail("below the first row of a table stands a row of dashes");
        }
        ++next_;
        append("<table>");
        std::string cells;
        for (const std::string_view cell : head) {
            cells += element("th", text(cell));
        }
        append(element("tr", cells));
        while (line().starts_with('|')) {
            const std::vector<std::string_view> row = readCells();
            if (row.size() != head.size()) {
                fail("the table has rows of different lengths");
            }
            cells.clear();
            for (std::size_t column = 0; column < row.size(); ++column) {
                const bool isLine = head[column] == "Line", isResult = head[column] == "Result";
                const std::string_view tag = isLine ? "td class=\"line\"" : isResult ? "td class=\"result\"" : "td";
                cells += element(tag, text(row[column]));
            }
            append(element("tr", cells));
        }
        append("</table>");
    }

    void readRequest(std::string_view request) {
        const std::size_t blank = std::min(request.find(' '), request.size());
        TableRequest table{page_.name, std::string(request.substr(0, blank)),
                           std::string(trimmed(request.substr(blank)))};
        for (++next_; !line().empty(); ++next_) {
            // Further lines of a row are indented.
            if (lines_[next_].front() == ' ' && !table.rows.empty()) {
                table.rows.back().append(" ").append(line());
            } else {
                table.rows.emplace_back(line());
            }
        }
        append(sources_.table(table));
    }

    /// Where the text of a list's item begins in its line; 0 when the line begins no item.
    static std::size_t itemTextBegin(std::string_view candidate) {
        if (candidate.starts_with("- ")) {
            return 2;
        }
        const std::size_t digits = std::min(candidate.find_first_not_of("0123456789"), candidate.size());
        return digits > 0 && candidate.substr(digits).starts_with(". ") ? digits + 2 : 0;
    }

    void readList(std::string_view tag) {
        append("<" + std::string(tag) + ">");
        while (const std::size_t begin = itemTextBegin(line())) {
            std::string item(line().substr(begin));
            for (++next_; !line().empty() && lines_[next_].front() == ' '; ++next_) {
                item.append(" ").append(line());
            }
            append(element("li", text(item)));
        }
        append("</" + std::string(tag) + ">");
    }

    std::string readParagraph() {
        std::string paragraph(line());
        for (++next_; !line().empty() && itemTextBegin(line()) == 0; ++next_) {
            paragraph.append(" ").append(line());
        }
        return paragraph;
    }

    const PageSources& sources_;
    std::vector<std::string_view> lines_;
    std::size_t next_ = 0;
    std::string anchor_;  ///< Of the latest heading.
    Page page_;
};

/// Reads marks and what they enclose from the front of a text.
class TextReader {
public:
    TextReader(std::string_view text, const PageSources& sources) : rest_(text), sources_(sources) {}

    std::string html() {
        std::string result;
        while (!rest_.empty()) {
            const char first = rest_.front();
            if (first == '\\' && rest_.size() > 1) {
                result += escaped(rest_.substr(1, 1));
                rest_.remove_prefix(2);
            } else if (first == '`') {
                result += element("code", recordHtml(enclosed("`", "`")));
            } else if (rest_.starts_with("**")) {
                result += element("strong", textHtml(enclosed("**", "**"), sources_));
            } else if (first == '*') {
                result += element("em", textHtml(enclosed("*", "*"), sources_));
            } else if (first == '[') {
                result += link();
            } else if (rest_.starts_with("![")) {
                rest_.remove_prefix(1);
                result += picture();
            } else {
                const std::size_t end = std::min(rest_.find_first_of("\\`*[!", 1), rest_.size());
                result += escaped(rest_.substr(0, end));
                rest_.remove_prefix(end);
            }
        }
        return result;
    }

private:
    std::string_view enclosed(std::string_view open, std::string_view close) {
        const std::size_t end = rest_.find(close, open.size());
        if (end == std::string_view::npos) {
            throw std::invalid_argument("\"" + std::string(open) + "\" has no \"" + std::string(close) + "\"");
        }
        const std::string_view content = rest_.substr(open.size(), end - open.size());
        rest_.remove_prefix(end + close.size());
        return content;
    }

    /// The target behind "[text]".
    std::string_view target() {
        if (!rest_.starts_with('(')) {
            throw std::invalid_argument("behind \"]\" stands no (target)");
        }
        return enclosed("(", ")");
    }

    std::string link() {
        const std::string_view text = enclosed("[", "]");
        return element("a href=\"" + linkTarget(target(), sources_) + "\"", textHtml(text, sources_));
    }

    std::string picture() {
        const std::string description = escaped(enclosed("[", "]"));
        return "<img src=\"" + std::string(target()) + "\" alt=\"" + description + "\">";
    }

    std::string_view rest_;
    const PageSources& sources_;
};

/// The number of the UTF-8 character at the front of a text, which it is taken from.
char32_t takeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < length || (lead >= 0x80 && lead < 0xC0)) {
        throw std::invalid_argument("the text is not UTF-8");
    }
    char32_t character = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        character = character << 6 | (static_cast<unsigned char>(text[i]) & 0x3Fu);
    }
    text.remove_prefix(length);
    return character;
}

}  // namespace

std::string escaped(std::string_view text) {
    std::string html;
    while (!text.empty()) {
        const char32_t character = takeCharacter(text);
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
                if (character < 0x80) {
                    html += static_cast<char>(character);
                } else {
                    html += "&#" + std::to_string(static_cast<unsigned long>(character)) + ";";
                }
        }
    }
    return html;
}

std::string recordHtml(std::string_view record) {
    const std::size_t result = std::min(record.find(" = "), record.size());
    const std::string expression = escaped(record.substr(0, result));
    return result == record.size() ? expression : expression + element("b", escaped(record.substr(result)));
}

std::string textHtml(std::string_view text, const PageSources& sources) { return TextReader(text, sources).html(); }

Page readPage(const std::string& name, std::string_view markup, const PageSources& sources) {
    return PageReader(name, markup, sources).read();
}

}  // namespace calquo
