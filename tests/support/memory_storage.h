// A settings storage in memory that tests fill and look into.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "shell/settings.h"

namespace calquo {

class MemoryStorage : public SettingsStorage {
public:
    std::optional<SettingValue> read(const wchar_t* name) override {
        const auto value = values.find(name);
        return value == values.end() ? std::nullopt : std::optional(value->second);
    }
    void write(const wchar_t* name, const SettingValue& value) override {
        values[name] = value;
        written.emplace_back(name);
    }

    std::map<std::wstring, SettingValue> values;
    std::vector<std::wstring> written;  ///< The names in the order in which they were written.
};

}  // namespace calquo
