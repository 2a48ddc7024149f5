// SPDX-License-Identifier: MIT
#include "tests/support/XServer.h"

#include <algorithm>
#include <chrono>
#include <fstream>

#include "tests/support/RampReader.h"

namespace tonquil {

namespace {

constexpr const char* configuration = R"(
Section "ServerFlags" Option "AutoAddDevices" "false" Option "AllowMouseOpenFail" "true"
    Option "DontVTSwitch" "true"
EndSection
Section "Device" Identifier "device" Driver "dummy" VideoRam 256000 EndSection
Section "Monitor" Identifier "monitor" HorizSync 5.0-1000.0
    VertRefresh 5.0-200.0
EndSection
Section "Screen" Identifier "screen" Device "device" Monitor "monitor" DefaultDepth 24
    SubSection "Display" Depth 24 Virtual 5760 1080 EndSubSection
EndSection
)";

// Using its full path starts the server without the wrapper that only lets console users start it.
// It writes its display number to file descriptor 3. Without -noreset it would reset its state when
// its last client disconnects.
constexpr const char* script = R"(
server="/usr/lib/xorg/Xorg -novtswitch -sharevts -config $folder/xorg.conf -logfile $folder/xorg.log"
[ -n "$framebuffer" ] && server="Xvfb -screen 0 1280x1024x24"
exec $server -displayfd 3 -noreset -nolisten tcp +extension RANDR "$@" 3>&1
)";

}  // namespace

XServer::XServer(const Options& options) {
    std::ofstream(_folder.path() / "xorg.conf") << configuration;
    ProcessRequest request{.command = {"sh", "-c", script, "sh"},
                           .environment = {{"folder", _folder.path()},
                                           {"framebuffer", options.framebufferOnly ? "1" : ""}}};
    request.command.insert(request.command.end(), options.arguments.begin(),
                           options.arguments.end());
    _process = BackgroundProcess::start(request).value();
    if (_process->waitForOutput("\n", std::chrono::seconds(30))) {
        const std::string output = _process->standardOutput();
        _display = ":" + output.substr(0, output.find('\n'));
    }
}

XServer::~XServer() {
    _process->send(SIGTERM);
    static_cast<void>(_process->wait(std::chrono::seconds(10)));
}

Result<std::unique_ptr<XServer>> XServer::start(const Options& options) {
    // Two servers started at the same moment may try the same display number.
    std::string complaint;
    for (int attempt = 0; attempt < 3; ++attempt) {
        std::unique_ptr<XServer> server(new XServer(options));
        if (!server->_display.empty()) {
            return server;
        }
        complaint = server->_process->standardError();
    }
    return problem("The X server does not start.", complaint);
}

Result<void> XServer::plug(const std::string& connector, const std::string& mode) {
    std::vector<std::string> arguments{"--output", connector, "--mode", mode};
    if (std::ranges::count(_plugged, connector) == 0) {
        if (auto added = xrandr({"--addmode", connector, mode}); !added) {
            return added;
        }
        if (!_plugged.empty()) {
            arguments.insert(arguments.end(), {"--right-of", _plugged.back()});
        }
        _plugged.push_back(connector);
    }
    return xrandr(arguments);
}

Result<void> XServer::unplug(const std::string& connector) {
    std::erase(_plugged, connector);
    return xrandr({"--output", connector, "--off"});
}

Result<void> XServer::setPhysicalSize(const std::string& connector, int widthMillimetres,
                                      int heightMillimetres) const {
    // The driver picks up the size when the connected outputs are queried.
    return xrandr({"--output", connector, "--set", "WIDTH_MM", std::to_string(widthMillimetres),
                   "--output", connector, "--set", "HEIGHT_MM", std::to_string(heightMillimetres)})
        .and_then([this] { return xrandr({"--query"}); });
}

Result<void> XServer::setEdid(const std::string& connector,
                              const std::vector<std::uint8_t>& edid) const {
    return RampReader::connect(_display).and_then(
        [&](const RampReader& x) { return x.setEdid(connector, edid); });
}

Result<void> XServer::setRootProperty(const std::string& name,
                                      const std::vector<std::uint8_t>& bytes) const {
    return RampReader::connect(_display).and_then([&](const RampReader& x) {
        const auto cookie =
            bytes.empty()
                ? xcb_delete_property_checked(x.connection(), x.root(), x.atom(name))
                : xcb_change_property_checked(
                      x.connection(), XCB_PROP_MODE_REPLACE, x.root(), x.atom(name),
                      XCB_ATOM_CARDINAL, 8, static_cast<std::uint32_t>(bytes.size()), bytes.data());
        return x.check(cookie, "The root property " + name + " cannot be set.");
    });
}

Result<void> XServer::xrandr(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "xrandr");
    const auto result = run({.command = arguments, .environment = {{"DISPLAY", _display}}});
    // xrandr reports some failures, such as an unknown output, on standard error alone.
    if (!result || !result->succeeded() ||
        result->standardError.find("not found") != std::string::npos) {
        return problem("xrandr " + arguments[1] + " fails.", result ? result->standardError : "");
    }
    return {};
}

}  // namespace tonquil
