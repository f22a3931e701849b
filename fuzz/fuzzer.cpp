// The entries of libFuzzer. The variable CALQUO_FUZZ_TARGET names the target.
#include <cinttypes>
#include <cstdio>
#include <cstdlib>

#include "target.h"

namespace {

void printExecutions() { std::fprintf(stderr, "%" PRIu64 " inputs\n", calquo::executions()); }

const calquo::Target& chosenTarget() {
    const char* const name = std::getenv("CALQUO_FUZZ_TARGET");
    return calquo::Target::find(name != nullptr ? name : "");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const calquo::Target& target = chosenTarget();
    static const bool printsAtExit = std::atexit(printExecutions) == 0;
    static_cast<void>(printsAtExit);
    target.run({data, size});
    return 0;
}
