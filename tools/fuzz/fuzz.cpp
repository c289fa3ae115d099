// The fuzzer's entry: one program a target, named by the build.
#include <cstddef>
#include <cstdint>
#include <string_view>

#ifdef HOME_TARGET
#include "tools/fuzz/HomeTargets.h"
#else
#include "tools/fuzz/Targets.h"
#endif

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    mFuzz::TARGET(std::string_view(reinterpret_cast<const char*>(data), size));
    return 0;
}
