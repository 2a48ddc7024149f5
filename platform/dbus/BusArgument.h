// SPDX-License-Identifier: MIT
#pragma once

#include <systemd/sd-bus.h>

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tonquil {

/// An object path, where a text would be another type.
struct BusObjectPath {
    std::string path;
};
/// A dictionary of variants, all of them texts (a{sv}).
using BusDictionary = std::map<std::string, std::string>;
/// A list of names, each with such a dictionary (a(sa{sv})).
using BusNamedDictionaries = std::vector<std::pair<std::string, BusDictionary>>;

/// An argument of a method call.
using BusArgument = std::variant<std::string, std::uint32_t, std::vector<std::string>,
                                 std::span<const std::uint16_t>, BusObjectPath, BusDictionary,
                                 BusNamedDictionaries>;

/// Appends an argument to a message; negative if it has no valid form, such as a text that is not
/// UTF-8.
[[nodiscard]] int appendArgument(sd_bus_message* message, const BusArgument& argument);

}  // namespace tonquil
