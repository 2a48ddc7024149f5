// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

namespace tonquil {

/// Takes one line for the system log, without its newline. Whoever composes a program decides
/// where lines go; an empty function drops them.
using Log = std::function<void(std::string_view line)>;

}  // namespace tonquil
