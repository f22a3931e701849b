// Lines and answers go through files, so that every build is asked in the same way.
#include "builds.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace calquo {

std::vector<std::vector<std::string>> ask(const Run& run, const std::vector<std::string>& lines, NumericFormat word) {
    const std::filesystem::path asked = run.folder / "lines", answered = run.folder / "answers";
    {
        std::ofstream file(asked);
        for (const std::string& line : lines) {
            file << line << "\n";
        }
    }
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08X", word);
    std::vector<std::vector<std::string>> answers;
    for (const Build& build : run.builds) {
        const std::string command =
            build.command + " --word " + digits + " <'" + asked.string() + "' >'" + answered.string() + "'";
        const int status = std::system(command.c_str());
        std::vector<std::string> ofBuild;
        std::ifstream file(answered);
        for (std::string answer; std::getline(file, answer);) {
            if (answer.ends_with('\r')) {
                answer.pop_back();
            }
            ofBuild.push_back(answer);
        }
        if (status != 0 || ofBuild.size() != lines.size()) {
            throw std::runtime_error("not every line is answered by " + build.command);
        }
        answers.push_back(std::move(ofBuild));
    }
    return answers;
}

void printHeading(const Run& run, const std::string& firstColumns, const std::string& lastColumn) {
    std::string heading = "| " + firstColumns + " |";
    for (const Build& build : run.builds) {
        heading += " " + build.name + " |";
    }
    heading += lastColumn.empty() ? "" : " " + lastColumn + " |";
    std::printf("%s\n|", heading.c_str());
    for (auto bars = std::count(heading.begin(), heading.end(), '|'); bars > 1; --bars) {
        std::printf("---|");
    }
    std::printf("\n");
}

}  // namespace calquo
