// SPDX-License-Identifier: MIT
//
// Gives an output of an X server the identity of a made-up display:
//
//   setedid CONNECTOR MANUFACTURER PRODUCT SERIAL [SERIALTEXT] [NAME]
//
// MANUFACTURER is three capital letters, PRODUCT a number up to 65535, SERIAL one up to 4294967295.
// An empty SERIALTEXT or NAME counts as none.
#include <cstdlib>
#include <iostream>

#include "tests/support/EdidBuilder.h"
#include "tests/support/RampReader.h"

int main(int count, char** values) {
    std::vector<std::string> arguments(values + 1, values + count);
    const char* display = std::getenv("DISPLAY");
    if (arguments.size() < 4 || arguments.size() > 6 || display == nullptr) {
        std::cerr << "usage: setedid CONNECTOR MANUFACTURER PRODUCT SERIAL [SERIALTEXT] [NAME]\n"
                     "with the X server in DISPLAY\n";
        return EXIT_FAILURE;
    }
    arguments.resize(6);
    const auto text = [&](std::size_t index) {
        return arguments[index].empty() ? std::nullopt : std::optional(arguments[index]);
    };
    const auto edid = tonquil::buildEdid(
        {.manufacturer = arguments[1],
         .product = static_cast<std::uint16_t>(std::strtoul(arguments[2].c_str(), nullptr, 10)),
         .serial = static_cast<std::uint32_t>(std::strtoul(arguments[3].c_str(), nullptr, 10)),
         .serialText = text(4),
         .name = text(5)});
    const auto done = tonquil::RampReader::connect(display).and_then(
        [&](const auto& outputs) { return outputs.setEdid(arguments.front(), edid); });
    if (!done) {
        std::cerr << "setedid: " << done.error().sentence << '\n';
    }
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
