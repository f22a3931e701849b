// The settings' place in the registry of the current user.
#pragma once

#include <string>

#include "shell/settings.h"
#include "widgets/handles.h"

struct HKEY__;

namespace calquo {

using RegistryKey = HKEY__*;
void closeRegistryKey(RegistryKey key);
using RegistryKeyOwner = HandleOwner<RegistryKey, closeRegistryKey>;

/// "Software\calquo.example\Calquo\2.0": where the program keeps its settings.
std::wstring settingsKeyPath();

class RegistryStorage : public SettingsStorage {
public:
    /// Opens the key at a path below the current user's hive, making the levels that are missing. When that fails,
    /// nothing is ever found and nothing is kept.
    explicit RegistryStorage(const std::wstring& keyPath = settingsKeyPath());

    std::optional<SettingValue> read(const wchar_t* name) override;
    void write(const wchar_t* name, const SettingValue& value) override;

private:
    RegistryKeyOwner key_;
};

}  // namespace calquo
