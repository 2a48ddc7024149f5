// SPDX-License-Identifier: MIT
#include "program/ToolkitBus.h"

#include <QDBusConnection>
#include <cstddef>
#include <cstdlib>

#include "platform/dbus/BusAddresses.h"
#include "platform/dbus/ToolkitProbe.h"
#include "platform/posix/PollRunLoop.h"
#include "platform/x11/X11Connection.h"
#include "program/ProgramEnvironment.h"

namespace tonquil {

namespace {

constexpr const char* sessionVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char* accessibilityVariable = "AT_SPI_BUS_ADDRESS";
// An address of an unknown kind is refused at once. With none at all, the bus library may start a
// bus.
constexpr const char* noBus = "disabled:";

ToolkitProbe::Obstacles probe(const ToolkitProbe::Addresses& addresses) {
    PollRunLoop loop;
    ToolkitProbe::Obstacles found;
    ToolkitProbe probe(loop);
    probe.start(addresses, [&](const ToolkitProbe::Obstacles& obstacles) {
        found = obstacles;
        loop.stop();
    });
    loop.run();
    return found;
}

std::string announcedByXServer() {
    const auto server = X11Connection::open(nullptr);
    if (!server) {
        return {};
    }
    constexpr std::size_t mostBytes = 1024;
    const auto bytes = (*server)->rootProperty((*server)->atom("AT_SPI_BUS"), mostBytes);
    return unixAddresses(std::string(bytes.begin(), bytes.end()));
}

}  // namespace

ToolkitBus::ToolkitBus() : _sessionAddress(sessionBusAddress()) {
    const auto obstacles =
        probe({.session = _sessionAddress,
               .accessibility = unixAddresses(environment(accessibilityVariable)),
               .announced = announcedByXServer()});
    if (!obstacles.session.empty()) {
        logLine("The session bus cannot be reached, so what it tells is left out: " +
                obstacles.session + ".");
        _sessionAddress.clear();
    } else if (!obstacles.tray.empty()) {
        logLine("The tray's service on the session bus is left out: " + obstacles.tray + ".");
    }
    if (!obstacles.session.empty() || !obstacles.tray.empty()) {
        if (const char* const said = std::getenv(sessionVariable)) {
            _hidden = said;
        }
        _isHidden = true;
        setenv(sessionVariable, noBus, 1);
    }
    if (!obstacles.accessibility.empty()) {
        logLine("Assistive technology is left out: " + obstacles.accessibility + ".");
        // This takes precedence over what the session bus and the X server say. It is looked up
        // when the first window is shown, so it stays.
        setenv(accessibilityVariable, noBus, 1);
    }
}

void ToolkitBus::settle() {
    // The toolkit and the bus library keep the first outcome for the rest of the run.
    static_cast<void>(QDBusConnection::sessionBus());
    if (!_isHidden) {
        return;
    }
    if (_hidden) {
        setenv(sessionVariable, _hidden->c_str(), 1);
    } else {
        unsetenv(sessionVariable);
    }
}

}  // namespace tonquil
