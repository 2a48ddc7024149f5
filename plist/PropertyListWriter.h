// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Writes a property list as XML in UTF-8, indented with tabs, keys sorted.
///
/// A real that is exactly a float is written with the fewest digits that identify that float, any
/// other real with as many as a double needs. Infinities and NaN are "inf", "-inf" and "nan".
///
/// The reader reads the output back under the same budget to equal values of the same types; reals
/// round to the same float. What it could not read back is a problem: null, text that is not UTF-8
/// or has characters XML cannot represent (most control characters), a value beyond the budget.
[[nodiscard]] Result<std::string> writePropertyList(const PropertyValue& value,
                                                    const PropertyListBudget& budget = {});

}  // namespace tonquil
