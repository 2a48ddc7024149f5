// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/dbus/BusPointers.h"

namespace tonquil {

/// Reads the arguments of a message in their order. One of another type than is asked for gives
/// nothing, and so does everything after it.
class BusArguments {
 public:
    /// A variant, as far as it is of one of these types.
    using Value = std::variant<std::monostate, bool, std::uint32_t, std::string>;

    /// The message must outlive the reader.
    explicit BusArguments(sd_bus_message* message) : _message(message) {}

    [[nodiscard]] std::optional<bool> boolean();
    /// A text or an object path; empty when it is neither.
    [[nodiscard]] std::string text();
    [[nodiscard]] std::vector<std::string> texts();
    [[nodiscard]] Value value();
    /// Calls with the key of each entry of a dictionary; the call reads the entry's value.
    void eachEntry(const std::function<void(const std::string& key)>& read);

 private:
    sd_bus_message* _message;
};

}  // namespace tonquil
