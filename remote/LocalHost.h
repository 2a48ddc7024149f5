// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tonquil {

/// System information about this computer.
class LocalHost {
 public:
    using HardwareAddress = std::array<std::uint8_t, 6>;

    virtual ~LocalHost() = default;

    /// The computer's name for users, in UTF-8; queried for every announce.
    [[nodiscard]] virtual std::string localizedName() const = 0;
    /// The MAC address of the main network interface; nothing if it cannot be read.
    [[nodiscard]] virtual std::optional<HardwareAddress> hardwareAddress() const = 0;
    /// Whether an IPv4 address (first number in the highest byte) belongs to this computer.
    [[nodiscard]] virtual bool hasAddress(std::uint32_t host) const = 0;
    /// Whether this IPv4 address is a broadcast address of a network that this computer is on.
    /// Queried for every datagram.
    [[nodiscard]] virtual bool isBroadcastAddress(std::uint32_t host) const = 0;
};

}  // namespace tonquil
