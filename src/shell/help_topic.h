// The places of the help that the program opens by itself.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// The page of the help and the place on it that lead to what it says of a name of the language,
/// "names.html#name-sqrt".
std::string helpTopicOf(std::string_view name);

}  // namespace calquo
