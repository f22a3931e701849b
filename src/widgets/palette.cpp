// From the system's colours to what they are for here.
#include "widgets/palette.h"

namespace calquo {
namespace {

bool isReadable(Color ink, Color ground) { return contrast(ink, ground) >= readableContrast; }

InkAndGround readable(InkAndGround wanted, InkAndGround otherwise) {
    return isReadable(wanted.ink, wanted.ground) ? wanted : otherwise;
}

}  // namespace

Palette highContrastPalette(const SystemColors& system) {
    const InkAndGround window{system.windowText, system.window};
    const InkAndGround selected{system.highlightText, system.highlight};
    const bool linksCanBeRead = isReadable(system.hotLight, system.window);

    Palette palette;
    palette.sheet = window;
    palette.result = linksCanBeRead ? system.hotLight : system.windowText;
    palette.activeCaption = {readable({system.captionText, system.activeCaption}, selected), system.buttonFace};
    palette.inactiveCaption = {readable({system.inactiveCaptionText, system.inactiveCaption}, window),
                               system.buttonFace};
    palette.panelGround = system.window;
    palette.buttons = {{system.buttonText, system.buttonFace}, selected, system.buttonText, system.window};
    palette.hint = readable({system.tipText, system.tipGround}, window);
    palette.selectedRow = selected;
    palette.faintInk.reset();
    palette.hintEdge = palette.hint.ink;
    palette.barGroove = system.window;
    palette.barThumb = system.windowText;
    palette.barHeldThumb = system.highlight;
    palette.fault =
        linksCanBeRead && isReadable(system.hotLight, system.buttonFace) ? system.hotLight : system.windowText;
    return palette;
}

}  // namespace calquo
