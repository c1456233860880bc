// The entry of libFuzzer; each executable is built for one target.

#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kvopt::fuzz::KVOPT_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}
