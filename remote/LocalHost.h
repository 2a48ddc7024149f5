// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tonquil {

/// What the system says of the computer that the program runs on.
class LocalHost {
 public:
    using HardwareAddress = std::array<std::uint8_t, 6>;

    virtual ~LocalHost() = default;

    /// The computer's name as a user knows it, in UTF-8; asked for at every announce.
    [[nodiscard]] virtual std::string localizedName() const = 0;
    /// The MAC address of the main network interface; nothing where it cannot be read.
    [[nodiscard]] virtual std::optional<HardwareAddress> hardwareAddress() const = 0;
    /// Whether an IPv4 address (first number in the highest byte) is one of this computer's.
    [[nodiscard]] virtual bool hasAddress(std::uint32_t host) const = 0;
    /// Whether a datagram to this IPv4 address reaches every computer on one of the networks that
    /// this one is on. Asked for each datagram.
    [[nodiscard]] virtual bool isBroadcastAddress(std::uint32_t host) const = 0;
};

}  // namespace tonquil
