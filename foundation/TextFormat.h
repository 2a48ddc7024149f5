// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// Fills the placeholders of a translatable text with `arguments`: "%@" takes the next argument,
/// "%1$@" always the first, and "%%" is a percent sign.
///
/// A placeholder without an argument is left as written, and so is any other percent sign.
[[nodiscard]] std::string formattedText(std::string_view format,
                                        std::span<const std::string> arguments);

}  // namespace tonquil
