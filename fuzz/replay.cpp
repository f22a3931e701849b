// replay CORPUS...: holds every input of each corpus against the target that is named as the file is.
#include <cstdio>
#include <filesystem>

#include "corpus_text.h"
#include "target.h"

int main(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "usage: replay CORPUS...\n");
        return 2;
    }
    for (int index = 1; index < count; ++index) {
        const calquo::Target& target = calquo::Target::find(std::filesystem::path(arguments[index]).stem().string());
        for (const std::string& input : calquo::readCorpus(arguments[index])) {
            std::fprintf(stderr, "%s\n", calquo::escapedInput(input).c_str());
            target.run({reinterpret_cast<const std::uint8_t*>(input.data()), input.size()});
        }
    }
    std::printf("%llu inputs\n", static_cast<unsigned long long>(calquo::executions()));
    return 0;
}
