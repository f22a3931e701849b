// The lines that calq is compared with other calculators on, in the words of each, in groups.
#pragma once

#include <span>

namespace calquo::bench {

/// One calculation in the words of each program, an empty text where one does not know it, and what is left of it when
/// nothing has to be read or written: the calls of the maths library and the arithmetic, in extended precision.
struct Row {
    const char* group;
    const char* calq;
    const char* muParser;
    const char* bc;  ///< With its library of functions.
    const char* qalc;
    long double (*arithmetic)();
};

/// The rows of a group stand together.
std::span<const Row> corpus();

}  // namespace calquo::bench
