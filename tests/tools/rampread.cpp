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

std::vector<std::size_t> entriesToShow(std::size_t size, bool full) {
    constexpr std::size_t steps = 8;
    std::vector<std::size_t> indexes;
    if (full || size <= steps) {
        for (std::size_t index = 0; index < size; ++index) {
            indexes.push_back(index);
        }
        return indexes;
    }
    for (std::size_t step = 0; step <= steps; ++step) {
        indexes.push_back(step * (size - 1) / steps);
    }
    return indexes;
}

void print(const OutputState& output, const Ramp& ramp, bool full) {
    std::cout << output.connector << '\t' << output.width << 'x' << output.height << '\t'
              << ramp.red.size() << '\n';
    for (const std::size_t index : entriesToShow(ramp.red.size(), full)) {
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
        if (std::none_of(outputs->begin(), outputs->end(), [&](const OutputState& output) {
                return output.connector == connector;
            })) {
            return fail("There is no lit output named " + connector + ".");
        }
    }
    for (const auto& output : *outputs) {
        if (!connectors.empty() &&
            std::find(connectors.begin(), connectors.end(), output.connector) == connectors.end()) {
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
    bool full = false;
    std::vector<std::string> connectors;
    for (int index = 1; index < count; ++index) {
        const std::string argument = arguments[index];
        if (argument == "--full") {
            full = true;
        } else if (argument == "--help") {
            std::cout << usage;
            return EXIT_SUCCESS;
        } else if (argument.starts_with('-')) {
            std::cerr << usage;
            return EXIT_FAILURE;
        } else {
            connectors.push_back(argument);
        }
    }
    return printRamps(connectors, full);
}
