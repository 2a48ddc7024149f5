// SPDX-License-Identifier: MIT
#pragma once

#include <systemd/sd-bus.h>

#include <memory>

namespace tonquil {

struct CloseBus {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
};
using BusPointer = std::unique_ptr<sd_bus, CloseBus>;

struct ReleaseBusMessage {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using BusMessagePointer = std::unique_ptr<sd_bus_message, ReleaseBusMessage>;

}  // namespace tonquil
