// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

namespace tonquil {

/// Stops the fuzzer at an input for which this does not hold.
inline void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace tonquil
