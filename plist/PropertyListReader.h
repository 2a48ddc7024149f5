// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Whether the bytes start like a property list: with the binary magic or, after an optional byte
/// order mark and white space, like XML. Recognises UTF-16 too.
///
/// Bytes that start this way but cannot be read are a damaged property list, and not some other
/// kind of file.
[[nodiscard]] bool beginsLikePropertyList(std::span<const std::uint8_t> bytes);

/// Reads a property list, XML or binary.
///
/// Dictionaries become objects, data becomes binary, integers stay integers (unsigned from 0 up)
/// and reals stay reals. A real rounds to the same float as its text does. A date is kept as text,
/// in a string. If a key occurs twice, the last one wins. Strings and keys are valid UTF-8 without
/// NUL.
///
/// The whole list is refused if any part is damaged, has a type not named above (null, for
/// example), or exceeds the budget. The problem's detail says what and where.
[[nodiscard]] Result<PropertyValue> readPropertyList(std::span<const std::uint8_t> bytes,
                                                     const PropertyListBudget& budget = {});

}  // namespace tonquil
