// Holds every file of a corpus against the target that this is linked with.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "targets.h"

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "usage: fuzz_TARGET CORPUS\n");
        return 2;
    }
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        std::fprintf(stderr, "%s\n", entry.path().filename().c_str());
        calquo::check({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
        ++inputs;
    }
    std::printf("%d inputs\n", inputs);
    return inputs == 0 ? 1 : 0;
}
