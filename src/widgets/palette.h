// The colours of everything that the program draws, by what they are for: its own or, in high contrast, the system's.
#pragma once

#include <optional>

#include "widgets/color.h"

namespace calquo {

/// The colours that the user has chosen for all programs, by what the system uses them for.
struct SystemColors {
    Color window, windowText;
    Color highlight, highlightText;
    Color hotLight;  ///< Of links, on the window's ground.
    Color buttonFace, buttonText;
    Color activeCaption, captionText;
    Color inactiveCaption, inactiveCaptionText;
    Color tipGround, tipText;
};

/// A text and what it stands on.
struct InkAndGround {
    Color ink;
    Color ground;

    friend bool operator==(const InkAndGround&, const InkAndGround&) = default;
};

/// The caption strip of an active window, or of another. Its buttons have a colour of their own, as those of a panel.
struct CaptionColors {
    InkAndGround title;
    Color button;

    friend bool operator==(const CaptionColors&, const CaptionColors&) = default;
};

/// What a button looks like whose own colour does not count.
struct PlainButtons {
    InkAndGround raised, pressed;
    Color edge;
    Color around;  ///< Below the edges, in the corners.

    friend bool operator==(const PlainButtons&, const PlainButtons&) = default;
};

/// By default the program's own colours.
struct Palette {
    InkAndGround sheet{black, white};
    Color result{0, 0, 139};

    CaptionColors activeCaption{{white, {38, 56, 89}}, {58, 80, 120}};
    CaptionColors inactiveCaption{{black, {188, 194, 204}}, {210, 215, 223}};

    Color panelGround{236, 239, 243};
    std::optional<PlainButtons> buttons;  ///< None where each button is in tones of its own colour.

    InkAndGround hint{{60, 50, 20}, {255, 250, 225}};
    InkAndGround selectedRow{{60, 50, 20}, {232, 223, 184}};  ///< Of a tip, which looks like a hint.
    std::optional<Color> faintInk = Color{109, 100, 71};      ///< None where everything is to be read with ease.
    Color hintEdge{205, 195, 150};

    Color barGroove{214, 218, 224};
    Color barThumb{124, 132, 146};
    Color barHeldThumb{74, 90, 118};

    Color fault{176, 0, 32};  ///< What is wrong in a dialog is written in it, on the system's grounds.

    friend bool operator==(const Palette&, const Palette&) = default;
};

/// What text needs to be read with ease: level AA of the Web Content Accessibility Guidelines.
inline constexpr double readableContrast = 4.5;

/// The palette in the system's colours, each text in the pair that the user has chosen. Pairs that newer systems do
/// not let the user choose count only where they can be read.
Palette highContrastPalette(const SystemColors& system);

}  // namespace calquo
