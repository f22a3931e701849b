// Makes long texts of short ones.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calquo {

inline std::string repeated(std::size_t count, std::string_view text) {
    std::string all;
    while (count-- > 0) {
        all += text;
    }
    return all;
}

}  // namespace calquo
