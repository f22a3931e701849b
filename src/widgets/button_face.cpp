// The layers of a button's face.
#include "widgets/button_face.h"

namespace calquo {
namespace {

constexpr int pressedPercent = 40;
constexpr int edgePercent = 45;

constexpr Color opposite(Color text) { return text == black ? white : black; }

/// The whole of a pressed face, and the corners of a raised one: the colour on its way to the text's, or away from it
/// where the text could not be read any more.
Color firstTone(Color color, Color text) {
    const Color nearer = mixed(color, text, pressedPercent);
    return contrast(nearer, text) >= readableContrast ? nearer : mixed(color, opposite(text), pressedPercent);
}

/// The edge of a raised face.
Color secondTone(Color color) { return mixed(color, black, edgePercent); }

/// The colours of the layers and of the text.
struct Tones {
    Color first, edge, face, text;
};

Tones tonesOf(Color color, bool pressed, const Palette& palette) {
    if (!palette.buttons) {
        const Color text = textColorOn(color);
        return {firstTone(color, text), secondTone(color), color, text};
    }
    const auto& [raisedLook, pressedLook, edge, around] = *palette.buttons;
    const InkAndGround& look = pressed ? pressedLook : raisedLook;
    return {pressed ? look.ground : around, edge, look.ground, look.ink};
}

}  // namespace

ButtonFace buttonFace(Size size, Color color, bool pressed, const Palette& palette) {
    const int depth = size.height / 16 + 1;
    const auto layer = [&](int left, int top, int right, int bottom, Color fill) {
        return RoundedRectangle{{left, top, right - left, bottom - top}, 2 * depth, fill};
    };
    const int width = size.width;
    const int height = size.height;
    const Tones tones = tonesOf(color, pressed, palette);
    ButtonFace face{{layer(0, 0, width, height, tones.first)}, tones.text};
    if (!pressed) {
        face.layers.insert(face.layers.end(), {
                                                  layer(0, 0, width - depth, height - depth, tones.edge),
                                                  layer(1, 1, width - depth, height - depth, tones.face),
                                                  layer(depth, depth, width, height, tones.edge),
                                                  layer(depth, depth, width - 1, height - 1, tones.face),
                                              });
    }
    return face;
}

}  // namespace calquo
