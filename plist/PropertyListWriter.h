// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Writes a property list as XML in UTF-8, indented with tabs, keys sorted.
///
/// A real that is a single is written with the fewest digits that tell it from other singles,
/// other reals with as many as a double needs. Infinities and not-a-number are "inf", "-inf" and
/// "nan".
///
/// What is written here, the reader reads back under the same budget: equal values of the same
/// types, reals to their single-precision bits. What it could not read back is a problem: null,
/// text that is not UTF-8 or has characters that XML cannot carry (most controls), a value beyond
/// the budget.
[[nodiscard]] Result<std::string> writePropertyList(const PropertyValue& value,
                                                    const PropertyListBudget& budget = {});

}  // namespace tonquil
