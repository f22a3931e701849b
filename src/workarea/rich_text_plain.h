// The plain text of a rich text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calquo {

/// The characters that a rich text shows, in UTF-8, its lines ended by "\n". Bytes of a code page are read as those of
/// Windows-1252. Throws FileFault as cleanRichText does.
std::string plainTextOf(std::string_view richText, std::uint64_t mostCost);

}  // namespace calquo
