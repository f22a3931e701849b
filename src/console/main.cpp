// calq: the calculator for the console.
#include "console/calq.h"

#ifdef _WIN32
// Keeps the start-up code of the C library from taking "2*3" for a pattern of file names.
extern "C" {
int _CRT_glob = 0;
}
#endif

int main(int count, char** arguments) {
    const std::span<const char* const> all(arguments, static_cast<std::size_t>(count));
    return calquo::runCalq(all.subspan(count > 0 ? 1 : 0));
}
