// How a fault ends the program.
#include <cstdio>
#include <cstdlib>

#include "targets.h"

namespace calquo {

void reportFault(const std::string& fault) {
    std::fprintf(stderr, "FAULT: %s\n", fault.c_str());
    std::abort();
}

}  // namespace calquo
