// Settings in the real registry, below a key of the tests' own.
#include "shell/registry_storage.h"

#include <gtest/gtest.h>

#include <array>

#include "widgets/windows_api.h"

namespace calquo {
namespace {

const std::wstring topKey = L"Software\\calquo settings test";
const std::wstring testKey = topKey + L"\\Name\\2.0";

class RegistryStorageTest : public testing::Test {
protected:
    RegistryStorageTest() { RegDeleteTreeW(HKEY_CURRENT_USER, topKey.c_str()); }
    ~RegistryStorageTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, topKey.c_str()); }

    /// Stores a value without the class under test.
    static void store(const wchar_t* name, DWORD type, const std::vector<std::uint8_t>& data) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, testKey.c_str(), name, type, data.data(),
                                  static_cast<DWORD>(data.size())),
                  ERROR_SUCCESS);
    }
};

TEST_F(RegistryStorageTest, ReadsBackWhatItWrote) {
    const SettingValue values[] = {
        0u,
        0xFFFFFFFFu,
        SettingBlock{},
        SettingBlock{0, 255, 0},
        SettingBlock(100000, 7),
        L".",
        L"",
        L"Z:\\\x4E2D\xD83D\xDE00.rtf",
        std::wstring(5000, L'a'),
    };
    for (const SettingValue& value : values) {
        RegistryStorage(testKey).write(L"Some value", value);
        const auto found = RegistryStorage(testKey).read(L"Some value");
        EXPECT_TRUE(found == value) << "value " << &value - values;
    }
}

TEST_F(RegistryStorageTest, StoresTheTypesOfTheSystem) {
    struct Row {
        SettingValue value;
        DWORD type;
        SettingBlock data;
    };
    const Row rows[] = {{0x01020304u, REG_DWORD, {4, 3, 2, 1}},
                        {SettingBlock{9, 8}, REG_BINARY, {9, 8}},
                        {L",", REG_SZ, {',', 0, 0, 0}}};
    for (const Row& row : rows) {
        RegistryStorage(testKey).write(L"Some value", row.value);
        std::array<std::uint8_t, 16> data{};
        DWORD type = 0, size = data.size();
        ASSERT_EQ(
            RegGetValueW(HKEY_CURRENT_USER, testKey.c_str(), L"Some value", RRF_RT_ANY, &type, data.data(), &size),
            ERROR_SUCCESS);
        EXPECT_EQ(type, row.type);
        EXPECT_EQ(SettingBlock(data.begin(), data.begin() + size), row.data);
    }
}

TEST_F(RegistryStorageTest, AnswersSafelyWhateverWasStored) {
    struct Row {
        DWORD type;
        std::vector<std::uint8_t> data;
        std::optional<SettingValue> found;
    };
    const Row rows[] = {
        {REG_SZ, {'a', 0, 'b', 0}, L"ab"},  // without its end
        {REG_SZ, {'a', 0, 'b'}, L"a"},      // and with half a character
        {REG_SZ, {'a'}, L""},
        {REG_SZ, {}, L""},
        {REG_SZ, {'a', 0, 0, 0, 'b', 0, 0, 0}, L"a"},
        {REG_SZ, {0, 0xD8, 0, 0}, std::wstring(1, L'\xD800')},
        {REG_DWORD, {1, 2, 3}, std::nullopt},
        {REG_DWORD, {1, 2, 3, 4, 5}, std::nullopt},
        {REG_DWORD, {}, std::nullopt},
        {REG_QWORD, {1, 0, 0, 0, 0, 0, 0, 0}, std::nullopt},
        {REG_EXPAND_SZ, {'a', 0, 0, 0}, std::nullopt},
        {REG_MULTI_SZ, {'a', 0, 0, 0, 0, 0}, std::nullopt},
        {REG_NONE, {1, 2, 3, 4}, std::nullopt},
        {REG_BINARY, {}, SettingBlock{}},
    };
    for (const Row& row : rows) {
        store(L"Some value", row.type, row.data);
        EXPECT_TRUE(RegistryStorage(testKey).read(L"Some value") == row.found) << "row " << &row - rows;
    }
}

TEST_F(RegistryStorageTest, AMissingValueAndAKeyThatCannotBeMadeAreSilent) {
    EXPECT_EQ(RegistryStorage(testKey).read(L"Never stored"), std::nullopt);
    RegistryStorage impossible(topKey + L"\\" + std::wstring(300, L'x'));  // a level has at most 255 characters
    impossible.write(L"Some value", 1u);
    EXPECT_EQ(impossible.read(L"Some value"), std::nullopt);
}

TEST_F(RegistryStorageTest, SettingsComeBackInTheNextRun) {
    constexpr NumericFormat currency = 0x35122034;  // not the default
    {
        RegistryStorage storage(testKey);
        Settings settings(storage);
        settings.setFormat(FormatKind::Currency, currency);
        settings.selectFormat(FormatKind::Currency);
        settings.setText(TextSetting::DecimalMark, L",");
        settings.setText(TextSetting::GroupMark, L"#");
        settings.setText(TextSetting::DefaultFile, L"Z:\\\x4E2D.rtf");
        settings.saveAll();
    }
    RegistryStorage storage(testKey);
    Settings settings(storage);
    settings.loadAll();
    EXPECT_EQ(settings.format(FormatKind::Currency), currency);
    EXPECT_EQ(settings.selectedFormat(), FormatKind::Currency);
    EXPECT_EQ(settings.marks(), (Marks{',', '#'}));
    EXPECT_EQ(settings.text(TextSetting::DefaultFile), L"Z:\\\x4E2D.rtf");
}

}  // namespace
}  // namespace calquo
