// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tonquil {

/// Where the system bus is.
[[nodiscard]] std::string systemBusAddress();
/// Where the session bus is; empty when there is none.
[[nodiscard]] std::string sessionBusAddress();
/// The UNIX sockets of an address: the other kinds start programs or look up hosts, and connecting
/// to them can block.
[[nodiscard]] std::string unixAddresses(std::string_view address);

}  // namespace tonquil
