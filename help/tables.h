// The tables of the help's pages that are made from the program's own: names with their examples' results, units,
// output formats, button panels.
//
// functions             rows "NAME TEXT": the functions of these names, explained by the texts
// units DIMENSION       all units of a dimension ("Length"); rows "NAME TEXT" replace descriptions
// prefixes, constants   the other names; rows as above
// names                 every name of the language, with a link to its entry
// keys                  the keys of the window; rows "KEYS: TEXT" add others
// formats               the attributes of the output formats and what they are at first
// samples               rows "EXPRESSION": their results in every output format
// hints KIND            what is said about lines that are "accepted", or "refused", with an example for each occasion
// panels GROUP          the panels of a submenu ("Keypads"), their buttons and what these insert
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/keywords.h"
#include "markup.h"

namespace calquo {

class Tables {
public:
    /// The HTML of a table. Every name that it explains gets its entry on the page. Throws std::invalid_argument for a
    /// kind, a name or anything else that there is not, and for a name with entries on two pages.
    std::string html(const TableRequest& request);

    /// "PAGE.html#ANCHOR" of a name's entry; empty as long as no table has explained it. Throws std::invalid_argument
    /// when the language has no such name.
    std::string entryOf(std::string_view name) const;

    /// How many "names" the language has, how many of them are "functions". Throws std::invalid_argument for anything
    /// else.
    static std::size_t count(std::string_view what);

private:
    class Descriptions;

    std::string functions(const TableRequest& request);
    std::string units(const TableRequest& request);
    std::string prefixTable(const TableRequest& request);
    std::string constants(const TableRequest& request);
    std::string names(const TableRequest& request);
    std::string keys(const TableRequest& request);
    std::string formats(const TableRequest& request);
    std::string samples(const TableRequest& request);
    std::string panels(const TableRequest& request);
    std::string hints(const TableRequest& request);

    /// Where a name is explained, and how.
    struct Entry {
        std::string place;  ///< "PAGE.html#ANCHOR"
        std::string explanation;
    };

    /// Makes the entry of a name on the request's page; returns the name as code with its anchor.
    std::string entry(const TableRequest& request, std::string_view name, const std::string& explanation,
                      std::string_view arguments = {});
    std::string text(std::string_view markdown) const;

    std::vector<Entry> entries_ = std::vector<Entry>(keywordCount() + 1);  ///< By the names' indices.
};

}  // namespace calquo
