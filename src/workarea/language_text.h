// The sheet's text as the engine reads it, and the way back.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// Text as the engine reads it: one character for each UTF-16 unit, so that positions are those of the control. Units
/// beyond Latin-1 become a character that the language does not have and no setting can give it.
std::string languageText(std::wstring_view text);

/// The engine's text as the control takes it.
std::wstring controlText(std::string_view text);

}  // namespace calquo
