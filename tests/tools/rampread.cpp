// SPDX-License-Identifier: MIT
// Prints the hardware ramps of an X server's lit outputs.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "tests/support/RampReader.h"

namespace {

using tonquil::OutputState;
using tonquil::Ramp;

constexpr const char* usage =
    "usage: rampread [--full] [CONNECTOR...]\n"
    "Prints for each lit output, or for those named: its connector, its picture in pixels and the\n"
    "number of entries of its ramp, then entries as index, red, green and blue between tabs, from\n"
    "0 to 65535. Nine of them spread evenly, or with --full all.\n";

void print(const OutputState& output, const Ramp& ramp, bool full) {
    std::cout << output.connector << '\t' << output.width << 'x' << output.height << '\t'
              << ramp.red.size() << '\n';
    const std::size_t last = ramp.red.size() - 1;
    const std::size_t steps = full || last < 8 ? last : 8;
    for (std::size_t step = 0; step <= steps && last < ramp.red.size(); ++step) {
        const std::size_t index = steps == 0 ? 0 : step * last / steps;
        std::cout << index << '\t' << ramp.red[index] << '\t' << ramp.green[index] << '\t'
                  << ramp.blue[index] << '\n';
    }
}

int fail(const std::string& sentence) {
    std::cerr << "rampread: " << sentence << '\n';
    return EXIT_FAILURE;
}

int printRamps(const std::vector<std::string>& connectors, bool full) {
    const char* display = std::getenv("DISPLAY");
    if (display == nullptr) {
        return fail("DISPLAY does not say which X server to look at.");
    }
    const auto reader = tonquil::RampReader::connect(display);
    if (!reader) {
        return fail(reader.error().sentence);
    }
    const auto outputs = reader->litOutputs();
    if (!outputs) {
        return fail(outputs.error().sentence);
    }
    for (const auto& connector : connectors) {
        if (std::ranges::count(*outputs, connector, &OutputState::connector) == 0) {
            return fail("There is no lit output named " + connector + ".");
        }
    }
    for (const auto& output : *outputs) {
        if (!connectors.empty() && std::ranges::count(connectors, output.connector) == 0) {
            continue;
        }
        const auto ramp = reader->read(output.connector);
        if (!ramp) {
            return fail(ramp.error().sentence);
        }
        print(output, *ramp, full);
    }
    return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** arguments) {
    std::vector<std::string> connectors(arguments + 1, arguments + std::max(count, 1));
    const bool full = std::erase(connectors, "--full") > 0;
    if (std::ranges::any_of(connectors, [](const auto& each) { return each.starts_with('-'); })) {
        std::cerr << usage;
        return EXIT_FAILURE;
    }
    return printRamps(connectors, full);
}
