// The help's pages as they are written: their examples give what they show, their links lead somewhere, and nothing
// that the program has is missing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "console/line_answerer.h"
#include "console/options.h"
#include "engine/characters.h"
#include "engine/keywords.h"
#include "panels/catalogue.h"
#include "shell/menu_tree.h"
#include "values/errors.h"

namespace calquo {
namespace {

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream) << path;
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The pages of the table of contents, by their names.
const std::map<std::string, std::string>& pages() {
    static const std::map<std::string, std::string> all = [] {
        std::map<std::string, std::string> result;
        std::istringstream names(contentOf(std::filesystem::path(CALQUO_HELP_SOURCES) / "contents.txt"));
        for (std::string name; names >> name;) {
            result[name] = contentOf(std::filesystem::path(CALQUO_HELP_PAGES) / (name + ".html"));
        }
        return result;
    }();
    return all;
}

/// What a reader sees of a piece of HTML.
std::string plainText(std::string_view html) {
    std::string text = std::regex_replace(std::string(html), std::regex("<[^>]*>"), "");
    for (const auto& [reference, character] :
         {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}}) {
        text = std::regex_replace(text, std::regex(reference), character);
    }
    return text;
}

/// Cuts off the start of the HTML, up to `end`, and returns it.
std::string_view takeUntil(std::string_view& html, std::string_view end) {
    const std::string_view piece = html.substr(0, html.find(end));
    html.remove_prefix(piece.size());
    return piece;
}

struct Example {
    std::string line;
    std::string result;  ///< Empty where none is shown.
    std::vector<std::string> options;
};

/// Every line of the work area that a page shows.
std::vector<Example> examplesOf(std::string_view html) {
    constexpr std::string_view calqMark = "<!-- calq:", lines = "<pre class=\"lines\">", line = "<td class=\"line\">",
                               result = "<td class=\"result\">", code = "<code>";
    std::vector<Example> examples;
    std::vector<std::string> options;
    const auto addRecord = [&](const std::string& record) {
        const std::size_t equals = record.find(" = ");
        if (equals != std::string::npos) {
            examples.push_back({record.substr(0, equals), record.substr(equals + 3), options});
        }
    };
    for (takeUntil(html, "<"); !html.empty(); html.remove_prefix(1), takeUntil(html, "<")) {
        if (html.starts_with(calqMark)) {
            std::istringstream words(std::string(takeUntil(html, "-->")).substr(calqMark.size()));
            options.assign(std::istream_iterator<std::string>(words), {});
        } else if (html.starts_with("</table>")) {
            options.clear();
        } else if (html.starts_with(lines)) {
            std::istringstream records(plainText(takeUntil(html, "</pre>")));
            for (std::string record; std::getline(records, record);) {
                addRecord(record);
            }
            options.clear();
        } else if (html.starts_with(line)) {
            Example example{plainText(takeUntil(html, "</td>")), "", options};
            html.remove_prefix(1);
            takeUntil(html, "<");
            if (html.starts_with(result)) {
                example.result = plainText(takeUntil(html, "</td>"));
            }
            examples.push_back(example);
        } else if (html.starts_with(code)) {
            addRecord(plainText(takeUntil(html, "</code>")));
        }
    }
    return examples;
}

TEST(Help, ExamplesGiveWhatIsShown) {
    std::size_t count = 0;
    for (const auto& [name, html] : pages()) {
        for (const Example& example : examplesOf(html)) {
            std::vector<const char*> words;
            for (const std::string& option : example.options) {
                words.push_back(option.c_str());
            }
            LineAnswerer answerer(parseOptions(words));
            std::string answer, differences;
            if (example.result.empty()) {
                EXPECT_TRUE(answerer.answer(example.line, answer)) << name << ": " << example.line << ": " << answer;
            } else {
                answerer.check(example.line + " = " + example.result, name, differences);
                EXPECT_EQ(differences, "");
            }
            ++count;
        }
    }
    EXPECT_GT(count, 300u);
}

