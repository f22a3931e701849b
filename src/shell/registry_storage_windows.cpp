// Reading and writing values of one registry key.
#include "shell/registry_storage.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "values/program.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// A value's bytes as the registry gives them, with their type.
struct RawValue {
    DWORD type = REG_NONE;
    SettingBlock data;
};

std::optional<RawValue> readRaw(HKEY key, const wchar_t* name) {
    RawValue value;
    DWORD size = 0;
    if (RegQueryValueExW(key, name, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    value.data.resize(size);
    // Another program may have changed the value between the two calls; one that has grown counts as unreadable.
    if (RegQueryValueExW(key, name, nullptr, &value.type, value.data.data(), &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    value.data.resize(size);
    return value;
}

/// The characters before the first zero, or all of them: a stored text may lack its end, or stop within a character.
std::wstring textOf(const SettingBlock& data) {
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    text.erase(std::find(text.begin(), text.end(), L'\0'), text.end());
    return text;
}

void writeRaw(HKEY key, const wchar_t* name, DWORD type, const void* data, std::size_t size) {
    RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
}

RegistryKey openKey(const std::wstring& path) {
    HKEY key = nullptr;
    const LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                           KEY_ALL_ACCESS, nullptr, &key, nullptr);
    return status == ERROR_SUCCESS ? key : nullptr;
}

}  // namespace

void closeRegistryKey(RegistryKey key) { RegCloseKey(key); }

std::wstring settingsKeyPath() {
    std::wstring path = L"Software";
    for (const std::string_view level : {makersSite, programName, programSeries}) {
        path += L'\\';
        path.append(level.begin(), level.end());
    }
    return path;
}

RegistryStorage::RegistryStorage(const std::wstring& keyPath) : key_(openKey(keyPath)) {}

std::optional<SettingValue> RegistryStorage::read(const wchar_t* name) {
    const std::optional<RawValue> value = key_ ? readRaw(key_.get(), name) : std::nullopt;
    if (!value) {
        return std::nullopt;
    }
    std::uint32_t number = 0;
    switch (value->type) {
        case REG_DWORD:
            if (value->data.size() != sizeof number) {
                return std::nullopt;
            }
            std::memcpy(&number, value->data.data(), sizeof number);
            return number;
        case REG_BINARY:
            return value->data;
        case REG_SZ:
            return textOf(value->data);
        default:
            return std::nullopt;
    }
}

void RegistryStorage::write(const wchar_t* name, const SettingValue& value) {
    if (!key_) {
        return;
    }
    if (const auto* const number = std::get_if<std::uint32_t>(&value)) {
        writeRaw(key_.get(), name, REG_DWORD, number, sizeof *number);
    } else if (const auto* const block = std::get_if<SettingBlock>(&value)) {
        writeRaw(key_.get(), name, REG_BINARY, block->data(), block->size());
    } else if (const auto* const text = std::get_if<std::wstring>(&value)) {
        writeRaw(key_.get(), name, REG_SZ, text->c_str(), (text->size() + 1) * sizeof(wchar_t));
    }
}

}  // namespace calquo
