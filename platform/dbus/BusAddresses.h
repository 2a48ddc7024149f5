// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tonquil {

/// The address of the system bus.
[[nodiscard]] std::string systemBusAddress();
/// The address of the session bus; empty if there is none.
[[nodiscard]] std::string sessionBusAddress();
/// Only the UNIX sockets of an address: the other kinds start programs or look up hosts, so
/// connecting to them can block.
[[nodiscard]] std::string unixAddresses(std::string_view address);

}  // namespace tonquil
