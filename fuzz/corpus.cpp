// corpus unpack FILE FOLDER: makes a file of each input of a corpus, as libFuzzer wants them.
// corpus pack FOLDER FILE: makes the corpus of the files of a folder, in the order of its lines.
// corpus show FILE: prints the line that a file would be in a corpus.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "corpus_text.h"

namespace {

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool unpack(const char* corpus, const std::filesystem::path& folder) {
    int number = 0;
    for (const std::string& input : calquo::readCorpus(corpus)) {
        std::ofstream(folder / std::to_string(++number), std::ios::binary) << input;
    }
    return std::filesystem::exists(folder / "1");
}

bool pack(const std::filesystem::path& folder, const char* corpus) {
    std::set<std::string> lines;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        lines.insert(calquo::escapedInput(bytesOf(entry.path())));
    }
    std::ofstream file(corpus);
    for (const std::string& line : lines) {
        file << line << '\n';
    }
    return !file.flush().fail();
}

}  // namespace

int main(int count, char** arguments) {
    const std::string_view command = count > 1 ? arguments[1] : "";
    if (command == "unpack" && count == 4) {
        return unpack(arguments[2], arguments[3]) ? 0 : 1;
    }
    if (command == "pack" && count == 4) {
        return pack(arguments[2], arguments[3]) ? 0 : 1;
    }
    if (command == "show" && count == 3) {
        std::printf("%s\n", calquo::escapedInput(bytesOf(arguments[2])).c_str());
        return 0;
    }
    std::fprintf(stderr, "usage: corpus unpack FILE FOLDER | pack FOLDER FILE | show FILE\n");
    return 2;
}
