// SPDX-License-Identifier: MIT
#include "platform/posix/InstanceName.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace tonquil {

namespace {

std::string variableNamed(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

}  // namespace

std::string instanceName() {
    std::string name = "instance-";
    std::string display = variableNamed("DISPLAY");
    // The screen number after the point does not make it another display.
    display.erase(std::min(display.find('.', display.rfind(':')), display.size()));
    for (const char c : display.empty() ? variableNamed("WAYLAND_DISPLAY") : display) {
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    }
    return name;
}

}  // namespace tonquil
