// How a fuzz target says that a promise was broken.
#pragma once
#include <cstdio>
#include <cstdlib>

/// Ends the process, so that the fuzzer keeps the input, unless the promise `holds`.
inline void require(bool holds, const char* promise) {
    if (holds) return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}
