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

/// The bytes that Base64 text stands for. White space may be anywhere; all else is strict: padded
/// to a multiple of four, nothing after the padding, no bits set that stand for nothing.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> bytesFromBase64(std::string_view text);

/// Base64 text of the bytes, padded, without line breaks.
[[nodiscard]] std::string base64FromBytes(std::span<const std::uint8_t> bytes);

}  // namespace tonquil
