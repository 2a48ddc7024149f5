// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// UTF-8 of big-endian UTF-16 without a byte order mark. Nothing where there is half a unit, a
/// surrogate without its other half, or NUL.
[[nodiscard]] std::optional<std::string> utf8FromUtf16(std::span<const std::uint8_t> bytes);

/// Whether XML 1.0 can carry the character, escaped or not.
[[nodiscard]] constexpr bool isXmlCharacter(char32_t c) {
    return c == U'\t' || c == U'\n' || c == U'\r' || (c >= 0x20 && c < 0xD800) ||
           (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c <= 0x10FFFF);
}

/// Whether a property list can hold the text: valid UTF-8 that XML 1.0 can carry.
[[nodiscard]] bool isPropertyListText(std::string_view text);

}  // namespace tonquil
