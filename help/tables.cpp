// Each table is made row by row from a constant table of the program; see tables.h.
#include "tables.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <stdexcept>

#include "engine/function_table.h"
#include "format/attributes.h"
#include "format/value_writer.h"
#include "hints/correction.h"
#include "hints/hints.h"
#include "hints/rules.h"
#include "html.h"
#include "keys.h"
#include "panels/button_action.h"
#include "panels/catalogue.h"
#include "units/named_constants.h"
#include "units/unit_table.h"
#include "widgets/widget_text.h"
#include "workarea/record.h"

namespace calquo {
namespace {

std::string code(std::string_view text) { return element("code", escaped(text)); }

std::string headRow(std::initializer_list<std::string_view> titles) {
    std::string cells;
    for (const std::string_view title : titles) {
        cells += element("th", title);
    }
    return element("tr", cells) + "\n";
}

std::string tableOf(std::string_view kind, const std::string& rows) {
    return "<table class=\"" + std::string(kind) + "\">\n" + rows + "</table>";
}

std::string resultOf(std::string_view expression, NumericFormat format) {
    Answer answer;
    evaluateInto(answer, expression, format);
    std::string result;
    appendAnswer(result, answer, ErrorPlace::Hidden);
    return result;
}

/// Whether a line gives another result every time. (Two random numbers agree in the five digits that are compared once
/// in 100000 times; four do not.)
bool isRandom(std::string_view expression) {
    const std::string first = resultOf(expression, defaultFormats[0]);
    for (int further = 0; further < 3; ++further) {
        if (resultOf(expression, defaultFormats[0]) != first) {
            return true;
        }
    }
    return false;
}

/// The cells of a line and its result, which tests evaluate.
std::string exampleCells(std::string_view expression) {
    if (expression.empty()) {
        return "<td></td><td></td>";
    }
    const std::string line = element("td class=\"line\"", code(expression));
    if (isRandom(expression)) {
        return line + element("td", "another one every time");
    }
    return line + element("td class=\"result\"", code(resultOf(expression, defaultFormats[0])));
}

/// A number with 15 significant digits, as the tables mean it.
std::string numberText(Real number) {
    NumericFormat format = defaultFormats[static_cast<std::size_t>(FormatKind::Automatic)];
    setField(format, field::significantDigits, 15);
    setField(format, field::digits, 15);
    setField(format, field::groupWhole, 0);
    setField(format, field::zeroOut, 0);
    std::string text;
    FormatReal(number, format, 10, text);
    return text;
}

/// What an attribute is under a format's default, in words.
std::string attributeText(const Attribute& attribute, NumericFormat word) {
    const std::uint32_t value = getField(word, attribute.field);
    switch (attribute.control) {
        case AttributeControl::CheckBox:
            return value != 0 ? "on" : "off";
        case AttributeControl::Selector:
            return std::string(truncationMethods.at(value));
        case AttributeControl::NumberField:
            break;
    }
    return std::to_string(value);
}

/// "Automatic", of the title "Automatic Format".
std::string nameOfKind(const FormatKindRow& kind) { return escaped(kind.title.substr(0, kind.title.find(" Format"))); }

std::string colorText(Color color) {
    return "rgb(" + std::to_string(color.red) + "," + std::to_string(color.green) + "," + std::to_string(color.blue) +
           ")";
}

/// What stands on a button: its label, or a word for its symbol.
std::string_view faceText(const PanelButton& button) {
    switch (button.symbol) {
        case Symbol::EraseBack:
            return "Back";
        case Symbol::EraseNext:
            return "Del";
        case Symbol::Clear:
            return "Clear";
        case Symbol::Undo:
            return "Undo";
        case Symbol::Redo:
            return "Redo";
        case Symbol::Enter:
            return "Enter";
        case Symbol::Space:
            return "Space";
        default:
            return button.label;
    }
}

/// The picture of a panel. Widths are in the panels' own unit, half the width of the narrowest button.
std::string panelPicture(const PanelEntry& panel) {
    constexpr int pixelsOfUnit = 20, borders = 2;
    std::string rows;
    for (const PanelRow& row : panel.rows) {
        std::string buttons;
        for (const PanelButton& button : row) {
            const int width = (button.extraHalfWidths + 2) * pixelsOfUnit - borders;
            const std::string style = "width:" + std::to_string(width) +
                                      "px;background-color:" + colorText(button.face) +
                                      ";color:" + colorText(textColorOn(button.face));
            buttons += element("span style=\"" + style + "\"", escaped(faceText(button)));
        }
        rows += element("div", buttons) + "\n";
    }
    return element("div class=\"panel\"", "\n" + rows) + "\n";
}

/// What a button makes of an empty line, the caret as "|"; empty when that is just what stands on it.
std::string insertedBy(const PanelEntry& panel, const PanelButton& button) {
    const ButtonAction action = actionOf(panel, button, {}, AngleOption::None);
    if (const auto* const around = std::get_if<SurroundCharacters>(&action)) {
        const std::string inserted = around->before + around->after;
        return inserted == button.label ? "" : std::string(inserted).insert(around->caret, 1, '|');
    }
    return {};
}

/// A panel's buttons with their meanings, and with what they insert where any of them inserts more than its label.
std::string panelTable(const PanelEntry& panel) {
    struct Row {
        std::string face, meaning, inserted;
    };
    std::vector<Row> rows;
    for (const PanelRow& row : panel.rows) {
        for (const PanelButton& button : row) {
            if (!button.description.empty()) {
                rows.push_back({code(faceText(button)), escaped(button.description), insertedBy(panel, button)});
            }
        }
    }
    if (rows.empty()) {
        return {};
    }
    const bool insertsMore =
        std::any_of(rows.begin(), rows.end(), [](const Row& row) { return !row.inserted.empty(); });
    std::string html = insertsMore ? headRow({"Button", "What it stands for", "What it inserts"})
                                   : headRow({"Button", "What it stands for"});
    for (const Row& row : rows) {
        std::string cells = element("td class=\"name\"", row.face) + element("td", row.meaning);
        if (insertsMore) {
            cells += element("td", row.inserted.empty() ? "" : code(row.inserted));
        }
        html += element("tr", cells) + "\n";
    }
    return tableOf("names", html) + "\n";
}

}  // namespace

/// Texts that a page gives for names. All must have been asked for in the end.
class Tables::Descriptions {
public:
    Descriptions(const Tables& tables, const TableRequest& request) : tables_(tables) {
        for (const std::string& row : request.rows) {
            const std::size_t end = std::min(row.find(' '), row.size());
            const std::size_t begin = std::min(row.find_first_not_of(' ', end), row.size());
            names_.push_back(row.substr(0, end));
            texts_[names_.back()] = row.substr(begin);
        }
    }

