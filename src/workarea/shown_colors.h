// The colours of a sheet on the screen, which in high contrast are others than in its files, and the way back.
#pragma once

#include <cstdint>
#include <map>

#include "widgets/palette.h"
#include "workarea/rich_text_filter.h"

namespace calquo {

/// In high contrast all texts of a sheet are in the colour of the system's texts and all their backgrounds in that of
/// its windows, except that results stand out. Each colour of the file gets a shade of its own of these, which no eye
/// tells from the others, so that the file can have it back.
class ShownColors {
public:
    explicit ShownColors(const Palette& palette);

    /// Whether any is another on the screen than in files.
    bool areChanged() const { return areChanged_; }
    Color normal() const { return normal_; }
    Color result() const { return result_; }
    /// Whether new texts look the same on the screen as those of another one do.
    bool looksLike(const ShownColors& other) const {
        return normal_ == other.normal_ && result_ == other.result_ && paper_ == other.paper_;
    }

    /// From the colours of a file to those on the screen, and back; nothing to change unless contrast is high. They
    /// are not to outlive this. Beyond 512 colours, more than a file has, the others look and are saved as normal text
    /// or as the background of the sheet.
    ColorChange toScreen();
    ColorChange toFile() const;

private:
    class Shades {
    public:
        /// The colour that stands for one of the file, as nearly like `wanted` as is free.
        std::int32_t shadeOf(std::int32_t ofFile, Color wanted);
        std::int32_t ofFile(std::int32_t shade) const;

    private:
        std::map<std::int32_t, std::int32_t> shades_;
        std::map<std::int32_t, std::int32_t> ofFile_;
    };

    bool areChanged_;
    Color normal_;
    Color result_;
    Color paper_;
    Shades characters_;
    Shades backgrounds_;
};

}  // namespace calquo
