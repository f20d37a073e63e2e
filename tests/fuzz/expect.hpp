#pragma once

#include <cstdio>
#include <cstdlib>

namespace kivo::tests {

/// Ends the process, so that the fuzzer keeps the input.
inline void expect(bool holds, const char* otherwise) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", otherwise);
        std::abort();
    }
}

} // namespace kivo::tests