    /// The names in the order of the page.
    const std::vector<std::string>& names() const { return names_; }

    /// The HTML of the page's text for a name, or else of the table's.
    std::string of(std::string_view name, std::string_view described) {
        const auto row = texts_.find(std::string(name));
        if (row == texts_.end()) {
            return escaped(described);
        }
        std::string html = tables_.text(row->second);
        texts_.erase(row);
        return html;
    }

    void expectAllUsed() const {
        if (!texts_.empty()) {
            throw std::invalid_argument("\"" + texts_.begin()->first + "\" does not belong to this table");
        }
    }

private:
    const Tables& tables_;
    std::vector<std::string> names_;
    std::map<std::string, std::string> texts_;
};

std::string Tables::html(const TableRequest& request) {
    struct Row {
        std::string_view kind;
        std::string (Tables::*write)(const TableRequest&);
    };
    constexpr Row rows[] = {
        {"functions", &Tables::functions}, {"units", &Tables::units},     {"prefixes", &Tables::prefixTable},
        {"constants", &Tables::constants}, {"names", &Tables::names},     {"keys", &Tables::keys},
        {"formats", &Tables::formats},     {"samples", &Tables::samples}, {"panels", &Tables::panels},
        {"hints", &Tables::hints},
    };
    for (const Row& row : rows) {
        if (row.kind == request.kind) {
            return (this->*row.write)(request);
        }
    }
    throw std::invalid_argument("there is no block or table \"" + request.kind + "\"");
}

std::string Tables::entryOf(std::string_view name) const {
    const std::size_t index = lookup(name);
    if (index == 0) {
        throw std::invalid_argument("the language has no name \"" + std::string(name) + "\"");
    }
    return entries_[index].place;
}

std::string Tables::text(std::string_view markdown) const {
    return textHtml(
        markdown, {.table = {}, .linkOfName = [this](std::string_view name) { return entryOf(name); }, .count = count});
}

std::size_t Tables::count(std::string_view what) {
    if (what == "names") {
        return keywordCount();
    }
    if (what == "functions") {
        const auto secondNames = std::count_if(functionTable.begin(), functionTable.end(),
                                               [](const FunctionRow& row) { return !row.otherName.empty(); });
        return functionTable.size() + static_cast<std::size_t>(secondNames);
    }
    throw std::invalid_argument("there is no count of \"" + std::string(what) + "\"");
}

std::string Tables::entry(const TableRequest& request, std::string_view name, const std::string& explanation,
                          std::string_view arguments) {
    const std::string anchor = "name-" + inLowerCase(name);
    Entry& known = entries_[lookup(name)];
    const std::string place = request.page + ".html#" + anchor;
    if (!known.place.empty() && known.place != place) {
        throw std::invalid_argument("\"" + std::string(name) + "\" is explained in " + known.place + " already");
    }
    known = {place, explanation};
    std::string call(name);
    if (!arguments.empty()) {
        call.append("(").append(arguments).append(")");
    }
    return element("span id=\"" + anchor + "\"", code(call));
}

std::string Tables::functions(const TableRequest& request) {
    Descriptions descriptions(*this, request);
    std::string rows = headRow({"Function", "What it gives", "Line", "Result"});
    for (const std::string& name : descriptions.names()) {
        const auto* const function = std::find_if(functionTable.begin(), functionTable.end(),
                                                  [&](const FunctionRow& row) { return row.name == name; });
        if (function == functionTable.end()) {
            throw std::invalid_argument("there is no function \"" + name + "\"");
        }
        const std::string explanation = descriptions.of(name, function->description);
        std::string cells = entry(request, function->name, explanation, function->arguments);
        if (!function->otherName.empty()) {
            cells += "<br>" + entry(request, function->otherName, explanation, function->arguments);
        }
        cells = element("td class=\"name\"", cells) + element("td", explanation);
        rows += element("tr", cells + exampleCells(function->example)) + "\n";
    }
    return tableOf("names", rows);
}

std::string Tables::units(const TableRequest& request) {
    const auto* const base = std::ranges::find_if(unitTable, [&](const Unit& unit) {
        return unit.dimension == request.argument && unit.factor == 1 && unit.offset == 0;
    });
    if (base == unitTable.end()) {
        throw std::invalid_argument("no unit measures \"" + request.argument + "\"");
    }
    Descriptions descriptions(*this, request);
    std::string rows = headRow({"Unit", "What it is", "Size in " + code(base->name)});
    for (const Unit& unit : unitTable) {
        if (unit.dimension != request.argument) {
            continue;
        }
        const std::string explanation = descriptions.of(unit.name, unit.description);
        std::string cells = entry(request, unit.name, explanation);
        for (const Alias& alias : unit.aliases) {
            cells += "<br>" + entry(request, alias.name, explanation);
        }
        cells = element("td class=\"name\"", cells) + element("td", explanation);
        std::string size = numberText(unit.factor);
        if (unit.offset != 0) {
            size += ", shifted by " + numberText(unit.offset);
        }
        rows += element("tr", cells + element("td class=\"number\"", size)) + "\n";
    }
    descriptions.expectAllUsed();
    return tableOf("names", rows);
}

std::string Tables::prefixTable(const TableRequest& request) {
    Descriptions descriptions(*this, request);
    std::string rows = headRow({"Prefix", "Factor", "Factor written out"});
    for (const NamedConstant& prefix : prefixes) {
        const std::string power = resultOf("log(" + std::string(prefix.name) + ")", defaultFormats[0]);
        const std::string explanation = descriptions.of(prefix.name, prefix.description);
        rows += element("tr", element("td class=\"name\"", entry(request, prefix.name, explanation)) +
                                  element("td", "10<sup>" + escaped(power) + "</sup>") + element("td", explanation)) +
                "\n";
    }
    descriptions.expectAllUsed();
    return tableOf("names", rows);
}

std::string Tables::constants(const TableRequest& request) {
    Descriptions descriptions(*this, request);
    std::string rows = headRow({"Name", "What it is", "Line", "Result"});
    for (const NamedConstant& constant : namedConstants) {
        const std::string explanation = descriptions.of(constant.name, constant.description);
        rows += element("tr", element("td class=\"name\"", entry(request, constant.name, explanation)) +
                                  element("td", explanation) + exampleCells(constant.name)) +
                "\n";
    }
    descriptions.expectAllUsed();
    return tableOf("names", rows);
}

/// Whoever comes for one name goes on to its explanation.
constexpr std::string_view followName =
    "var row = document.getElementById(location.hash.substring(1));\n"
    "var links = row ? row.getElementsByTagName('a') : [];\n"
    "if (links.length == 1) { location.replace(links[0].href); }";

std::string Tables::names(const TableRequest&) {
    std::string letters, html;
    char letter = '\0';
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        const auto initial = static_cast<char>(std::toupper(static_cast<unsigned char>(nameOf(index).front())));
        if (initial != letter) {
            html += letter == '\0' ? "" : "</table>\n";
            letter = initial;
            const std::string heading(1, letter);
            letters += element("a href=\"#letter-" + heading + "\"", heading) + " ";
            html += element("h3 id=\"letter-" + heading + "\"", heading) + "\n<table class=\"names\">\n";
        }
        const auto& [place, explanation] = entries_[index];
        const std::string name = element("a href=\"" + place + "\"", code(nameOf(index)));
        html += element("tr", element("td class=\"name\" id=\"name-" + inLowerCase(nameOf(index)) + "\"", name) +
                                  element("td", escaped(argumentsOf(index))) + element("td", explanation)) +
                "\n";
    }
    return element("p class=\"letters\"", letters) + "\n" + html + "</table>\n" + element("script", followName);
}

