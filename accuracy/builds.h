// The builds of calq that are asked, and their answers.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "format/numeric_format.h"

namespace calquo {

struct Build {
    std::string name;
    std::string command;  ///< Of the shell; answers the lines that it reads.
};

/// What a section of the page is made from.
struct Run {
    int count;  ///< Of random arguments for each row.
    std::uint64_t seed;
    std::string only;  ///< The function to be measured; empty for all.
    std::filesystem::path folder;
    std::vector<Build> builds;
};

/// The answers of each build to all lines, under a word of format. Throws std::runtime_error unless there is one a
/// line.
std::vector<std::vector<std::string>> ask(const Run& run, const std::vector<std::string>& lines, NumericFormat word);

/// Prints the heading of a table that has a column for each build.
void printHeading(const Run& run, const std::string& firstColumns, const std::string& lastColumn = "");

/// Each prints a table of the page, and what is wrong to the other stream. Returns whether all is well.
bool measureFunctions(const Run& run);
bool measureReading(const Run& run);
bool measureWriting(const Run& run);

}  // namespace calquo
