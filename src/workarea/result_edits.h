// New results in a rich text, whatever else stands there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "workarea/reevaluation.h"

namespace calquo {

/// How a result looks.
struct ResultLook {
    std::string font;  ///< Its name, as rich text has it.
    int halfPoints = 24;
    std::uint8_t red = 0, green = 0, blue = 0;
    bool bold = true;
};

/// `richText` with new results in place of its characters from and to the places of `edits`; all others keep their
/// looks. Nothing where the rich text does not show `length` characters, so that the places would not be theirs.
/// @param richText as cleanRichText() has it
std::optional<std::string> withResults(std::string_view richText, std::size_t length,
                                       const std::vector<ResultEdit>& edits, const ResultLook& look);

}  // namespace calquo
