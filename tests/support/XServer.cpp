// SPDX-License-Identifier: MIT
#include "tests/support/XServer.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <system_error>
#include <utility>

namespace tonquil {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds startLimit = std::chrono::seconds(30);
constexpr milliseconds stopLimit = std::chrono::seconds(10);

constexpr const char* configuration = R"(Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AllowMouseOpenFail" "true"
    Option "DontVTSwitch" "true"
EndSection
Section "Device"
    Identifier "dummy device"
    Driver "dummy"
    VideoRam 256000
EndSection
Section "Monitor"
    Identifier "dummy monitor"
    HorizSync 5.0-1000.0
    VertRefresh 5.0-200.0
EndSection
Section "Screen"
    Identifier "dummy screen"
    Device "dummy device"
    Monitor "dummy monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Virtual 5760 1080
    EndSubSection
EndSection
)";

// The server itself, past the wrapper in PATH that lets only people at the console start it.
constexpr const char* serverProgram = "/usr/lib/xorg/Xorg";

std::vector<std::string> commandFor(const XServer::Options& options,
                                    const std::filesystem::path& folder) {
    // The display's number comes through descriptor 3 as the first output.
    std::vector<std::string> command{"sh", "-c", "exec \"$@\" 3>&1", "sh"};
    const std::vector<std::string> dummy{serverProgram,      "-novtswitch",        "-sharevts",
                                         "-config",          folder / "xorg.conf", "-logfile",
                                         folder / "xorg.log"};
    const std::vector<std::string> framebuffer{"Xvfb", "-screen", "0", "1280x1024x24"};
    const auto& own = options.framebufferOnly ? framebuffer : dummy;
    command.insert(command.end(), own.begin(), own.end());
    // Without -noreset the server would forget everything when its last client leaves.
    const std::vector<std::string> common{"-displayfd", "3",          "-noreset", "-nolisten",
                                          "tcp",        "+extension", "RANDR"};
    command.insert(command.end(), common.begin(), common.end());
    command.insert(command.end(), options.arguments.begin(), options.arguments.end());
    return command;
}

bool answers(const std::string& display) {
    auto* connection = xcb_connect(display.c_str(), nullptr);
    const bool connected = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return connected;
}

}  // namespace

XServer::XServer(ScratchFolder folder, std::unique_ptr<BackgroundProcess> process,
                 std::string display)
    : _folder(std::move(folder)), _process(std::move(process)), _display(std::move(display)) {}

XServer::~XServer() {
    _process->send(SIGTERM);
    if (!_process->wait(stopLimit)) {
        _process->kill();
    }
    removeLeftovers();
}

Result<std::unique_ptr<XServer>> XServer::start(const Options& options) {
    // Two servers that start at the same moment may reach for the same display number.
    constexpr int attempts = 3;
    auto server = startOnce(options);
    for (int attempt = 1; !server && attempt < attempts; ++attempt) {
        server = startOnce(options);
    }
    return server;
}

Result<std::unique_ptr<XServer>> XServer::startOnce(const Options& options) {
    ScratchFolder folder;
    std::ofstream(folder.path() / "xorg.conf") << configuration;
    auto process = BackgroundProcess::start({.command = commandFor(options, folder.path())});
    if (!process) {
        return tl::unexpected(process.error());
    }
    if (!(*process)->waitForOutput("\n", startLimit)) {
        return problem("The X server does not start.", (*process)->kill().standardError);
    }
    const std::string output = (*process)->standardOutput();
    return std::unique_ptr<XServer>(new XServer(std::move(folder), std::move(*process),
                                                ":" + output.substr(0, output.find('\n'))));
}

Result<void> XServer::plug(const std::string& connector, const std::string& mode) {
    std::vector<std::string> arguments{"--output", connector, "--mode", mode};
    const bool isNew = std::find(_plugged.begin(), _plugged.end(), connector) == _plugged.end();
    if (isNew) {
        if (auto added = xrandr({"--addmode", connector, mode}); !added) {
            return tl::unexpected(added.error());
        }
        if (!_plugged.empty()) {
            arguments.insert(arguments.end(), {"--right-of", _plugged.back()});
        }
    }
    const auto lit = xrandr(arguments);
    if (lit && isNew) {
        _plugged.push_back(connector);
    }
    return lit.map([](const std::string&) {});
}

Result<void> XServer::unplug(const std::string& connector) {
    if (std::erase(_plugged, connector) == 0) {
        return problem("The output " + connector + " is not plugged in.");
    }
    if (auto dark = xrandr({"--output", connector, "--off"}); !dark) {
        return tl::unexpected(dark.error());
    }
    const auto outputs = XcbOutputs::connect(_display);
    return outputs ? outputs->removeAddedModes(connector) : tl::unexpected(outputs.error());
}

Result<void> XServer::setPhysicalSize(const std::string& connector, int widthMillimetres,
                                      int heightMillimetres) const {
    const auto set =
        xrandr({"--output", connector, "--set", "WIDTH_MM", std::to_string(widthMillimetres),
                "--output", connector, "--set", "HEIGHT_MM", std::to_string(heightMillimetres)});
    if (!set) {
        return tl::unexpected(set.error());
    }
    // The driver takes up the size when it is asked what is connected.
    return xrandr({"--query"}).map([](const std::string&) {});
}

Result<void> XServer::setEdid(const std::string& connector, const std::vector<std::uint8_t>& edid) {
    const auto outputs = XcbOutputs::connect(_display);
    return outputs ? outputs->setEdid(connector, edid) : tl::unexpected(outputs.error());
}

Result<void> XServer::setRootProperty(const std::string& name,
                                      const std::vector<std::uint8_t>& bytes) {
    const auto outputs = XcbOutputs::connect(_display);
    if (!outputs) {
        return tl::unexpected(outputs.error());
    }
    const auto property = outputs->atom(name);
    if (!property) {
        return tl::unexpected(property.error());
    }
    const std::string failure = "The root property " + name + " cannot be set.";
    auto* connection = outputs->connection();
    if (bytes.empty()) {
        return outputs->check(xcb_delete_property_checked(connection, outputs->root(), *property),
                              failure);
    }
    return outputs->check(
        xcb_change_property_checked(connection, XCB_PROP_MODE_REPLACE, outputs->root(), *property,
                                    XCB_ATOM_CARDINAL, 8, static_cast<std::uint32_t>(bytes.size()),
                                    bytes.data()),
        failure);
}

Result<std::string> XServer::xrandr(const std::vector<std::string>& arguments) const {
    ProcessRequest request;
    request.command = {"xrandr"};
    request.command.insert(request.command.end(), arguments.begin(), arguments.end());
    request.environment["DISPLAY"] = _display;
    const auto result = run(request);
    if (!result) {
        return tl::unexpected(result.error());
    }
    // It reports some failures, such as an output it does not know, on standard error alone.
    if (!result->succeeded() || result->standardError.find("not found") != std::string::npos) {
        return problem("xrandr " + arguments.front() + " fails.", result->standardError);
    }
    return result->standardOutput;
}

void XServer::kill() {
    _process->kill();
    removeLeftovers();
}

// A server that was killed leaves its socket. Another may have taken the number since: then it
// answers, and the socket is its own.
void XServer::removeLeftovers() const {
    if (!answers(_display)) {
        std::error_code ignored;
        std::filesystem::remove("/tmp/.X11-unix/X" + _display.substr(1), ignored);
    }
}

}  // namespace tonquil
