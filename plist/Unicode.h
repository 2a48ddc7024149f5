// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// Converts big-endian UTF-16 without a byte order mark to UTF-8. Nothing for an odd number of
/// bytes, an unpaired surrogate, or NUL.
[[nodiscard]] std::optional<std::string> utf8FromUtf16(std::span<const std::uint8_t> bytes);

/// Whether XML 1.0 can represent the character, escaped or not.
[[nodiscard]] constexpr bool isXmlCharacter(char32_t c) {
    return c == U'\t' || c == U'\n' || c == U'\r' || (c >= 0x20 && c < 0xD800) ||
           (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c <= 0x10FFFF);
}

/// Whether a property list can hold the text: valid UTF-8 that XML 1.0 can represent.
[[nodiscard]] bool isPropertyListText(std::string_view text);

}  // namespace tonquil
