// The help as a whole: its pages in the order of the contents, as files for a browser and for the compiler of the help
// file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "markup.h"
#include "tables.h"

namespace calquo {

/// A page and its depth in the table of contents.
struct Chapter {
    std::size_t depth = 0;
    Page page;
};

class Book {
public:
    /// Reads "contents.txt" and the pages that it names, "pages/NAME.md", in a folder. Each line of the contents is a
    /// page's name, indented by four blanks for each level. Throws MarkupFault, also when a name of the language has no
    /// entry on any page.
    explicit Book(const std::filesystem::path& folder);

    /// Writes each page as NAME.html into a folder, and the help compiler's project with the contents and the index as
    /// Calquo2.hhp, .hhc and .hhk. Throws std::ios_base::failure.
    void write(const std::filesystem::path& folder) const;

    /// Writes the pages for a web server into a folder, and search_index.js; search.js belongs beside it. Throws
    /// std::ios_base::failure.
    void writeSite(const std::filesystem::path& folder) const;

private:
    std::string searchIndex() const;
    std::string pageHtml(std::size_t chapter) const;
    std::string wayTo(std::size_t chapter) const;
    std::string contentsHtml() const;
    std::string projectText() const;
    std::string siteMapOfContents() const;
    std::string siteMapOfIndex() const;

    std::vector<Chapter> chapters_;
    Tables tables_;
};

}  // namespace calquo
