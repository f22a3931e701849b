// Whatever is stored as settings: every accessor answers with something usable, and what is saved loads as the same.
#include <algorithm>

#include "panels/catalogue.h"
#include "shell/settings.h"
#include "support/memory_storage.h"
#include "targets.h"

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

}  // namespace

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
    settings.saveAll();
    const auto saved = storage.values;
    Settings again(storage);
    again.loadAll();
    again.saveAll();
    require(storage.values == saved, "what is saved does not load as the same");
}

}  // namespace calquo
