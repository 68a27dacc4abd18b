// The entry of a program of libFuzzer, which has one target.

#include "tests/fuzz/fuzz.h"

#include <cstdint>
#include <numeric>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const FuzzTarget target = FuzzTarget::All().at(0);
    isThorough = size % 4 == 0;
    // By the bytes, since targets choose by the size what is tried.
    isExhaustive = isThorough && std::accumulate(data, data + size, 0U) % 4 == 0;
    target.Run({reinterpret_cast<const char *>(data), size});
    return 0;
}
