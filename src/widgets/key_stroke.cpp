// The names of keys.
#include "widgets/key_stroke.h"

namespace calquo {
namespace {

std::string nameOfKey(std::uint32_t code) {
    switch (code) {
        case key::tab:
            return "Tab";
        case key::enter:
            return "Enter";
        case key::space:
            return "Space";
        case key::remove:
            return "Del";
        default:
            break;
    }
    if (code >= key::firstFunction && code <= key::lastFunction) {
        return "F" + std::to_string(code - key::firstFunction + 1);
    }
    return {static_cast<char>(code)};
}

}  // namespace

std::string keyText(KeyStroke stroke) {
    if (stroke.key == 0) {
        return {};
    }
    const std::string name = nameOfKey(stroke.key);
    switch (stroke.modifiers) {
        case Modifiers::None:
        case Modifiers::Any:
            return name;
        case Modifiers::Some:
            return "Shift+" + name + ", Ctrl+" + name;
        case Modifiers::Shift:
            return "Shift+" + name;
        case Modifiers::Control:
            return "Ctrl+" + name;
        case Modifiers::ControlShift:
            return "Ctrl+Shift+" + name;
    }
    return name;
}

}  // namespace calquo
