// The units of angle that the buttons of the trigonometric panels may add, each stated once: its entry in the menu, its
// flag in the settings, and what the buttons write.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace calquo {

/// One of them at most is chosen.
enum class AngleOption : std::uint8_t { None, Degree, Gradient, Radian };

struct AngleRow {
    AngleOption option;
    std::uint16_t command;    ///< The identifier of its entry in the menu.
    std::uint32_t setting;    ///< The number of its boolean in the settings.
    std::string_view label;   ///< Of the entry.
    std::string_view suffix;  ///< What follows an angle in the language.
};

/// The options in the order of their commands. The first that is on in the settings wins.
inline constexpr std::array angleRows = std::to_array<AngleRow>({
    {AngleOption::Degree, 0x8031, 9, "Buttons add \"&deg\"", " deg"},
    {AngleOption::Gradient, 0x8032, 10, "Buttons add \"&grad\"", " grad"},
    {AngleOption::Radian, 0x8033, 11, "Buttons add \"&rad\" (basic unit)", " rad"},
});

/// The unit's name in the language; empty when the buttons add none.
constexpr std::string_view angleUnitOf(AngleOption option) {
    for (const AngleRow& row : angleRows) {
        if (row.option == option) {
            return row.suffix.substr(1);
        }
    }
    return {};
}

}  // namespace calquo
