// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// Decodes Base64 text. White space may appear anywhere; everything else is strict: padded to a
/// multiple of four, nothing after the padding, no unused bits set.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> bytesFromBase64(std::string_view text);

/// Encodes bytes as padded Base64, without line breaks.
[[nodiscard]] std::string base64FromBytes(std::span<const std::uint8_t> bytes);

}  // namespace tonquil
