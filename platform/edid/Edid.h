// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/Primaries.h"

namespace tonquil {

/// What the first 128 bytes of a monitor's EDID say about it (VESA Enhanced EDID Standard, release
/// A).
struct Edid {
    /// The 16-bit manufacturer code, three letters of five bits.
    std::uint32_t vendorNumber = 0;
    /// The manufacturer's product code.
    std::uint32_t modelNumber = 0;
    /// The 32-bit serial number; if that is 0 or a filler, a hash of the serial number text; 0 if
    /// there is neither.
    std::uint32_t serialNumber = 0;
    /// In whole centimetres, as the kernel has it too; 0 where the monitor does not say.
    double widthInMillimetres = 0;
    double heightInMillimetres = 0;
    /// May be empty; printable ASCII.
    std::string productName;
    /// Nothing if the block has none that could be a display's.
    std::optional<Primaries> primaries = {};
};

/// Returns nothing unless the bytes start with a complete base block. Does not verify the checksum:
/// the system that provides the block already did, and a block that is always wrong in the same way
/// still identifies its monitor.
[[nodiscard]] std::optional<Edid> parseEdid(std::span<const std::uint8_t> bytes);

/// A number for a text that identifies a display: its 32-bit FNV-1a hash, but never one of the two
/// values that stand for "no serial number". Settings are stored under it, so it must never change.
[[nodiscard]] std::uint32_t numberOf(std::string_view text);

/// Whether a connector such as "eDP-1" is inside a portable computer. Old names have no dash
/// ("LVDS1").
[[nodiscard]] bool isBuiltInConnector(std::string_view name);

}  // namespace tonquil
