// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "remote/LocalHost.h"

namespace tonquil {

/// The indices of the interfaces that are up, have an IPv4 address and can broadcast.
[[nodiscard]] std::vector<int> broadcastInterfaces();

/// Whether an IPv4 address (first number in the highest byte) is one of this computer's; all of
/// 127.0.0.0/8 is.
[[nodiscard]] bool isOwnAddress(std::uint32_t host);

/// The broadcast addresses of the networks that this computer is connected to.
[[nodiscard]] std::vector<std::uint32_t> broadcastAddresses();

/// The hardware address of the lowest-numbered interface that is up and of the Ethernet kind, which
/// includes wireless ones; nothing if there is none.
[[nodiscard]] std::optional<LocalHost::HardwareAddress> mainHardwareAddress();

}  // namespace tonquil
