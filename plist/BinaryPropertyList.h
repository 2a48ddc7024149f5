// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Reads a binary property list of any minor version.
///
/// A set is read as an array, an identifier as its integer, a date as the text that XML would have
/// (years 1 to 9999, whole seconds). Lists that contain themselves exceed the budget.
[[nodiscard]] Result<PropertyValue> readBinaryPropertyList(std::span<const std::uint8_t> bytes,
                                                           const PropertyListBudget& budget);

}  // namespace tonquil
