// calq: the calculator for the console.
#include "console/calq.h"

int main(int count, char** arguments) {
    const std::span<const char* const> all(arguments, static_cast<std::size_t>(count));
    return calquo::runCalq(all.subspan(count > 0 ? 1 : 0));
}