std::string Tables::keys(const TableRequest& request) {
    std::string rows = headRow({"Key", "What it does"});
    for (const KeyRow& row : keyRows(request.rows)) {
        rows +=
            element("tr", element("td", element("strong", escaped(row.keys))) + element("td", text(row.explanation))) +
            "\n";
    }
    return tableOf("keys", rows);
}

std::string Tables::formats(const TableRequest&) {
    std::string titles = element("th", "Attribute") + element("th", "");
    for (const FormatKindRow& kind : formatKinds) {
        titles += element("th", nameOfKind(kind));
    }
    std::string rows = element("tr", titles) + "\n";
    for (const Attribute& attribute : attributes) {
        std::string cells = element("td", escaped(withoutMnemonic(attribute.label))) +
                            element("td", code(std::string_view(&attribute.letter, 1)));
        for (std::size_t kind = 0; kind < formatKinds.size(); ++kind) {
            const FormatKindRow& row = formatKinds[kind];
            const bool has = row.letters.find(attribute.letter) != std::string_view::npos &&
                             attributeOf(static_cast<FormatKind>(kind), attribute.letter) == &attribute;
            cells += element("td", has ? attributeText(attribute, row.defaultWord) : "");
        }
        rows += element("tr", cells) + "\n";
    }
    return tableOf("formats", rows);
}

