// Pages piece by piece, as the Markdown reader hands them over; see markup.h.
#include "markup.h"

#include <md4c.h>

#include <algorithm>
#include <cctype>
#include <exception>
#include <functional>
#include <iterator>
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

std::string_view viewOf(const MD_ATTRIBUTE& attribute) { return {attribute.text, attribute.size}; }

/// What the library has read of a page so far: the blocks and spans that are open, outermost first.
class PageReader {
public:
    PageReader(const std::string& name, std::string_view markdown, const PageSources& sources)
        : sources_(sources), markdown_(markdown), latest_(markdown.data()) {
        page_.name = name;
    }

    /// Reads everything. Throws std::invalid_argument.
    void read() {
        MD_PARSER parser{};
        parser.flags = MD_FLAG_TABLES | MD_FLAG_NOHTMLSPANS | MD_FLAG_NOINDENTEDCODEBLOCKS;
        parser.enter_block = [](MD_BLOCKTYPE type, void*, void* self) {
            return call(self, &PageReader::openBlock, type);
        };
        parser.enter_span = [](MD_SPANTYPE, void*, void* self) { return call(self, &PageReader::open); };
        parser.leave_block = [](MD_BLOCKTYPE type, void* detail, void* self) {
            return call(self, &PageReader::closeBlock, type, detail);
        };
        parser.leave_span = [](MD_SPANTYPE type, void* detail, void* self) {
            return call(self, &PageReader::closeSpan, type, detail);
        };
        parser.text = [](MD_TEXTTYPE type, const MD_CHAR* text, MD_SIZE size, void* self) {
            return call(self, &PageReader::addText, type, std::string_view(text, size));
        };
        if (md_parse(markdown_.data(), static_cast<MD_SIZE>(markdown_.size()), &parser, this) != 0) {
            if (fault_) {
                std::rethrow_exception(fault_);
            }
            throw std::invalid_argument("the Markdown cannot be read");
        }
    }

    Page page() {
        page_.body = std::move(open_.front().html);
        return std::move(page_);
    }

    /// The line that is being read.
    std::size_t line() const { return 1 + static_cast<std::size_t>(std::count(markdown_.data(), latest_, '\n')); }

private:
    struct Piece {
        std::string html;
        std::string plain;  ///< The text without its markup.
    };

    /// A step of the reading. What it throws waits until the library, which is written in C, has returned.
    template <typename Step, typename... Arguments>
    static int call(void* self, Step step, const Arguments&... arguments) {
        auto& reader = *static_cast<PageReader*>(self);
        try {
            std::invoke(step, reader, arguments...);
            return 0;
        } catch (...) {
            reader.fault_ = std::current_exception();
            return -1;
        }
    }

    void open() { open_.emplace_back(); }

    void openBlock(MD_BLOCKTYPE type) {
        open();
        if (type == MD_BLOCK_TABLE) {
            head_.clear();
        } else if (type == MD_BLOCK_TR) {
            column_ = 0;
        }
    }

    Piece takeLast() {
        Piece piece = std::move(open_.back());
        open_.pop_back();
        return piece;
    }

    void append(const std::string& html) { open_.back().html.append(html).append("\n"); }

    void closeBlock(MD_BLOCKTYPE type, const void* detail) {
        const auto [html, plain] = takeLast();
        switch (type) {
            case MD_BLOCK_DOC:
            case MD_BLOCK_THEAD:
            case MD_BLOCK_TBODY:
                open_.back().html += html;
                break;
            case MD_BLOCK_H:
                addHeading(static_cast<const MD_BLOCK_H_DETAIL*>(detail)->level, plain, html);
                break;
            case MD_BLOCK_CODE:
                addFenced(viewOf(static_cast<const MD_BLOCK_CODE_DETAIL*>(detail)->info), plain);
                break;
            case MD_BLOCK_HTML:
                for (const std::string_view comment : split(trimmed(plain), '\n')) {
                    addComment(comment);
                }
                break;
            case MD_BLOCK_TH:
                head_.push_back(plain);
                open_.back().html += element("th", html);
                break;
            case MD_BLOCK_TD:
                addCell(html);
                break;
            default:
                addElement(type, html);
        }
    }

