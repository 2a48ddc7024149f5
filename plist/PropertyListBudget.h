// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace tonquil {

/// How large a property list may be. The defaults are far above any real one of ours.
struct PropertyListBudget {
    /// Size of the file, bytes.
    std::size_t mostBytes = std::size_t{1} << 20;
    /// Levels of values: 1 for a lone value, 2 for an array of strings.
    std::size_t deepest = 32;
    /// Values, counted as expanded: one that is referred to twice counts twice.
    std::size_t mostValues = 65'536;
    /// Text, keys and data together, bytes (UTF-8), counted as expanded.
    std::size_t mostText = std::size_t{4} << 20;
};

}  // namespace tonquil
