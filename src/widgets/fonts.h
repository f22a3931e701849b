// The choice among the fonts that the system has, and the room that text takes up in one.
#pragma once

#include <span>
#include <string>

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

/// The first of the names whose font is installed; the last when none is.
const wchar_t* installedFont(std::span<const wchar_t* const> names);

/// The size in pixels of a line of text; an "&" is not shown but underlines the character after it.
Size extentOf(FontHandle font, const std::wstring& text);

/// The height of text that is broken into lines of at most `width` pixels.
int brokenHeight(FontHandle font, const std::wstring& text, int width);

}  // namespace calquo
