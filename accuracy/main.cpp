// accuracy functions|reading|writing [OPTION]... NAME=COMMAND...: asks builds of calq random lines, holds the answers
// against exact values, and prints a table in Markdown. A command reads lines and answers each. The exit status is 1
// when something is wrong; what, is told on the other stream.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

#include "builds.h"
#include "support/random_reals.h"

namespace {

using namespace calquo;

constexpr const char* usage =
    "usage: accuracy functions|reading|writing [OPTION]... NAME=COMMAND...\n"
    "  --count N      random arguments for each row (100)\n"
    "  --seed N       of the random numbers\n"
    "  --only NAME    only this function or operator\n"
    "  --folder PATH  for lines and answers (a temporary one)\n";

struct Section {
    std::string_view name;
    bool (*measure)(const Run&);
};

constexpr Section sections[] = {
    {"functions", measureFunctions}, {"reading", measureReading}, {"writing", measureWriting}};

/// A folder that ends with its object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = std::filesystem::temp_directory_path() / "accuracy-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// Takes the value of an option. False for an option that there is not.
bool setOption(Run& run, const std::string& option, const char* value) {
    if (option == "--count") {
        run.count = static_cast<int>(std::strtol(value, nullptr, 10));
    } else if (option == "--seed") {
        run.seed = std::strtoull(value, nullptr, 10);
    } else if (option == "--only") {
        run.only = value;
    } else if (option == "--folder") {
        run.folder = value;
    } else {
        return false;
    }
    return true;
}

bool readArguments(int count, char** arguments, Run& run) {
    for (int i = 2; i < count; ++i) {
        const std::string argument = arguments[i];
        const std::size_t equals = argument.find('=');
        if (!argument.starts_with("--") && equals != std::string::npos) {
            run.builds.push_back({argument.substr(0, equals), argument.substr(equals + 1)});
        } else if (++i == count || !setOption(run, argument, arguments[i])) {
            return false;
        }
    }
    return run.count > 0 && !run.builds.empty();
}

}  // namespace

int main(int count, char** arguments) {
    constexpr int usualCount = 100;
    const auto* const section = std::find_if(std::begin(sections), std::end(sections),
                                             [&](const Section& one) { return count > 1 && one.name == arguments[1]; });
    try {
        Run run{usualCount, RandomReals::seed, "", {}, {}};
        if (section == std::end(sections) || !readArguments(count, arguments, run)) {
            std::fputs(usage, stderr);
            return 2;
        }
        const TemporaryFolder temporary;
        if (run.folder.empty()) {
            run.folder = temporary.path();
        }
        return section->measure(run) ? 0 : 1;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "accuracy: %s\n", fault.what());
        return 2;
    }
}
