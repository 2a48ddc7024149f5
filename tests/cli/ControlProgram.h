// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "plist/PropertyListWriter.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

/// A request to run the real tonquilctl. An empty display leaves DISPLAY unset.
[[nodiscard]] inline ProcessRequest tonquilctlRequest(const std::string& display,
                                                      const std::vector<std::string>& arguments) {
    ProcessRequest request{.command = {TONQUILCTL}};
    request.command.insert(request.command.end(), arguments.begin(), arguments.end());
    request.unset = {"WAYLAND_DISPLAY", "TONQUIL_DISPLAY_SERVICE", "DISPLAY"};
    // The displays of the desktop that the tests run on may be corrected over its buses.
    request.environment = {{"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
                           {"DBUS_SYSTEM_BUS_ADDRESS", "disabled:"}};
    if (!display.empty()) {
        request.environment["DISPLAY"] = display;
    }
    return request;
}

[[nodiscard]] inline ProcessResult tonquilctl(const std::string& display,
                                              const std::vector<std::string>& arguments) {
    return run(tonquilctlRequest(display, arguments)).value();
}

/// Creates a file with these contents, which exists as long as the test program runs.
[[nodiscard]] inline std::string fileWith(const std::string& contents) {
    static const ScratchFolder folder;
    static int count = 0;
    std::string path = folder.path() / ("file" + std::to_string(++count));
    std::ofstream(path, std::ios::binary) << contents;
    return path;
}

[[nodiscard]] inline std::string propertyListFile(const PropertyValue& value) {
    return fileWith(writePropertyList(value).value());
}

}  // namespace tonquil
