// A key with the modifier keys held, without a window, and its name as people read it.
#pragma once

#include <cstdint>
#include <string>

namespace calquo {

/// The modifier keys that a stroke wants: none of them, at least one, any or none, or exactly these.
enum class Modifiers : std::uint8_t { None, Some, Any, Shift, Control, ControlShift };

/// The system's virtual keys, but for letters and digits, which are their own characters.
namespace key {
inline constexpr std::uint32_t tab = 0x09;
inline constexpr std::uint32_t enter = 0x0D;
inline constexpr std::uint32_t space = 0x20;
inline constexpr std::uint32_t remove = 0x2E;
inline constexpr std::uint32_t firstFunction = 0x70;
inline constexpr std::uint32_t lastFunction = 0x7B;
inline constexpr std::uint32_t f1 = firstFunction;
inline constexpr std::uint32_t f5 = firstFunction + 4;
inline constexpr std::uint32_t f9 = firstFunction + 8;
inline constexpr std::uint32_t f10 = firstFunction + 9;
}  // namespace key

struct KeyStroke {
    std::uint32_t key = 0;  ///< 0 for no key.
    Modifiers modifiers = Modifiers::None;

    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

/// "Ctrl+Shift+C"; several strokes are joined by ", ". Empty for no key.
std::string keyText(KeyStroke stroke);

}  // namespace calquo
