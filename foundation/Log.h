// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

namespace tonquil {

/// Writes one line, without newline, to the system log. The composition root chooses where lines
/// go; an empty function drops them.
using Log = std::function<void(std::string_view line)>;

}  // namespace tonquil
