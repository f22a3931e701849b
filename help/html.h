// Pieces of HTML, which the pages and their tables are made of.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// Text as HTML.
std::string escaped(std::string_view text);

/// "<TAG ATTRIBUTE...>CONTENT</TAG>"; `tag` holds the attributes, too.
std::string element(std::string_view tag, std::string_view content);

/// A text with small letters only, for anchors and for sorting.
std::string inLowerCase(std::string_view text);

}  // namespace calquo
