// Reading the pages, framing them, and describing them to the help compiler; see book.h.
#include "book.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "html.h"
#include "values/program.h"

namespace calquo {
namespace {

constexpr std::size_t blanksPerLevel = 4;

/// The first page of the contents is the one that opens.
constexpr std::string_view contentsMark = "@contents";

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (!stream) {
        throw MarkupFault{path.string() + ": cannot be read"};
    }
    return text.str();
}

void writeFile(const std::filesystem::path& path, const std::string& text) {
    std::ofstream stream;
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    stream.open(path, std::ios::binary);
    stream << text;
    stream.close();
}

std::string fileOf(const Page& page) { return page.name + ".html"; }

std::string linkTo(const Page& page) { return "<a href=\"" + fileOf(page) + "\">" + escaped(page.title) + "</a>"; }

/// The files of the pictures that are shown on a page.
std::set<std::string> picturesOn(const Page& page) {
    std::set<std::string> pictures;
    constexpr std::string_view tag = "<img src=\"";
    for (std::size_t place = 0; (place = page.body.find(tag, place)) != std::string::npos;) {
        place += tag.size();
        pictures.insert(page.body.substr(place, page.body.find('"', place) - place));
    }
    return pictures;
}

std::string siteMapItem(const std::string& text, const std::string& target) {
    return "<LI> <OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + escaped(text) +
           "\"><param name=\"Local\" value=\"" + target + "\"></OBJECT>\n";
}

std::string siteMap(const std::string& items) {
    return "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML>\n<HEAD>\n<!-- Sitemap 1.0 -->\n</HEAD>\n<BODY>\n"
           "<UL>\n" +
           items + "</UL>\n</BODY>\n</HTML>\n";
}

/// A list of the help compiler, opened and closed level by level.
class NestedList {
public:
    void add(std::size_t depth, const std::string& item) {
        for (; depth_ < depth; ++depth_) {
            text_ += "<UL>\n";
        }
        close(depth);
        text_ += item;
    }
    std::string text() {
        close(0);
        return text_;
    }

private:
    void close(std::size_t depth) {
        for (; depth_ > depth; --depth_) {
            text_ += "</UL>\n";
        }
    }

    std::size_t depth_ = 0;
    std::string text_;
};

}  // namespace

Book::Book(const std::filesystem::path& folder) {
    const PageSources sources{
        .table =
            [this](const TableRequest& request) {
                return request.kind == "contents" ? std::string(contentsMark) : tables_.html(request);
            },
        .linkOfName = [this](std::string_view name) { return tables_.entryOf(name); },
        .count = &Tables::count,
    };
    // In the second round every entry is known, and can be linked to.
    for (int round = 0; round < 2; ++round) {
        chapters_.clear();
        std::istringstream contents(contentOf(folder / "contents.txt"));
        for (std::string line; std::getline(contents, line);) {
            const std::size_t indent = line.find_first_not_of(' ');
            if (indent != std::string::npos) {
                const std::string name = line.substr(indent);
                const std::string markup = contentOf(folder / "pages" / (name + ".md"));
                chapters_.push_back({indent / blanksPerLevel, readPage(name, markup, sources)});
            }
        }
    }
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        if (tables_.entryOf(nameOf(index)).empty()) {
            throw MarkupFault{"no page explains the name \"" + std::string(nameOf(index)) + "\""};
        }
    }
}

void Book::write(const std::filesystem::path& folder) const {
    std::filesystem::create_directories(folder);
    for (std::size_t chapter = 0; chapter < chapters_.size(); ++chapter) {
        writeFile(folder / fileOf(chapters_[chapter].page), pageHtml(chapter));
    }
    writeFile(folder / "Calquo2.hhp", projectText());
    writeFile(folder / "Calquo2.hhc", siteMapOfContents());
    writeFile(folder / "Calquo2.hhk", siteMapOfIndex());
}

