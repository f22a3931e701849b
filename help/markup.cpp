// A library makes HTML of the Markdown between our own blocks, and this of those; see markup.h.
#include "markup.h"

#include <md4c-html.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <regex>
#include <stdexcept>

#include "html.h"

namespace calquo {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

std::string anchorOf(std::string_view heading) {
    std::string anchor;
    for (const char character : inLowerCase(heading)) {
        if (std::isalnum(static_cast<unsigned char>(character)) != 0) {
            anchor += character;
        } else if (!anchor.empty() && anchor.back() != '-') {
            anchor += '-';
        }
    }
    return anchor.ends_with('-') ? anchor.substr(0, anchor.size() - 1) : anchor;
}

std::string withoutTags(const std::string& html) { return std::regex_replace(html, std::regex("<[^>]*>"), ""); }

/// "page.md#section" as the pages know each other, or the entry of a name.
std::string linkTo(const std::string& target, const PageSources& sources) {
    constexpr std::string_view nameMark = "name:", ending = ".md";
    if (target.starts_with(nameMark)) {
        return sources.linkOfName(std::string_view(target).substr(nameMark.size()));
    }
    const std::size_t found = target.find(ending);
    return found == std::string::npos ? target : std::string(target).replace(found, ending.size(), ".html");
}

/// "{names}" becomes the number of names.
std::string withCounts(std::string text, const PageSources& sources) {
    for (std::size_t begin = 0; (begin = text.find('{', begin)) != std::string::npos;) {
        const std::size_t end = std::min(text.find('}', begin), text.size() - 1);
        text.replace(begin, end - begin + 1, std::to_string(sources.count(text.substr(begin + 1, end - begin - 1))));
    }
    return text;
}

/// A line of the work area in HTML, its result in the style that it has there.
std::string withResult(const std::string& line) {
    const std::size_t result = line.find(" = ");
    return result == std::string::npos ? line : line.substr(0, result) + element("b", line.substr(result));
}

/// What the library makes of Markdown.
std::string plainHtml(std::string_view markdown) {
    std::string html;
    const auto append = [](const MD_CHAR* text, MD_SIZE size, void* all) {
        static_cast<std::string*>(all)->append(text, size);
    };
    if (md_html(markdown.data(), static_cast<MD_SIZE>(markdown.size()), append, &html,
                MD_FLAG_TABLES | MD_FLAG_NOHTML | MD_FLAG_NOINDENTEDCODEBLOCKS, MD_HTML_FLAG_VERBATIM_ENTITIES) != 0) {
        throw std::invalid_argument("the Markdown cannot be read");
    }
    return html;
}

/// The HTML of Markdown without our own blocks: its links lead to pages and names, its code shows results as such, and
/// the columns of lines and results have their classes.
std::string htmlOf(std::string_view markdown, const PageSources& sources) {
    const std::string html = plainHtml(markdown);
    std::string result;
    std::vector<std::string> titles;  // of the columns of the table
    std::size_t column = 0;
    const auto appendBetween = [&](const std::string& text) {
        if (text.find_first_of("*`|") != text.npos || text.find("](") != text.npos) {
            throw std::invalid_argument("a mark has no counterpart in \"" + std::string(trimmed(text)) + "\"");
        }
        result += withCounts(text, sources);
    };
    static const std::regex ours("<code>([^<]*)</code>|href=\"([^\"]*)\"|<th>([^<]*)</th>|<(table|tr|td)>");
    std::string rest = html;
    for (std::sregex_iterator found(html.begin(), html.end(), ours), end; found != end; ++found) {
        const std::smatch& match = *found;
        appendBetween(match.prefix());
        if (match[1].matched) {
            result += element("code", withResult(match[1]));
        } else if (match[2].matched) {
            result += "href=\"" + linkTo(match[2], sources) + "\"";
        } else if (match[4] == "td") {
            const std::string title = titles.at(column++);
            const bool isOurs = title == "Line" || title == "Result";
            result += isOurs ? "<td class=\"" + inLowerCase(title) + "\">" : "<td>";
        } else {
            result += match.str();
            column = 0;
            if (match[3].matched) {
                titles.push_back(match[3]);
            } else if (match[4] == "table") {
                titles.clear();
            }
        }
        rest = match.suffix();
    }
    appendBetween(rest);
    return result;
}

/// One pass over a page's lines.
class PageReader {
public:
    PageReader(const std::string& name, std::string_view markdown, const PageSources& sources)
        : sources_(sources), lines_(split(markdown, '\n')) {
        page_.name = name;
    }

