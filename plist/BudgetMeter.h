// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"

namespace tonquil {

/// Counts what a property list has used of its budget while it is read or written.
class BudgetMeter {
 public:
    explicit BudgetMeter(const PropertyListBudget& budget) : _budget(budget) {}

    /// Counts one value that lies `depth` levels deep, 1 being the outermost.
    [[nodiscard]] Result<void> countValue(std::size_t depth);
    /// Counts text, a key or data; call it before copying them.
    [[nodiscard]] Result<void> countText(std::size_t bytes);
    /// Holds the size of the file, bytes, against the budget.
    [[nodiscard]] Result<void> checkFileSize(std::size_t bytes) const;

 private:
    PropertyListBudget _budget;
    std::size_t _values = 0;
    std::size_t _text = 0;
};

}  // namespace tonquil
