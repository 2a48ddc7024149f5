// SPDX-License-Identifier: MIT
#include "tests/cli/ControlProgram.h"

#include <fstream>

#include "plist/PropertyListWriter.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

ProcessRequest tonquilctlRequest(const std::string& display,
                                 const std::vector<std::string>& arguments) {
    ProcessRequest request;
    request.command = {TONQUILCTL};
    request.command.insert(request.command.end(), arguments.begin(), arguments.end());
    request.unset = {"WAYLAND_DISPLAY", "TONQUIL_DISPLAY_SERVICE"};
    if (display.empty()) {
        request.unset.emplace_back("DISPLAY");
    } else {
        request.environment["DISPLAY"] = display;
    }
    return request;
}

ProcessResult tonquilctl(const std::string& display, const std::vector<std::string>& arguments) {
    return run(tonquilctlRequest(display, arguments)).value();
}

std::string fileWith(const std::string& contents) {
    static const ScratchFolder folder;
    static int count = 0;
    std::string path = folder.path() / ("file" + std::to_string(++count));
    std::ofstream(path, std::ios::binary) << contents;
    return path;
}

std::string propertyListFile(const PropertyValue& value) {
    return fileWith(writePropertyList(value).value());
}

}  // namespace tonquil