    /// A block that is an element of HTML, with nothing of ours.
    void addElement(MD_BLOCKTYPE type, const std::string& html) {
        struct Row {
            MD_BLOCKTYPE type;
            std::string_view tag;
            bool holdsBlocks;
        };
        constexpr Row rows[] = {
            {MD_BLOCK_P, "p", false},   {MD_BLOCK_UL, "ul", true},       {MD_BLOCK_OL, "ol", true},
            {MD_BLOCK_LI, "li", false}, {MD_BLOCK_TABLE, "table", true}, {MD_BLOCK_TR, "tr", false},
        };
        const auto* const row = std::ranges::find(rows, type, &Row::type);
        if (row == std::end(rows)) {
            throw std::invalid_argument("the help has no quotations and no rules");
        }
        append(element(row->tag, (row->holdsBlocks ? "\n" : "") + html));
    }

    void closeSpan(MD_SPANTYPE type, const void* detail) {
        const auto [html, plain] = takeLast();
        Piece& outer = open_.back();
        outer.plain += plain;
        switch (type) {
            case MD_SPAN_EM:
                outer.html += element("em", html);
                break;
            case MD_SPAN_STRONG:
                outer.html += element("strong", html);
                break;
            case MD_SPAN_CODE:
                outer.html += element("code", recordHtml(plain));
                break;
            case MD_SPAN_A: {
                const std::string_view target = viewOf(static_cast<const MD_SPAN_A_DETAIL*>(detail)->href);
                outer.html += element("a href=\"" + linkTo(target) + "\"", html);
                break;
            }
            case MD_SPAN_IMG: {
                const std::string_view source = viewOf(static_cast<const MD_SPAN_IMG_DETAIL*>(detail)->src);
                outer.html += "<img src=\"" + escaped(source) + "\" alt=\"" + escaped(plain) + "\">";
                break;
            }
            default:
                throw std::invalid_argument("the help has no such text");
        }
    }

    void addText(MD_TEXTTYPE type, std::string_view text) {
        const bool isOfPage = !std::less<>()(text.data(), markdown_.data()) &&
                              std::less<>()(text.data(), markdown_.data() + markdown_.size());
        const bool isEscaped = isOfPage && text.data() != markdown_.data() && text.data()[-1] == '\\';
        latest_ = isOfPage ? text.data() : latest_;
        Piece& piece = open_.back();
        if (type == MD_TEXT_CODE || type == MD_TEXT_HTML) {
            piece.plain += text;  // The end of the block or span makes its HTML.
            return;
        }
        if (type == MD_TEXT_SOFTBR || type == MD_TEXT_BR) {
            text = " ";
        } else if (!isEscaped && (text.find_first_of("*`|") != text.npos || text.find("](") != text.npos)) {
            throw std::invalid_argument("a mark has no counterpart in \"" + std::string(text) + "\"");
        }
        const std::string counted = withCounts(text);
        piece.plain += counted;
        piece.html += escaped(counted);
    }

    /// "{names}" becomes the number of names.
    std::string withCounts(std::string_view text) const {
        std::string counted(text);
        for (std::size_t begin = 0; (begin = counted.find('{', begin)) != std::string::npos;) {
            const std::size_t end = std::min(counted.find('}', begin), counted.size() - 1);
            const std::string what = counted.substr(begin + 1, end - begin - 1);
            counted.replace(begin, end - begin + 1, std::to_string(sources_.count(what)));
        }
        return counted;
    }

    void addHeading(unsigned level, const std::string& plain, const std::string& html) {
        if (level > 3 || plain.empty() || (level == 1) != page_.title.empty()) {
            throw std::invalid_argument("a page has one title, then sections and subsections");
        }
        const std::string tag = "h" + std::to_string(level);
        if (level == 1) {
            page_.title = plain;
            append(element(tag, html));
            return;
        }
        anchor_ = anchorOf(plain);
        append(element(tag + " id=\"" + anchor_ + "\"", html));
        if (level == 2) {
            page_.sections.push_back({plain, anchor_});
        }
    }

