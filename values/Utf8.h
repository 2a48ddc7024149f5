// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tonquil {

/// Takes the first character off non-empty UTF-8 text. If the text does not start with a valid
/// character (overlong forms and surrogates are invalid), returns nothing and leaves the text
/// unchanged.
[[nodiscard]] std::optional<char32_t> takeCharacter(std::string_view& text);

/// Whether all bytes are valid UTF-8.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Appends a character as UTF-8. It must not be a surrogate and is at most U+10FFFF.
void appendUtf8(std::string& text, char32_t character);

}  // namespace tonquil