TEST(Help, LinksLeadToPagesAndPlacesThatThereAre) {
    std::ptrdiff_t count = 0;
    for (const auto& [name, html] : pages()) {
        const std::regex link("href=\"(?:([^\"#]*)\\.html)?(?:#([^\"]*))?\"");
        for (std::sregex_iterator found(html.begin(), html.end(), link), end; found != end; ++found, ++count) {
            const auto page = pages().find((*found)[1].matched ? (*found)[1].str() : name);
            ASSERT_NE(page, pages().end()) << name << ": " << found->str();
            EXPECT_TRUE(!(*found)[2].matched ||
                        page->second.find("id=\"" + (*found)[2].str() + '"') != std::string::npos)
                << name << ": " << found->str();
        }
        const std::regex picture("<img src=\"([^\"]*)\"");
        for (std::sregex_iterator found(html.begin(), html.end(), picture), end; found != end; ++found) {
            EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(CALQUO_HELP_PAGES) / (*found)[1].str()))
                << name << ": " << found->str();
        }
        const std::regex any("href=\"(?!style.css)");
        count -= std::distance(std::sregex_iterator(html.begin(), html.end(), any), std::sregex_iterator());
    }
    EXPECT_EQ(count, 0) << "a link is none of the above";
}

TEST(Help, TheListOfNamesLeadsToTheEntryOfEach) {
    const std::string& list = pages().at("names");
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        const std::string name(nameOf(index));
        std::string link = ".html#name-" + name;
        std::transform(link.begin(), link.end(), link.begin(), lowerCase);
        EXPECT_NE(list.find(link + "\"><code>" + name + "</code></a>"), std::string::npos) << name;
    }
}

TEST(Help, EveryErrorHasASectionWithALineThatEndsInIt) {
    const std::string& html = pages().at("errors");
    for (std::uint32_t code = 0; code <= static_cast<std::uint32_t>(ErrorCode::DivisionByZero); ++code) {
        const std::string message = errorMessage(code);
        std::string_view section = html;
        takeUntil(section, ">" + message + "</h3>");
        ASSERT_FALSE(section.empty()) << message;
        section.remove_prefix(1);
        const auto examples = examplesOf(takeUntil(section, "<h"));
        // No line leads to these two; one that did would be a fault of the program.
        const bool hasExample = code != static_cast<std::uint32_t>(ErrorCode::InvalidExpression) &&
                                code != static_cast<std::uint32_t>(ErrorCode::InternalFault);
        const auto endsInIt = [&](const Example& example) { return example.result == "Error (" + message + ")"; };
        EXPECT_EQ(std::any_of(examples.begin(), examples.end(), endsInIt), hasExample) << message;
    }
}

/// A label without the mark of its key and its shortcut.
std::string shownLabel(std::string_view label) {
    std::string text(label.substr(0, label.find('\t')));
    std::erase(text, '&');
    return text;
}

void expectEntriesExplained(const std::vector<MenuEntry>& entries) {
    for (const MenuEntry& entry : entries) {
        const std::string& page = pages().at(findPanel(entry.identifier) != nullptr ? "panels" : "menus");
        EXPECT_NE(plainText(page).find(shownLabel(entry.label)), std::string::npos) << entry.label;
        expectEntriesExplained(entry.children);
    }
}

TEST(Help, EveryEntryOfTheMenuIsExplained) { expectEntriesExplained(mainMenu()); }

TEST(Help, EveryOptionOfCalqIsExplained) {
    const std::string page = plainText(pages().at("calq")), help = helpText();
    const std::regex option("--[a-z-]*[a-z]");
    EXPECT_NE(help.find("--word"), std::string::npos);
    for (std::sregex_iterator found(help.begin(), help.end(), option), end; found != end; ++found) {
        EXPECT_NE(page.find(found->str()), std::string::npos) << found->str();
    }
}

#ifndef _WIN32

/// What a command prints.
std::string outputOf(const std::string& command) {
    FILE* const pipe = popen(command.c_str(), "r");
    std::string output;
    for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe)) {
        output += static_cast<char>(character);
    }
    pclose(pipe);
    return output;
}

TEST(Help, CommandsPrintWhatIsShown) {
    const std::string folder = std::filesystem::path(CALQUO_PROGRAM).parent_path().string();
    std::size_t count = 0;
    for (const auto& [name, html] : pages()) {
        std::string_view rest = html;
        constexpr std::string_view block = "<pre class=\"console\">";
        for (takeUntil(rest, block); !rest.empty(); rest.remove_prefix(1), takeUntil(rest, block)) {
            std::string_view remaining = rest;
            const std::string shown = plainText(takeUntil(remaining, "</pre>"));
            std::istringstream lines(shown);
            std::string printed;
            for (std::string line; std::getline(lines, line);) {
                if (line.starts_with("$ ")) {
                    printed += line + "\n" + outputOf("PATH='" + folder + "':$PATH; " + line.substr(2));
                    ++count;
                }
            }
            EXPECT_EQ(printed, shown) << name;
        }
    }
    EXPECT_GT(count, 5u);
}

#endif

}  // namespace
}  // namespace calquo
