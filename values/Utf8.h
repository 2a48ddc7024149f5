// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tonquil {

/// Takes the first character off UTF-8 text that is not empty. Nothing, and the text as it was,
/// where it does not begin with a valid one: overlong forms and surrogates are not.
[[nodiscard]] std::optional<char32_t> takeCharacter(std::string_view& text);

/// Whether the bytes are UTF-8 from end to end.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Appends a character as UTF-8. It must be no surrogate and at most U+10FFFF.
void appendUtf8(std::string& text, char32_t character);

}  // namespace tonquil
