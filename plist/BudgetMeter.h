// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"

namespace tonquil {

/// Counts how much of its budget a property list has used while it is read or written.
class BudgetMeter {
 public:
    explicit BudgetMeter(const PropertyListBudget& budget) : _budget(budget) {}

    /// Counts one value at nesting level `depth`, where 1 is the root.
    [[nodiscard]] Result<void> countValue(std::size_t depth);
    /// Counts text, a key or data; call it before copying the bytes.
    [[nodiscard]] Result<void> countText(std::size_t bytes);
    /// Checks the file size in bytes against the budget.
    [[nodiscard]] Result<void> checkFileSize(std::size_t bytes) const;

 private:
    PropertyListBudget _budget;
    std::size_t _values = 0;
    std::size_t _text = 0;
};

}  // namespace tonquil
