// Colours that look the same differ in the lowest three bits of red, green and blue, so that each finds its way back.
#include "workarea/shown_colors.h"

#include "workarea/rich_text_writer.h"

namespace calquo {
namespace {

constexpr std::int32_t unset = CharacterFormat::unset;

constexpr std::int32_t numberOf(Color color) { return color.red << 16 | color.green << 8 | color.blue; }

constexpr Color colorOf(std::int32_t number) {
    return {static_cast<std::uint8_t>(number >> 16), static_cast<std::uint8_t>(number >> 8),
            static_cast<std::uint8_t>(number)};
}

constexpr std::int32_t shadeCount = 512;

/// From 0, the colour itself, to `shadeCount`, the least differences first.
constexpr std::int32_t shade(std::int32_t color, std::int32_t number) {
    std::int32_t difference = 0;
    for (int bit = 0; bit < 9; ++bit) {
        difference |= (number >> bit & 1) << (bit % 3 * 8 + bit / 3);
    }
    return color ^ difference;
}

}  // namespace

std::int32_t ShownColors::Shades::shadeOf(std::int32_t ofFile, Color wanted) {
    if (const auto known = shades_.find(ofFile); known != shades_.end()) {
        return known->second;
    }
    for (std::int32_t number = 0; number < shadeCount; ++number) {
        const std::int32_t candidate = shade(numberOf(wanted), number);
        if (ofFile_.emplace(candidate, ofFile).second) {
            shades_.emplace(ofFile, candidate);
            return candidate;
        }
    }
    return numberOf(wanted);
}

std::int32_t ShownColors::Shades::ofFile(std::int32_t shade) const {
    const auto known = ofFile_.find(shade);
    return known == ofFile_.end() ? shade : known->second;
}

ShownColors::ShownColors(const Palette& palette)
    : areChanged_(palette.sheet != Palette{}.sheet || palette.result != Palette{}.result),
      normal_(palette.sheet.ink),
      result_(palette.result),
      paper_(palette.sheet.ground) {
    characters_.shadeOf(numberOf(Palette{}.sheet.ink), normal_);
    result_ = colorOf(characters_.shadeOf(numberOf(Palette{}.result), result_));
}

ColorChange ShownColors::toScreen() {
    if (!areChanged_) {
        return {};
    }
    // Text without a colour gets the system's from the control.
    return {[this](std::int32_t color) { return color == unset ? unset : characters_.shadeOf(color, normal_); },
            [this](std::int32_t color) { return color == unset ? unset : backgrounds_.shadeOf(color, paper_); }};
}

ColorChange ShownColors::toFile() const {
    if (!areChanged_) {
        return {};
    }
    return {[this](std::int32_t color) { return characters_.ofFile(color); },
            [this](std::int32_t color) { return backgrounds_.ofFile(color); }};
}

}  // namespace calquo
