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

/// Reads the arguments of a message in order. An argument of an unexpected type yields nothing, and
/// so does everything after it.
class BusArguments {
 public:
    /// A variant's value, if it has one of these types.
    using Value = std::variant<std::monostate, bool, std::uint32_t, std::string>;

    /// The message must outlive the reader.
    explicit BusArguments(sd_bus_message* message) : _message(message) {}

    /// The object that a signal comes from; empty for other messages.
    [[nodiscard]] std::string path() const;
    [[nodiscard]] std::optional<bool> boolean();
    [[nodiscard]] std::optional<std::uint32_t> number();
    [[nodiscard]] std::optional<std::uint64_t> longNumber();
    /// A string or an object path; empty for any other type.
    [[nodiscard]] std::string text();
    [[nodiscard]] std::vector<std::string> texts();
    [[nodiscard]] Value value();
    /// Calls `read` with the key of each dictionary entry; it must read the entry's value.
    void eachEntry(const std::function<void(const std::string& key)>& read);
    /// Calls `read` for each structure of an array; it may leave members at the end unread.
    void eachStructure(const std::function<void()>& read);
    /// Calls `read` for what a variant holds, whatever its type.
    void insideVariant(const std::function<void()>& read);

 private:
    /// Skips what is left of the present container, and leaves that.
    [[nodiscard]] bool leave();

    sd_bus_message* _message;
};

}  // namespace tonquil
