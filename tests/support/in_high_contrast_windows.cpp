// Linked to the program's own start: a Calquo that finds its system in high contrast. The colours are the system's.
#include "windows/high_contrast.h"

namespace {

[[maybe_unused]] const bool isOn = (calquo::HighContrast::setOn(true), true);

}  // namespace