    void addComment(std::string_view comment) {
        constexpr std::string_view indexMark = "<!-- index:", calqMark = "<!-- calq:", end = "-->";
        if (comment.starts_with(calqMark) && comment.ends_with(end)) {
            append(std::string(comment));
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

    void addFenced(std::string_view info, std::string_view content) {
        if (content.ends_with('\n')) {
            content.remove_suffix(1);
        }
        const std::vector<std::string_view> lines = split(content, '\n');
        if (info != "lines" && info != "console" && info != "text") {
            append(tableHtml(info, lines));
            return;
        }
        std::string html;
        for (const std::string_view line : lines) {
            html += (info == "lines" ? recordHtml(line) : escaped(line)) + "\n";
        }
        append(element("pre class=\"" + std::string(info) + "\"", html));
    }

    /// The table that a block asks for. A line that is indented goes on with the row above it.
    std::string tableHtml(std::string_view info, const std::vector<std::string_view>& lines) const {
        const std::size_t blank = std::min(info.find(' '), info.size());
        TableRequest request{page_.name, std::string(info.substr(0, blank)), std::string(trimmed(info.substr(blank)))};
        for (const std::string_view line : lines) {
            if (line.starts_with(' ') && !request.rows.empty()) {
                request.rows.back().append(" ").append(trimmed(line));
            } else if (!line.empty()) {
                request.rows.emplace_back(line);
            }
        }
        return sources_.table(request);
    }

    void addCell(const std::string& html) {
        const std::string& title = head_.at(column_++);
        const std::string_view tag = title == "Line"     ? "td class=\"line\""
                                     : title == "Result" ? "td class=\"result\""
                                                         : "td";
        open_.back().html += element(tag, html);
    }

    /// "page.md#section" as the pages know each other, or the entry of a name.
    std::string linkTo(std::string_view target) const {
        constexpr std::string_view nameMark = "name:", ending = ".md";
        if (target.starts_with(nameMark)) {
            return sources_.linkOfName(target.substr(nameMark.size()));
        }
        std::string link(target);
        const std::size_t found = link.find(ending);
        return found == std::string::npos ? link : link.replace(found, ending.size(), ".html");
    }

    const PageSources& sources_;
    std::string_view markdown_;
    const char* latest_;  ///< The latest text of the page that was read.
    std::vector<Piece> open_ = std::vector<Piece>(1);
    std::vector<std::string> head_;  ///< The titles of the table's columns.
    std::size_t column_ = 0;
    std::string anchor_;  ///< Of the latest heading below the title.
    Page page_;
    std::exception_ptr fault_;
};

}  // namespace

std::string recordHtml(std::string_view record) {
    const std::size_t result = std::min(record.find(" = "), record.size());
    const std::string expression = escaped(record.substr(0, result));
    return result == record.size() ? expression : expression + element("b", escaped(record.substr(result)));
}

std::string textHtml(std::string_view markdown, const PageSources& sources) {
    constexpr std::string_view begin = "<p>", end = "</p>\n";
    PageReader reader("", markdown, sources);
    reader.read();
    const std::string html = reader.page().body;
    if (!html.starts_with(begin) || html.find(end) != html.size() - end.size()) {
        throw std::invalid_argument("\"" + std::string(markdown) + "\" is no single paragraph");
    }
    return html.substr(begin.size(), html.size() - begin.size() - end.size());
}

Page readPage(const std::string& name, std::string_view markdown, const PageSources& sources) {
    PageReader reader(name, markdown, sources);
    try {
        reader.read();
    } catch (const std::invalid_argument& fault) {
        throw MarkupFault{name + ".md:" + std::to_string(reader.line()) + ": " + fault.what()};
    }
    Page page = reader.page();
    if (page.title.empty()) {
        throw MarkupFault{name + ".md:1: the page has no title"};
    }
    return page;
}

}  // namespace calquo
