// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Whether the bytes set out to be a property list: the binary magic or, after an optional byte
/// order mark and white space, the beginning of an XML one. UTF-16 is looked into as well.
///
/// Bytes that begin so and then cannot be read are a damaged property list, nothing else.
[[nodiscard]] bool beginsLikePropertyList(std::span<const std::uint8_t> bytes);

/// Reads a property list of either encoding, XML or binary.
///
/// Dictionaries become objects, data becomes binary, integers stay integers (unsigned from 0 up)
/// and reals stay reals. A real has the single-precision bits that its text has when it is read as
/// a single. A date is kept as its text, in a string. Where a key occurs twice, the last one wins.
/// Strings and keys are valid UTF-8 without NUL.
///
/// The whole list is refused if any of it is damaged, is of a type not named above (null, say), or
/// breaks the budget. The problem's detail says what and where.
[[nodiscard]] Result<PropertyValue> readPropertyList(std::span<const std::uint8_t> bytes,
                                                     const PropertyListBudget& budget = {});

}  // namespace tonquil
