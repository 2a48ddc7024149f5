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
/// The usual DTD is accepted but never loaded; one that declares its own entities or attributes is
/// refused, as is any entity not predefined by XML. A byte order mark, if present, is passed
/// separately.
[[nodiscard]] Result<PropertyValue> readXmlPropertyList(std::span<const std::uint8_t> mark,
                                                        std::span<const std::uint8_t> bytes,
                                                        const PropertyListBudget& budget);

}  // namespace tonquil
