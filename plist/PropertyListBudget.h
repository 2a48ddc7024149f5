// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace tonquil {

/// Size limits of a property list. The defaults are far above any real list of ours.
struct PropertyListBudget {
    /// Size of the file, bytes.
    std::size_t mostBytes = std::size_t{1} << 20;
    /// Nesting levels: 1 for a lone value, 2 for an array of strings.
    std::size_t deepest = 32;
    /// Number of values, counted as expanded: a value referenced twice counts twice.
    std::size_t mostValues = 65'536;
    /// Text, keys and data together, bytes (UTF-8), counted as expanded.
    std::size_t mostText = std::size_t{4} << 20;
};

}  // namespace tonquil