    Page read() {
        try {
            while (next_ < lines_.size()) {
                readLine(lines_[next_++]);
            }
            finishMarkdown();
            if (page_.title.empty()) {
                throw std::invalid_argument("the page has no title");
            }
        } catch (const std::invalid_argument& fault) {
            throw MarkupFault{page_.name + ".md:" + std::to_string(next_) + ": " + fault.what()};
        }
        return std::move(page_);
    }

private:
    void readLine(std::string_view line) {
        if (!line.starts_with('#') && !line.starts_with("<!--") && !line.starts_with("```")) {
            markdown_.append(line).append("\n");
            return;
        }
        finishMarkdown();
        if (line.starts_with('#')) {
            readHeading(line);
        } else if (line.starts_with("<!--")) {
            readComment(line);
        } else {
            readFenced(trimmed(line.substr(3)));
        }
    }

    /// What stood above our own block.
    void finishMarkdown() {
        page_.body += htmlOf(markdown_, sources_);
        markdown_.clear();
    }

    void readHeading(std::string_view line) {
        const std::size_t level = std::min(line.find_first_not_of('#'), line.size());
        const std::string html = textHtml(line.substr(level), sources_), plain = withoutTags(html);
        if (level > 3 || (level == 1) != page_.title.empty()) {
            throw std::invalid_argument("a page has one title, then sections and subsections");
        }
        std::string tag = "h" + std::to_string(level);
        if (level == 1) {
            page_.title = plain;
        } else {
            anchor_ = anchorOf(plain);
            tag += " id=\"" + anchor_ + "\"";
        }
        if (level == 2) {
            page_.sections.push_back({plain, anchor_});
        }
        page_.body += element(tag, html) + "\n";
    }

    void readComment(std::string_view comment) {
        constexpr std::string_view indexMark = "<!-- index:", calqMark = "<!-- calq:", end = "-->";
        if (comment.starts_with(calqMark) && comment.ends_with(end)) {
            page_.body.append(comment).append("\n");
        } else if (comment.starts_with(indexMark) && comment.ends_with(end)) {
            comment.remove_prefix(indexMark.size());
            comment.remove_suffix(end.size());
            for (const std::string_view term : split(comment, ';')) {
                page_.indexTerms.push_back({std::string(trimmed(term)), anchor_});
            }
        } else {
            throw std::invalid_argument("a comment stands on one line, for the index or for calq");
        }
    }

    void readFenced(std::string_view info) {
        const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(next_);
        const auto end = std::find(begin, lines_.end(), "```");
        if (end == lines_.end()) {
            throw std::invalid_argument("a block has no end");
        }
        next_ += static_cast<std::size_t>(end - begin) + 1;
        const std::vector<std::string_view> lines(begin, end);
        if (info != "lines" && info != "console" && info != "text") {
            page_.body += tableHtml(info, lines) + "\n";
            return;
        }
        std::string html;
        for (const std::string_view line : lines) {
            html += (info == "lines" ? withResult(escaped(line)) : escaped(line)) + "\n";
        }
        page_.body += element("pre class=\"" + std::string(info) + "\"", html) + "\n";
    }

    /// The table that a block asks for. A line that is indented goes on with the row above it.
    std::string tableHtml(std::string_view info, const std::vector<std::string_view>& lines) const {
        const std::size_t blank = std::min(info.find(' '), info.size());
        TableRequest request{page_.name, std::string(info.substr(0, blank)), std::string(trimmed(info.substr(blank)))};
        for (const std::string_view line : lines) {
            if (line.starts_with(' ') && !request.rows.empty()) {
                request.rows.back().append(" ").append(trimmed(line));
            } else {
                request.rows.emplace_back(line);
            }
        }
        return sources_.table(request);
    }

    const PageSources& sources_;
    std::vector<std::string_view> lines_;
    std::size_t next_ = 0;
    std::string markdown_;  ///< Read, but not yet on the page.
    std::string anchor_;    ///< Of the latest heading below the title.
    Page page_;
};

}  // namespace

std::string textHtml(std::string_view markdown, const PageSources& sources) {
    constexpr std::string_view begin = "<p>", end = "</p>\n";
    const std::string html = htmlOf(trimmed(markdown), sources);
    if (!html.starts_with(begin) || html.find(end) != html.size() - end.size()) {
        throw std::invalid_argument("\"" + std::string(markdown) + "\" is no single paragraph");
    }
    return html.substr(begin.size(), html.size() - begin.size() - end.size());
}

Page readPage(const std::string& name, std::string_view markdown, const PageSources& sources) {
    const auto* const odd = std::ranges::find_if(markdown, [](unsigned char character) { return character > 0x7F; });
    if (odd != markdown.end()) {
        const auto linesAbove = std::count(markdown.begin(), odd, '\n');
        throw MarkupFault{name + ".md:" + std::to_string(linesAbove + 1) + ": the help is written in ASCII"};
    }
    return PageReader(name, markdown, sources).read();
}

}  // namespace calquo
