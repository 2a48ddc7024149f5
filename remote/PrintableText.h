// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tonquil::remote {

/// Text from the network for a log or a terminal: at most `mostBytes` of it, with an ellipsis
/// where something is left out. Control and layout characters, with which it could pretend to be
/// something else, are written as "\x1b" or "\u202e"; bytes that are not UTF-8 as "\xff".
[[nodiscard]] std::string printable(std::string_view text, std::size_t mostBytes);

}  // namespace tonquil::remote
