// The entry of libFuzzer.
#include "targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    calquo::check({data, size});
    return 0;
}
