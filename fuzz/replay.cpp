// replay FOLDER: holds every file of the corpora in a folder against the target that the corpus is named after.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "targets.h"

namespace {

/// The number of inputs in a corpus.
int replay(const calquo::FuzzTarget& target, const std::filesystem::path& corpus) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        std::fprintf(stderr, "%s/%s\n", target.name, entry.path().filename().c_str());
        target.check({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
        ++count;
    }
    return count;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "usage: replay FOLDER\n");
        return 2;
    }
    for (const calquo::FuzzTarget& target : calquo::fuzzTargets) {
        const int inputs = replay(target, std::filesystem::path(arguments[1]) / target.name);
        std::printf("%s: %d inputs\n", target.name, inputs);
        if (inputs == 0) {
            std::fprintf(stderr, "FAULT: no corpus for %s\n", target.name);
            return 1;
        }
    }
    return 0;
}
