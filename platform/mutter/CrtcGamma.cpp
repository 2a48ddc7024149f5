// SPDX-License-Identifier: MIT
#include "platform/mutter/CrtcGamma.h"

#include <algorithm>
#include <utility>

namespace tonquil {

namespace {

constexpr const char* displayConfig = "org.gnome.Mutter.DisplayConfig";
constexpr const char* displayConfigPath = "/org/gnome/Mutter/DisplayConfig";

}  // namespace

void CrtcGamma::ask(const char* method, const std::vector<BusConnection::Argument>& arguments,
                    BusConnection::Call answered, const std::function<void()>& failed) {
    ++_answersDue;
    _host.bus.ask(
        {displayConfig, displayConfigPath, displayConfig, method}, arguments,
        [this, answered = std::move(answered)](BusArguments& answer) {
            --_answersDue;
            answered(answer);
        },
        [this, failed] {
            --_answersDue;
            failed();
        });
}

void CrtcGamma::setMonitors(const std::vector<std::string>& connectors) {
    std::erase_if(_monitors, [&](const auto& each) {
        return std::ranges::find(connectors, each.first) == connectors.end();
    });
    for (const std::string& connector : connectors) {
        Monitor& monitor = _monitors[connector];
        // The compositor may have put its own ramp on whatever hardware drives the monitor now.
        monitor.isRampUnsent = monitor.isRampUnsent || monitor.isHeld;
        monitor.isSecondTry = false;
    }
    readResources();
}

void CrtcGamma::readResources() {
    _isReading = true;
    ask(
        "GetResources", {},
        [this](BusArguments& resources) {
            _isReading = false;
            takeResources(resources);
        },
        [this] {
            _isReading = false;
            for (auto& [connector, monitor] : _monitors) {
                takeSize(connector, 0);
            }
        });
}

void CrtcGamma::takeResources(BusArguments& resources) {
    _serial = resources.number().value_or(0);
    std::int32_t count = 0;
    resources.eachStructure([&] { ++count; });
    for (auto& [connector, monitor] : _monitors) {
        monitor.crtc = -1;
    }
    resources.eachStructure([&] {
        // Its number and the hardware's, which drives it, which else could, its name.
        resources.skip();
        resources.skip();
        const std::int32_t crtc = resources.integer().value_or(-1);
        resources.skip();
        const auto found = _monitors.find(resources.text());
        if (found != _monitors.end() && crtc < count) {
            found->second.crtc = crtc;
        }
    });
    for (auto& [connector, monitor] : _monitors) {
        if (monitor.crtc < 0) {
            takeSize(connector, 0);
        } else {
            readSize(connector, monitor);
        }
    }
}

// The present ramp is asked for only to learn its length: it may be our own, or a night light's.
void CrtcGamma::readSize(const std::string& connector, const Monitor& monitor) {
    ask(
        "GetCrtcGamma", {_serial, static_cast<std::uint32_t>(monitor.crtc)},
        [this, connector](BusArguments& ramp) {
            takeSize(connector, static_cast<std::uint32_t>(std::min(ramp.entryCount().value_or(0),
                                                                    std::size_t{largestSize} + 1)));
        },
        [this, connector] { takeSize(connector, 0); });
}

void CrtcGamma::takeSize(const std::string& connector, std::uint32_t size) {
    const auto found = _monitors.find(connector);
    if (found == _monitors.end()) {
        return;
    }
    State& state = found->second.state;
    if (size >= smallestSize && size <= largestSize) {
        state.size = size;
        state.hasRamp = true;
        state.obstacle.clear();
        send(connector);
    } else {
        state = {.obstacle = obstacleFromSize(size), .hasRamp = size != 0};
    }
    _host.changed();
}

void CrtcGamma::hold(const std::string& connector) {
    const auto found = _monitors.find(connector);
    if (found != _monitors.end()) {
        found->second.isHeld = true;
        found->second.isRampUnsent = true;
        found->second.isSecondTry = false;
        send(connector);
    }
}

void CrtcGamma::release(const std::string& connector) {
    hold(connector);
    const auto found = _monitors.find(connector);
    if (found != _monitors.end()) {
        found->second.isHeld = false;
    }
}

MutterGamma::State CrtcGamma::state(const std::string& connector) const {
    const auto found = _monitors.find(connector);
    return found == _monitors.end() ? State{} : found->second.state;
}

void CrtcGamma::send(const std::string& connector) {
    Monitor& monitor = _monitors.at(connector);
    if (!monitor.isSetting && monitor.isRampUnsent && !_isReading && monitor.state.size > 0) {
        sendRamp(connector, monitor);
    }
}

void CrtcGamma::sendRamp(const std::string& connector, Monitor& monitor) {
    monitor.isSetting = true;
    monitor.isRampUnsent = false;
    monitor.state.isReached = false;
    // The compositor takes the length from red alone, so all three have it.
    const HardwareRamp ramp = _host.ramp(connector, monitor.state.size);
    ask(
        "SetCrtcGamma",
        {_serial, static_cast<std::uint32_t>(monitor.crtc), ramp.channel(0), ramp.channel(1),
         ramp.channel(2)},
        [this, connector](BusArguments&) { answered(connector, true); },
        [this, connector] { answered(connector, false); });
}

void CrtcGamma::answered(const std::string& connector, bool isTaken) {
    const auto found = _monitors.find(connector);
    if (found == _monitors.end()) {
        return;
    }
    Monitor& monitor = found->second;
    monitor.isSetting = false;
    monitor.state.isReached = isTaken;
    if (isTaken) {
        send(connector);
    } else if (!std::exchange(monitor.isSecondTry, true)) {
        monitor.isRampUnsent = true;
        if (!_isReading) {
            readResources();
        }
    } else {
        _host.changed();
    }
}

}  // namespace tonquil
