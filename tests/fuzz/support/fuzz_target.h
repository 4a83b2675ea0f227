// How a fuzz target gets its input. FUZZ_TARGET(NAME) { ... } stands in namespace fuzz_NAME, as all targets are one
// program where they are replayed, and sees the `size` bytes at `data`.
#pragma once
#include <cstddef>
#include <cstdint>

#ifdef TESSARY_FUZZERS

#define FUZZ_TARGET(name) extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)

#else

#include <map>
#include <string>

using FuzzTarget = int (*)(const std::uint8_t* data, std::size_t size);

/// All targets of the program, by their names.
inline std::map<std::string, FuzzTarget>& fuzzTargets() {
    static std::map<std::string, FuzzTarget> targets;
    return targets;
}

#define FUZZ_TARGET(name)                                                    \
    static int replay(const std::uint8_t* data, std::size_t size);           \
    static const bool isKnown = fuzzTargets().emplace(#name, replay).second; \
    static int replay(const std::uint8_t* data, std::size_t size)

#endif
