// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// What a monitor says of itself in the first 128 bytes of its EDID (VESA Enhanced EDID Standard,
/// release A).
struct Edid {
    /// The 16-bit manufacturer code, three letters of five bits.
    std::uint32_t vendorNumber = 0;
    /// The manufacturer's product code.
    std::uint32_t modelNumber = 0;
    /// The 32-bit serial number; where that is 0 or a filler, a hash of the serial number's text;
    /// 0 where there is neither.
    std::uint32_t serialNumber = 0;
    /// May be empty; printable ASCII.
    std::string productName;
};

/// Nothing unless the bytes begin with a whole base block. The checksum is not checked: the system
/// that provides the block has already done that, and a block that is always wrong in the same way
/// still identifies its monitor.
[[nodiscard]] std::optional<Edid> parseEdid(std::span<const std::uint8_t> bytes);

/// A number for a text that identifies a display: its 32-bit FNV-1a hash, but never one of the two
/// values that stand for "no serial number". Settings are kept under it, so it must never change.
[[nodiscard]] std::uint32_t numberOf(std::string_view text);

/// Whether a connector such as "eDP-1" is inside a portable computer. Old names have no dash
/// ("LVDS1").
[[nodiscard]] bool isBuiltInConnector(std::string_view name);

}  // namespace tonquil
