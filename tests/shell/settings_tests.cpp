// The settings store: what it makes of whatever was stored, what it stores itself and when.
#include "shell/settings.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <map>
#include <sstream>

#include "engine/characters.h"
#include "support/memory_storage.h"

namespace calquo {
namespace {

/// Bytes written as pairs of hexadecimal digits.
SettingBlock bytes(std::string_view digits) {
    SettingBlock block;
    std::istringstream pairs{std::string(digits)};
    for (std::string pair; pairs >> std::setw(2) >> pair;) {
        block.push_back(static_cast<std::uint8_t>(std::stoi(pair, nullptr, 16)));
    }
    return block;
}

const std::string defaultFormatBytes = "44102A03 40202213 44202A23 34201233 0C200044 00001853 04001863";

/// The default formats with the one of an index replaced.
SettingBlock formatBytes(std::size_t index, std::string_view word) {
    std::string all = defaultFormatBytes;
    return bytes(all.replace(index * 9, 8, word));
}

const std::wstring windowRect = L"Window Rect", selectedPanels = L"Selected Panels",
                   numericFormats = L"Numeric formats", flags = L"Flags", buttonSize = L"Button Size",
                   selectedFormat = L"Selected format", defaultFile = L"Default File", decimalMark = L"Decimal Mark",
                   groupMark = L"Group Mark";

/// What the program is told of the item that a name stores, as text.
std::string answer(const std::wstring& name, const Settings& settings) {
    std::ostringstream text;
    if (name == flags) {
        text << "-dgr"[static_cast<int>(settings.angleOption())];
        for (const std::uint32_t setting : {5, 6, 8, 9, 10, 11}) {
            text << settings.boolean(static_cast<BooleanSetting>(setting));
        }
    } else if (name == buttonSize) {
        text << settings.buttonSize().value_or(0);
    } else if (name == selectedFormat) {
        text << static_cast<std::uint32_t>(settings.selectedFormat());
    } else if (name == windowRect) {
        const auto place = settings.windowRect();
        const ScreenRectangle at = place.value_or(ScreenRectangle{});
        text << (place ? "" : "none ") << at.left << ' ' << at.top << ' ' << at.right << ' ' << at.bottom;
    } else if (name == selectedPanels) {
        for (const std::uint16_t panel : settings.selectedPanels()) {
            text << std::hex << std::uppercase << panel << ' ';
        }
    } else if (name == numericFormats) {
        for (std::uint32_t kind = 0; kind < formatKinds.size(); ++kind) {
            const NumericFormat word = settings.format(static_cast<FormatKind>(kind));
            text << (word == defaultFormats[kind] ? '-' : 'x');
        }
    } else if (name == defaultFile) {
        for (const wchar_t character : settings.text(TextSetting::DefaultFile)) {
            text << static_cast<char>(character);
        }
    } else {
        text << settings.marks().decimal << settings.marks().group;
    }
    return text.str();
}

struct StoredRow {
    const std::wstring& name;
    SettingValue stored;
    std::string_view answer;
};

const StoredRow storedRows[] = {
    {flags, 0u, "-000000"},
    {flags, 0x1B0u, "d111100"},
    {flags, 0x400u, "r000001"},
    {flags, 0x600u, "g000011"},
    {flags, 0x700u, "d000111"},
    {flags, ~0x7B0u, "-000000"},
    {flags, bytes("30000000"), "-000000"},
    {flags, L"48", "-000000"},

    {buttonSize, 0u, "0"},
    {buttonSize, 1u, "12"},
    {buttonSize, 24u, "24"},
    {buttonSize, 100000u, "200"},
    {buttonSize, 0xFFFFFFFFu, "200"},
    {buttonSize, L"24", "0"},

    {selectedFormat, 6u, "6"},
    {selectedFormat, 7u, "0"},
    {selectedFormat, 0x80000000u, "0"},
    {selectedFormat, bytes("02000000"), "0"},

    {windowRect, bytes("0A000000 14000000 2C010000 90010000"), "10 20 300 400"},
    {windowRect, bytes("0083FFFF 0083FFFF A083FFFF 1B83FFFF"), "-32000 -32000 -31840 -31973"},  // a minimized window
    {windowRect, bytes("0A000000 14000000 2C010000 900100"), "none 0 0 0 0"},
    {windowRect, bytes("0A000000 14000000 2C010000 90010000 00"), "none 0 0 0 0"},
    {windowRect, bytes("2C010000 14000000 0A000000 90010000"), "none 0 0 0 0"},
    {windowRect, bytes("0A000000 14000000 2C010000 14000000"), "none 0 0 0 0"},
    {windowRect, bytes("00000080 14000000 FFFFFF7F 90010000"), "none 0 0 0 0"},
    {windowRect, bytes("0A000000 14000000 2C010000 00800000"), "none 0 0 0 0"},
    {windowRect, 5u, "none 0 0 0 0"},

    {selectedPanels, bytes("10A10000 00A50000 10A00000"), "A110 A500 A010 "},
    {selectedPanels, bytes("10A10000 00A50000 10A10000 10A10000"), "A110 A500 "},
    {selectedPanels, bytes("11900000 10A10000 12900000 FFA10000 10800000"), "A110 "},
    {selectedPanels, bytes("10A10100 10A10080 00A50000"), "A500 "},
    {selectedPanels, bytes("10A10000 00A500"), "A110 "},
    {selectedPanels, bytes("10A1"), ""},
    {selectedPanels, L"\xA110", ""},

    {numericFormats, bytes(defaultFormatBytes), "-------"},
    {numericFormats, formatBytes(0, "45142E02"), "x------"},
    {numericFormats, formatBytes(0, "44102A13"), "-------"},  // another kind's word
    {numericFormats, formatBytes(0, "C4102A03"), "-------"},  // a reserved bit
    {numericFormats, formatBytes(0, "44102A01"), "-------"},  // groups of 1
    {numericFormats, formatBytes(0, "44102A09"), "-------"},  // groups of 9
    {numericFormats, formatBytes(0, "44102A08"), "x------"},
    {numericFormats, formatBytes(0, "44108203"), "-------"},  // 16 fractional digits
    {numericFormats, formatBytes(0, "44102803"), "-------"},  // no significant digits
    {numericFormats, formatBytes(0, "44D02F03"), "x------"},  // 31 significant digits
    {numericFormats, formatBytes(0, "44022A03"), "-------"},  // an exponent limit of 1
    {numericFormats, formatBytes(0, "44202A03"), "-------"},  // an exponent limit of 16
    {numericFormats, formatBytes(1, "40202A13"), "-x-----"},  // which Scientific does not look at
    {numericFormats, formatBytes(4, "0C208044"), "----x--"},  // "whole"
    {numericFormats, formatBytes(4, "0C20A044"), "-------"},  // no truncation of number 5
    {numericFormats, formatBytes(5, "00000053"), "-------"},  // no denominator digits
    {numericFormats, bytes("45142E02"), "-------"},
    {numericFormats, bytes(defaultFormatBytes + "00"), "-------"},
    {numericFormats, SettingBlock(28, 0xFF), "-------"},

    {defaultFile, L"Z:\\a.txt", "Z:\\a.txt"},
    {defaultFile, L"", ".\\WorkArea.rtf"},
    {defaultFile, bytes("61000000"), ".\\WorkArea.rtf"},

    {decimalMark, L"#", "#,"},
    {decimalMark, L",", ",."},
    {decimalMark, L"$@", "$,"},
    {decimalMark, L"", ".,"},
    {decimalMark, L"\x1", ".,"},
    {decimalMark, L"\xB7", ".,"},
    {decimalMark, 44u, ".,"},
    {groupMark, L"#", ".#"},
    {groupMark, L".", ".,"},
};

TEST(Settings, AnswerSensiblyWhateverWasStored) {
    for (const StoredRow& row : storedRows) {
        MemoryStorage storage;
        storage.values[row.name] = row.stored;
        Settings settings(storage);
        settings.loadAll();
        EXPECT_EQ(answer(row.name, settings), row.answer) << "row " << &row - storedRows;
    }
}

TEST(Settings, KeepWhatTheyCannotUse) {
    for (const auto& [name, value] : std::map<std::wstring, SettingValue>{
             {flags, 0xFFFFFFFFu},
             {buttonSize, 100000u},
             {selectedFormat, 9u},
             {windowRect, bytes("2C010000 14000000 0A000000 90010000")},
             {selectedPanels, bytes("10A10000 10A10000 01000000 FF")},
             {numericFormats, formatBytes(2, "FFFFFFFF")},
             {decimalMark, L"decimal"},
         }) {
        MemoryStorage storage;
        storage.values[name] = value;
        Settings settings(storage);
        settings.loadAll();
        settings.saveAll();
        EXPECT_TRUE(storage.values[name] == value) << answer(name, settings);
    }
}

TEST(Settings, ComeBackAsTheyWereSaved) {
    MemoryStorage storage;
    Settings saved(storage);
    saved.setBoolean(BooleanSetting::HideButtons, true);
    saved.chooseAngle(AngleOption::Radian);
    saved.setNumber(NumberSetting::ButtonSize, 30);
    saved.selectFormat(FormatKind::Rational);
    saved.setWindowRect({-8, 20, 300, 400});
    const std::uint16_t panels[] = {0xA5F0, 0xA010};
    saved.setSelectedPanels(panels);
    saved.setFormat(FormatKind::Currency, 0x35122034);
    saved.setText(TextSetting::DefaultFile, L"Z:\\\x4E2D.rtf");
    saved.setText(TextSetting::DecimalMark, L",");
    saved.setText(TextSetting::GroupMark, L"#");
    saved.saveAll();

    Settings loaded(storage);
    loaded.loadAll();
    std::string answers;
    for (const std::wstring& name :
         {flags, buttonSize, selectedFormat, windowRect, selectedPanels, numericFormats, decimalMark}) {
        answers += answer(name, loaded) + "; ";
    }
    EXPECT_EQ(answers, "r001001; 30; 5; -8 20 300 400; A5F0 A010 ; ---x---; ,#; ");
    EXPECT_EQ(loaded.text(TextSetting::DefaultFile), L"Z:\\\x4E2D.rtf");
    loaded.resetFormats();
    EXPECT_EQ(answer(numericFormats, loaded), "-------");
}

TEST(Settings, AreSavedInOrderAndAtTheMomentTheyChange) {
    MemoryStorage storage;
    Settings settings(storage);
    settings.saveAll();
    EXPECT_EQ(storage.written, (std::vector{flags, buttonSize, selectedFormat, selectedPanels, numericFormats,
                                            defaultFile, groupMark, decimalMark}));
    EXPECT_TRUE(storage.values[numericFormats] == SettingValue(bytes(defaultFormatBytes)));

    // What a user sets outlives a program that is killed; what stays as it was is not written again.
    storage.written.clear();
    settings.setBoolean(BooleanSetting::HideButtons, true);
    settings.setBoolean(BooleanSetting::HideButtons, true);
    settings.selectFormat(FormatKind::Currency);
    settings.setFormat(FormatKind::Automatic, 0x032A1045);
    settings.setWindowRect({10, 20, 300, 400});
    settings.setText(TextSetting::DefaultFile, L"b.txt");
    settings.setSelectedPanels({});
    EXPECT_EQ(storage.written, (std::vector{flags, selectedFormat, numericFormats, windowRect, defaultFile}));
    EXPECT_TRUE(storage.values[windowRect] == SettingValue(bytes("0A000000 14000000 2C010000 90010000")));

    // A known rectangle of the window has its place among the others.
    storage.written.clear();
    settings.saveAll();
    EXPECT_EQ(storage.written[3], windowRect);
}

TEST(Settings, OnlyCharactersWithoutAnotherUseBecomeMarks) {
    std::string free;
    MemoryStorage storage;
    Settings settings(storage);
    for (wchar_t character = 1; character < 0x180; ++character) {
        settings.setText(TextSetting::DecimalMark, {character});
        const Marks marks = settings.marks();
        EXPECT_NE(marks.decimal, marks.group);
        if (character == static_cast<wchar_t>(marks.decimal)) {
            free += marks.decimal;
        }
    }
    EXPECT_EQ(free, "\"#$&,.<?[]`{|}~");
}

TEST(Settings, TheLanguageReadsTheMarksAndGroupsThatResultsHave) {
    MemoryStorage storage;
    const Settings defaults(storage);
    Settings settings(storage);
    settings.setText(TextSetting::DecimalMark, L",");
    settings.setText(TextSetting::GroupMark, L".");
    for (const FormatKind kind : {FormatKind::Integer, FormatKind::Automatic}) {
        settings.selectFormat(kind);
        applyToEngine(settings);
        // Only Integer has groups of four digits.
        EXPECT_EQ(characterTable.allowsGroup(4, false), kind == FormatKind::Integer);
        EXPECT_EQ(markCharacter(TokenClass::DecimalMark), ',');
        EXPECT_EQ(markCharacter(TokenClass::GroupMark), '.');
    }
    applyToEngine(defaults);
}

}  // namespace
}  // namespace calquo
