// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// Puts `arguments` in the places of a translatable text: "%@" takes the next argument, "%1$@" the
/// first whatever came before, and "%%" is a percent sign.
///
/// A place without an argument stays as it is written, and so does every other percent sign.
[[nodiscard]] std::string formattedText(std::string_view format,
                                        std::span<const std::string> arguments);

}  // namespace tonquil
