// Joins the keys of the program with those that only a page names: the system's and the control's own.
#include "keys.h"

#include <algorithm>
#include <stdexcept>

#include "shell/sheet_commands.h"

namespace calquo {

std::vector<KeyRow> keyRows(const std::vector<std::string>& rows) {
    std::vector<KeyRow> keys;
    for (const SheetCommand& command : sheetCommands()) {
        if (command.stroke.key != 0) {
            keys.push_back({keyText(command.stroke), std::string(command.explanation)});
        }
    }
    for (const std::string& row : rows) {
        const std::size_t colon = row.find(": ");
        if (colon == std::string::npos || std::ranges::find(keys, row.substr(0, colon), &KeyRow::keys) != keys.end()) {
            throw std::invalid_argument("no row of a new key: \"" + row + "\"");
        }
        keys.push_back({row.substr(0, colon), row.substr(colon + 2)});
    }
    return keys;
}

}  // namespace calquo
