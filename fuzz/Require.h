// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

namespace tonquil {

/// Aborts the fuzzer if the condition does not hold.
inline void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace tonquil