std::string Book::pageHtml(std::size_t chapter) const {
    const Page& page = chapters_[chapter].page;
    std::string html =
        "<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\">\n"
        "<html lang=\"en\">\n<head>\n"
        "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=us-ascii\">\n"
        "<meta http-equiv=\"X-UA-Compatible\" content=\"IE=edge\">\n"
        "<meta name=\"viewport\" content=\"width=device-width\">\n<title>";
    html += escaped(page.title);
    html += "</title>\n<link rel=\"stylesheet\" type=\"text/css\" href=\"style.css\">\n</head>\n<body>\n";

    if (const std::string way = wayTo(chapter); !way.empty()) {
        html += "<div class=\"way\">" + way + escaped(page.title) + "</div>\n";
    }

    std::string body = page.body;
    const std::size_t contents = body.find(contentsMark);
    if (contents != std::string::npos) {
        body.replace(contents, contentsMark.size(), contentsHtml());
    }
    html += body;

    html += "<div class=\"turn\">";
    if (chapter > 0) {
        html += "&lsaquo; " + linkTo(chapters_[chapter - 1].page);
    }
    if (chapter > 0 && chapter + 1 < chapters_.size()) {
        html += " | ";
    }
    if (chapter + 1 < chapters_.size()) {
        html += linkTo(chapters_[chapter + 1].page) + " &rsaquo;";
    }
    return html + "</div>\n</body>\n</html>\n";
}

/// Links from the first page down to the one above a chapter's.
std::string Book::wayTo(std::size_t chapter) const {
    std::string way;
    std::size_t below = chapters_[chapter].depth;
    for (std::size_t before = chapter; before-- > 0;) {
        if (chapters_[before].depth < below || before == 0) {
            way.insert(0, linkTo(chapters_[before].page) + " &rsaquo; ");
            below = chapters_[before].depth;
        }
    }
    return way;
}

std::string Book::contentsHtml() const {
    std::string html = "<div class=\"contents\">\n";
    for (std::size_t chapter = 1; chapter < chapters_.size(); ++chapter) {
        const auto& [depth, page] = chapters_[chapter];
        html += "<div class=\"level" + std::to_string(depth) + "\">" + linkTo(page) + "</div>\n";
    }
    return html + "</div>";
}

std::string Book::projectText() const {
    const std::string title = std::string(programName) + " Help";
    const std::string start = fileOf(chapters_.front().page);
    std::string text =
        "[OPTIONS]\nCompatibility=1.1 or later\nCompiled file=Calquo2.chm\nContents file=Calquo2.hhc\n"
        "Index file=Calquo2.hhk\nDefault Window=main\nDefault topic=" +
        start + "\nTitle=" + title + "\nFull-text search=Yes\nLanguage=0x409 English (United States)\n\n";
    // Contents, index, search and favourites in 290 pixels beside the page, and the usual buttons above.
    text += "[WINDOWS]\nmain=\"" + title + "\",\"Calquo2.hhc\",\"Calquo2.hhk\",\"" + start + "\",\"" + start +
            "\",,,,,0x63520,290,0x10384e,[80,60,1120,780],,,,,,,0\n\n[FILES]\n";
    std::set<std::string> pictures;
    for (const Chapter& chapter : chapters_) {
        text += fileOf(chapter.page) + "\n";
        pictures.merge(picturesOn(chapter.page));
    }
    text += "style.css\n";
    for (const std::string& picture : pictures) {
        text += picture + "\n";
    }
    return text;
}

std::string Book::siteMapOfContents() const {
    NestedList list;
    for (const auto& [depth, page] : chapters_) {
        list.add(depth, siteMapItem(page.title, fileOf(page)));
        for (const Landmark& section : page.sections) {
            list.add(depth + 1, siteMapItem(section.text, fileOf(page) + "#" + section.anchor));
        }
    }
    return siteMap(list.text());
}

std::string Book::siteMapOfIndex() const {
    std::vector<std::pair<std::string, std::string>> terms;
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        terms.emplace_back(nameOf(index), tables_.entryOf(nameOf(index)));
    }
    for (const auto& [depth, page] : chapters_) {
        for (const Landmark& term : page.indexTerms) {
            terms.emplace_back(term.text, fileOf(page) + (term.anchor.empty() ? "" : "#" + term.anchor));
        }
    }
    std::sort(terms.begin(), terms.end(), [](const auto& a, const auto& b) {
        return std::pair(inLowerCase(a.first), a.second) < std::pair(inLowerCase(b.first), b.second);
    });
    std::string items;
    for (const auto& [term, target] : terms) {
        items += siteMapItem(term, target);
    }
    return siteMap(items);
}

}  // namespace calquo
