// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tonquil::remote {

/// Makes text from the network safe for a log or terminal: at most `mostBytes`, with an ellipsis if
/// it was cut. Control and layout characters, which could disguise the text, are escaped as "\x1b"
/// or "\u202e"; bytes that are not UTF-8 as "\xff".
[[nodiscard]] std::string printable(std::string_view text, std::size_t mostBytes);

}  // namespace tonquil::remote
