// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "foundation/Problem.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Reads JSON from outside the program, such as the command line or the network.
///
/// Before parsing, the text must pass a linear scan: at most 16 levels of nesting, at most 4,096
/// separators and no NUL, all far above any real use. Never throws.
[[nodiscard]] Result<PropertyValue> readBoundedJson(std::string_view text);

}  // namespace tonquil
