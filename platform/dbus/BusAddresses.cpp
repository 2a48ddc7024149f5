// SPDX-License-Identifier: MIT
#include "platform/dbus/BusAddresses.h"

#include <algorithm>
#include <cstdlib>

namespace tonquil {

namespace {

std::string_view variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

}  // namespace

std::string systemBusAddress() {
    const std::string_view given = variable("DBUS_SYSTEM_BUS_ADDRESS");
    return given.empty() ? "unix:path=/run/dbus/system_bus_socket" : unixAddresses(given);
}

std::string sessionBusAddress() {
    const std::string_view given = variable("DBUS_SESSION_BUS_ADDRESS");
    const std::string_view folder = variable("XDG_RUNTIME_DIR");
    if (!given.empty() || folder.empty()) {
        return unixAddresses(given);
    }
    return "unix:path=" + std::string(folder) + "/bus";
}

std::string unixAddresses(std::string_view address) {
    std::string sockets;
    while (!address.empty()) {
        const auto end = std::min(address.find(';'), address.size());
        const std::string_view alternative = address.substr(0, end);
        if (alternative.starts_with("unix:")) {
            sockets.append(sockets.empty() ? "" : ";").append(alternative);
        }
        address.remove_prefix(std::min(end + 1, address.size()));
    }
    return sockets;
}

}  // namespace tonquil
