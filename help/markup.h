// The markup of the help's pages, a part of Markdown, and its way to HTML.
//
// "# " begins the page's title, "## " a section, "### " a subsection. Paragraphs, lists ("- " or "1. ", further lines
// indented), tables ("| a | b |" with a row of dashes below the first) and blocks between "```" stand apart by empty
// lines. Inside a line: `code`, **bold**, *slanted*, [text](page.md#section), [text](name:sin) for the entry of a name,
// ![text](picture.png); a backslash takes its meaning from the character behind it.
//
// A block ```lines shows lines of the work area, "EXPRESSION = RESULT", and so do the columns "Line" and "Result" of a
// table and code in the text that holds " = ": tests evaluate them all. "<!-- calq: OPTION... -->" gives calq's options
// for the next block or table. A block ```console shows commands behind "$ " with their output, ```text anything else.
//
// "<!-- index: TERM; TERM -->" leads from terms of the index to the heading above it. "@KIND ARGUMENT", with further
// lines up to an empty one, stands for a table made from the program's own ones; see tables.h.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {

/// A place that the contents or the index leads to.
struct Landmark {
    std::string text;  ///< Plain ASCII without markup.
    std::string anchor;
};

struct Page {
    std::string name;  ///< That of its files, without their endings.
    std::string title;
    std::string body;  ///< HTML in ASCII, from the title on.
    std::vector<Landmark> sections{};
    std::vector<Landmark> indexTerms{};
};

/// What is wrong with a page, and where: "FILE:LINE: ...".
struct MarkupFault {
    std::string message;
};

/// The table that a page asks for.
struct TableRequest {
    std::string page;  ///< Its name.
    std::string kind;
    std::string argument;
    std::vector<std::string> rows{};
};

/// What the pages get from elsewhere. Both throw std::invalid_argument for what there is not.
struct PageSources {
    std::function<std::string(const TableRequest&)> table;  ///< The HTML of a table.
    std::function<std::string(std::string_view)>
        linkOfName;  ///< The entry of a name of the language, "PAGE.html#ANCHOR".
};

/// Reads a page's markup. Throws MarkupFault.
Page readPage(const std::string& name, std::string_view markup, const PageSources& sources);

/// The HTML of a piece of text with its markup. Throws std::invalid_argument for a mark without its end.
std::string textHtml(std::string_view text, const PageSources& sources);

/// Plain text as HTML in ASCII; UTF-8 becomes character references.
std::string escaped(std::string_view text);

/// A line of the work area as HTML, its result in the style that it has there.
std::string recordHtml(std::string_view record);

}  // namespace calquo
