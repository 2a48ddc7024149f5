// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
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
    using Value =
        std::variant<std::monostate, bool, std::uint32_t, std::string, std::vector<std::string>>;

    /// The message must outlive the reader.
    explicit BusArguments(sd_bus_message* message) : _message(message) {}

    /// The object that a signal comes from; empty for other messages.
    [[nodiscard]] std::string path() const;
    [[nodiscard]] std::optional<bool> boolean();
    /// An unsigned number of 32 or of 64 bits.
    [[nodiscard]] std::optional<std::uint32_t> number();
    [[nodiscard]] std::optional<std::uint64_t> longNumber();
    /// A signed number of 32 bits.
    [[nodiscard]] std::optional<std::int32_t> integer();
    [[nodiscard]] std::optional<double> real();
    /// A string or an object path; empty for any other type.
    [[nodiscard]] std::string text();
    /// An array of strings or of object paths.
    [[nodiscard]] std::vector<std::string> texts();
    /// How many 16-bit numbers an array of them has.
    [[nodiscard]] std::optional<std::size_t> entryCount();
    [[nodiscard]] Value value();
    /// Calls `read` with the key of each dictionary entry; it must read the entry's value.
    void eachEntry(const std::function<void(const std::string& key)>& read);
    /// Calls `read` for each structure of an array; it may leave members at the end unread.
    void eachStructure(const std::function<void()>& read);
    /// Calls `read` for a single structure, in the same way.
    void structure(const std::function<void()>& read);
    /// Calls `read` for what a variant holds, whatever its type.
    void insideVariant(const std::function<void()>& read);
    /// Skips one argument of whatever type.
    void skip();

 private:
    bool readStructure(const std::function<void()>& read);
    /// Skips what is left of the present container, and leaves that.
    [[nodiscard]] bool leave();

    sd_bus_message* _message;
};

}  // namespace tonquil
