// SPDX-License-Identifier: MIT
#include "foundation/TextFormat.h"

#include <charconv>
#include <cstddef>
#include <optional>

namespace tonquil {

namespace {

/// One placeholder of a format: its length as written, and the argument index from 0.
struct Place {
    std::size_t length;
    std::optional<std::size_t> argument;
};

/// Parses what follows a percent sign; nothing if it is no placeholder.
std::optional<Place> placeAt(std::string_view text) {
    if (text.starts_with("%@")) {
        return Place{.length = 2, .argument = std::nullopt};
    }
    const std::size_t digits = text.find_first_not_of("0123456789", 1);
    if (digits == std::string_view::npos || !text.substr(digits).starts_with("$@")) {
        return std::nullopt;
    }
    std::size_t number = 0;
    const auto read = std::from_chars(text.data() + 1, text.data() + digits, number);
    if (read.ec != std::errc() || number == 0) {
        return std::nullopt;
    }
    return Place{.length = digits + 2, .argument = number - 1};
}

}  // namespace

std::string formattedText(std::string_view format, std::span<const std::string> arguments) {
    std::string text;
    std::size_t next = 0;
    while (!format.empty()) {
        std::size_t length = 1;
        if (format.starts_with("%%")) {
            length = 2;
            text += '%';
        } else if (const auto place = format.front() == '%' ? placeAt(format) : std::nullopt) {
            length = place->length;
            const std::size_t index = place->argument ? *place->argument : next++;
            text += index < arguments.size() ? std::string_view(arguments[index])
                                             : format.substr(0, length);
        } else {
            text += format.front();
        }
        format.remove_prefix(length);
    }
    return text;
}

}  // namespace tonquil
