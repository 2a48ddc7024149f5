// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tonquil {

/// The identity of a made-up display.
struct EdidDescription {
    /// Three capital letters.
    std::string manufacturer = "TQL";
    std::uint16_t product = 1;
    std::uint32_t serial = 0;
    /// At most 13 characters; longer text is cut, because the format has no room for more.
    std::optional<std::string> serialText = std::nullopt;
    std::optional<std::string> name = std::nullopt;
};

/// The 128 bytes of a valid EDID 1.4 base block, with its checksum.
[[nodiscard]] std::vector<std::uint8_t> buildEdid(const EdidDescription& description);

}  // namespace tonquil
