// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Reads an XML property list in UTF-8, UTF-16, ISO-8859-1 or ASCII.
///
/// The usual document type is accepted and nothing is ever loaded for it; one that declares
/// entities or attributes of its own is refused, as is any entity that XML itself does not name.
/// A byte order mark, if there is one, is given by itself.
[[nodiscard]] Result<PropertyValue> readXmlPropertyList(std::span<const std::uint8_t> mark,
                                                        std::span<const std::uint8_t> bytes,
                                                        const PropertyListBudget& budget);

}  // namespace tonquil
