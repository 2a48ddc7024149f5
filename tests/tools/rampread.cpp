// SPDX-License-Identifier: MIT
//
// Prints the hardware ramps of an X server's lit outputs:
//
//   rampread [--full] [CONNECTOR...]
//
// For each, or for those named: its connector and the number of entries of its ramp, then entries
// as index, red, green and blue between tabs, from 0 to 65535. About nine of them spread evenly, or
// with --full all.
#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "tests/support/RampReader.h"

int main(int count, char** arguments) {
    std::vector<std::string> connectors(arguments + 1, arguments + count);
    const bool full = std::erase(connectors, "--full") > 0;
    const char* display = std::getenv("DISPLAY");
    const auto fail = [](const std::string& sentence) {
        std::cerr << "rampread: " << sentence << '\n';
        return EXIT_FAILURE;
    };
    const auto reader = tonquil::RampReader::connect(display == nullptr ? "" : display);
    if (!reader) {
        return fail(reader.error().sentence);
    }
    if (connectors.empty()) {
        const auto outputs = reader->all().value();
        for (const auto& output : outputs) {
            if (output.crtc != XCB_NONE) {
                connectors.push_back(output.connector);
            }
        }
    }
    for (const auto& connector : connectors) {
        const auto ramp = reader->read(connector);
        if (!ramp) {
            return fail(ramp.error().sentence);
        }
        const std::size_t size = ramp->red.size();
        std::cout << connector << '\t' << size << '\n';
        const std::size_t step = full ? 1 : std::max<std::size_t>((size - 1) / 8, 1);
        for (std::size_t index = 0; index < size; index += step) {
            std::cout << index << '\t' << ramp->red[index] << '\t' << ramp->green[index] << '\t'
                      << ramp->blue[index] << '\n';
        }
    }
    return EXIT_SUCCESS;
}
