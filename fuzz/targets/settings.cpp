// Whatever is stored as settings: every accessor answers with something usable, and what is saved loads as the same.
#include <algorithm>

#include "engine/characters.h"
#include "panels/catalogue.h"
#include "shell/menu_marks.h"
#include "shell/menu_tree.h"
#include "shell/settings.h"
#include "support/memory_storage.h"
#include "target.h"

namespace calquo {
namespace {

constexpr const wchar_t* names[] = {L"Flags",        L"Button Size",     L"Selected format",
                                    L"Window Rect",  L"Selected Panels", L"Numeric formats",
                                    L"Default File", L"Group Mark",      L"Decimal Mark"};

SettingValue valueFrom(InputReader& reader) {
    switch (reader.byte() % 3) {
        case 0:
            return static_cast<std::uint32_t>(reader.number(4));
        case 1: {
            const FuzzInput block = reader.bytes(reader.byte());
            return SettingBlock(block.begin(), block.end());
        }
        default: {
            std::wstring text(reader.byte() % 8U, L' ');
            std::ranges::generate(text, [&] { return static_cast<wchar_t>(reader.number(2)); });
            return text;
        }
    }
}

void checkUsable(const Settings& settings) {
    const Marks marks = settings.marks();
    require(marks.decimal != marks.group, "one character is both marks");
    require(!settings.text(TextSetting::DefaultFile).empty(), "the default file has no name");
    for (const std::uint16_t identifier : settings.selectedPanels()) {
        require(findPanel(identifier) != nullptr, "a panel that there is not would be opened");
    }
    if (const auto place = settings.windowRect()) {
        require(place->left < place->right && place->top < place->bottom, "the window has no area");
    }
    for (std::uint32_t kind = 0; kind < formatKinds.size(); ++kind) {
        require(getField(settings.format(static_cast<FormatKind>(kind)), field::kind) == kind,
                "a format of another kind");
    }
    const auto size = settings.buttonSize();
    require(!size || (*size >= 12 && *size <= 200), "the buttons have no sensible size");
}

/// How many of the entries that satisfy `counts`, below the given ones too, are checked.
template <typename Counts>
std::size_t checkedEntries(const Settings& settings, const std::vector<MenuEntry>& entries, Counts counts) {
    std::size_t count = 0;
    for (const MenuEntry& entry : entries) {
        count += checkedEntries(settings, entry.children, counts);
        count += counts(entry) && isCheckedUnder(settings, entry.identifier) ? 1 : 0;
    }
    return count;
}

void checkMenu(const Settings& settings) {
    const std::vector<MenuEntry> menu = mainMenu();
    const auto countOf = [&](auto counts) { return checkedEntries(settings, menu, counts); };
    const auto isAngle = [](const MenuEntry& entry) { return angleOptionOf(entry.identifier) != AngleOption::None; };
    require(countOf(isAngle) == (settings.angleOption() == AngleOption::None ? 0 : 1), "other angles are marked");
    require(countOf([](const MenuEntry& entry) { return entry.kind == MenuKind::Radio; }) == 1,
            "not one format is marked");
    require(countOf([](const MenuEntry& entry) { return findPanel(entry.identifier) != nullptr; }) ==
                settings.selectedPanels().size(),
            "other panels are marked");
}

/// What the program changes while it runs is what it then has.
void checkChanges(Settings& settings, InputReader& reader) {
    const auto angle = static_cast<AngleOption>(reader.byte() % 4);
    settings.chooseAngle(angle);
    const auto kind = static_cast<FormatKind>(reader.byte() % formatKinds.size());
    settings.selectFormat(kind);
    const NumericFormat word = settings.format(static_cast<FormatKind>(reader.byte() % formatKinds.size()));
    settings.setFormat(static_cast<FormatKind>(getField(word, field::kind)), word);
    std::vector<std::uint16_t> panels = settings.selectedPanels();
    std::ranges::reverse(panels);
    settings.setSelectedPanels(panels);
    require(settings.angleOption() == angle && settings.selectedFormat() == kind && settings.selectedPanels() == panels,
            "a change is not kept");
    applyToEngine(settings);
    require(markCharacter(TokenClass::DecimalMark) == settings.marks().decimal &&
                markCharacter(TokenClass::GroupMark) == settings.marks().group,
            "the language has other marks");
    settings.resetFormats();
    for (std::uint32_t index = 0; index < formatKinds.size(); ++index) {
        require(settings.format(static_cast<FormatKind>(index)) == defaultFormats[index], "a format is not reset");
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    MemoryStorage storage;
    for (const wchar_t* const name : names) {
        if (reader.byte() % 8 != 0) {
            storage.values[name] = valueFrom(reader);
        }
    }
    Settings settings(storage);
    settings.loadAll();
    checkUsable(settings);
    checkMenu(settings);
    settings.saveAll();
    const auto saved = storage.values;
    Settings again(storage);
    again.loadAll();
    again.saveAll();
    require(storage.values == saved, "what is saved does not load as the same");
    checkChanges(settings, reader);
}

const Target target("settings", check);

}  // namespace
}  // namespace calquo
