// The entry of libFuzzer, for the one target that CALQUO_FUZZ_TARGET names.
#include "targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    calquo::CALQUO_FUZZ_TARGET({data, size});
    return 0;
}
