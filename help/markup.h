// The help's pages, written in Markdown, and their way to HTML. A library reads the Markdown; this adds what is ours:
// headings, blocks between "```" and comments, which stand at the margin, links and results.
//
// A page has one title, "# ", then sections and subsections. [text](page.md#section) leads to another page,
// [text](name:sin) to the entry of a name of the language. "{names}" stands for a number that the program knows; see
// tables.h.
//
// A block ```lines shows lines of the work area, "EXPRESSION = RESULT", and so do the columns "Line" and "Result" of a
// table and code in the text that holds " = ": tests evaluate them all. "<!-- calq: OPTION... -->" gives calq's options
// for the next block or table. A block ```console shows commands after "$ " with their output, ```text anything else.
// Any other block, ```KIND ARGUMENT, stands for a table made from the program's own ones; see tables.h.
//
// "<!-- index: TERM; TERM -->" leads from terms of the index to the heading above it.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {

/// A place that the contents or the index leads to.
struct Landmark {
    std::string text;  ///< Without markup.
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

/// What the pages get from elsewhere. All throw std::invalid_argument for what there is not.
struct PageSources {
    std::function<std::string(const TableRequest&)> table;  ///< The HTML of a table.
    std::function<std::string(std::string_view)>
        linkOfName;                                      ///< The entry of a name of the language, "PAGE.html#ANCHOR".
    std::function<std::size_t(std::string_view)> count;  ///< How many there are of something: "names".
};

/// Reads a page. Throws MarkupFault.
Page readPage(const std::string& name, std::string_view markdown, const PageSources& sources);

/// The HTML of a paragraph, without its tag. Throws std::invalid_argument for a text that is more or less than that.
std::string textHtml(std::string_view markdown, const PageSources& sources);

}  // namespace calquo
