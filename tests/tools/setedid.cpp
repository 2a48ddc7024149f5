// SPDX-License-Identifier: MIT
// Gives an output of an X server the identity of a made-up display.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/EdidBuilder.h"
#include "tests/support/XcbOutputs.h"

namespace {

constexpr const char* usage =
    "usage: setedid CONNECTOR MANUFACTURER PRODUCT SERIAL [SERIALTEXT] [NAME]\n"
    "Sets the EDID of an output. MANUFACTURER is three capital letters, PRODUCT a number up to\n"
    "65535, SERIAL one up to 4294967295. An empty SERIALTEXT or NAME counts as none.\n";

template <typename Number>
std::optional<Number> numberFrom(std::string_view text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

std::optional<tonquil::EdidDescription> describe(const std::vector<std::string>& arguments) {
    const auto product = numberFrom<std::uint16_t>(arguments[2]);
    const auto serial = numberFrom<std::uint32_t>(arguments[3]);
    if (arguments[1].find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") != std::string::npos ||
        arguments[1].size() != 3 || !product || !serial) {
        return std::nullopt;
    }
    tonquil::EdidDescription description;
    description.manufacturer = arguments[1];
    description.product = *product;
    description.serial = *serial;
    if (arguments.size() > 4 && !arguments[4].empty()) {
        description.serialText = arguments[4];
    }
    if (arguments.size() > 5 && !arguments[5].empty()) {
        description.name = arguments[5];
    }
    return description;
}

int fail(const std::string& sentence) {
    std::cerr << "setedid: " << sentence << '\n';
    return EXIT_FAILURE;
}

}  // namespace

int main(int count, char** values) {
    const std::vector<std::string> arguments(values + 1, values + std::max(count, 1));
    const auto description =
        arguments.size() < 4 || arguments.size() > 6 ? std::nullopt : describe(arguments);
    if (!description) {
        std::cerr << usage;
        return EXIT_FAILURE;
    }
    const char* display = std::getenv("DISPLAY");
    if (display == nullptr) {
        return fail("DISPLAY does not say which X server to look at.");
    }
    const auto outputs = tonquil::XcbOutputs::connect(display);
    if (!outputs) {
        return fail(outputs.error().sentence);
    }
    const auto done = outputs->setEdid(arguments.front(), tonquil::buildEdid(*description));
    return done ? EXIT_SUCCESS : fail(done.error().sentence);
}