std::string Tables::samples(const TableRequest& request) {
    std::string titles = element("th", "Format");
    for (const std::string& expression : request.rows) {
        titles += element("th", code(expression));
    }
    std::string rows = element("tr", titles) + "\n";
    for (const FormatKindRow& kind : formatKinds) {
        std::string cells = element("td", nameOfKind(kind));
        for (const std::string& expression : request.rows) {
            cells += element("td", code(resultOf(expression, kind.defaultWord)));
        }
        rows += element("tr", cells) + "\n";
    }
    return tableOf("formats", rows);
}

std::string Tables::hints(const TableRequest& request) {
    const bool ofRefused = request.argument == "refused";
    if (!ofRefused && request.argument != "accepted") {
        throw std::invalid_argument("hints are of \"accepted\" or \"refused\" lines");
    }
    std::string rows =
        element("tr", element("th", "When") + element("th", "For instance") + element("th", "The hint")) + "\n";
    const auto addRow = [&](const auto& row) {
        const std::string_view expression = expressionOf(row.example);
        Answer answer;
        if (!expression.empty()) {
            evaluateInto(answer, expression, defaultFormats[0]);
        }
        const std::string hint = hintFor(row.example, expression.empty() ? nullptr : &answer, {defaultFormats[0]});
        rows += element("tr", element("td", escaped(row.when)) + element("td", escaped(row.example)) +
                                  element("td", escaped(hint))) +
                "\n";
    };
    if (ofRefused) {
        std::ranges::for_each(corrections(), addRow);
    } else {
        std::ranges::for_each(hintRules(), addRow);
    }
    return tableOf("hints", rows);
}

std::string Tables::panels(const TableRequest& request) {
    std::string html;
    for (const PanelEntry& panel : panelCatalogue()) {
        if (withoutMnemonic(labelOf(panel.group)) != request.argument) {
            continue;
        }
        html +=
            element("h3", escaped(withoutMnemonic(panel.menuLabel))) + "\n" + panelPicture(panel) + panelTable(panel);
    }
    if (html.empty()) {
        throw std::invalid_argument("there is no submenu \"" + request.argument + "\"");
    }
    return html;
}

}  // namespace calquo
