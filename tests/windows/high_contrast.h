// High contrast for the tests, on systems that have none: the system's answer, and its colours, for this program alone.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace calquo {

class HighContrast {
public:
    /// The state of the system from now on, as it tells programs that ask. Nobody is told of the change.
    static void setOn(bool on);

    /// Other colours by the system's indexes while this lives. The system tells the windows of the change.
    explicit HighContrast(const std::vector<std::pair<int, std::uint32_t>>& colors);
    HighContrast(const HighContrast&) = delete;
    HighContrast& operator=(const HighContrast&) = delete;
    ~HighContrast();

private:
    std::vector<int> indexes_;
    std::vector<unsigned long> before_;
};

}  // namespace calquo
