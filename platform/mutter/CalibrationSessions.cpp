// SPDX-License-Identifier: MIT
#include "platform/mutter/CalibrationSessions.h"

#include <algorithm>
#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

constexpr const char* colorManager = "org.gnome.Mutter.ColorManager";
constexpr const char* colorManagerPath = "/org/gnome/Mutter/ColorManager";
constexpr const char* calibration = "org.gnome.Mutter.ColorManager.Calibration";

std::string refusal() {
    return TONQUIL_TEXT("Problem", "The compositor refuses to have this display corrected.");
}

bool says(const std::string& reason, std::string_view words) {
    return reason.find(words) != std::string::npos;
}

}  // namespace

CalibrationSessions::CalibrationSessions(Host host) : _host(std::move(host)) {
    _host.bus.watch({calibration, "Stopped"}, [this](BusArguments& arguments) {
        for (auto& [connector, session] : _sessions) {
            if (!session.path.empty() && session.path == arguments.path()) {
                session.path.clear();
                lost(session);
            }
        }
    });
}

void CalibrationSessions::setMonitors(const std::vector<std::string>& connectors) {
    for (auto& [connector, session] : _sessions) {
        close(session);
    }
    std::erase_if(_sessions, [&](const auto& each) {
        return std::ranges::find(connectors, each.first) == connectors.end();
    });
    for (const std::string& connector : connectors) {
        Session& session = _sessions[connector];
        session.connector = connector;
        session.pause = shortestPause;
        if (session.isHeld) {
            open(session);
        } else {
            session.state.obstacle.clear();
            session.state.isTaken = false;
        }
    }
}

void CalibrationSessions::hold(const std::string& connector) {
    const auto found = _sessions.find(connector);
    if (found == _sessions.end()) {
        return;
    }
    Session& session = found->second;
    session.isHeld = true;
    session.isRampUnsent = true;
    if (!session.path.empty() && session.state.size > 0) {
        sendRamp(session);
    } else if (!session.isOpening && !session.retry) {
        open(session);
    }
}

void CalibrationSessions::release(const std::string& connector) {
    const auto found = _sessions.find(connector);
    if (found == _sessions.end()) {
        return;
    }
    Session& session = found->second;
    session.isHeld = false;
    close(session);
    session.state.isReached = true;
    // Nobody asks any more, so nobody would hear that the cause has gone.
    if (session.state.hasRamp && !std::exchange(session.state.obstacle, {}).empty()) {
        session.state.isTaken = false;
        _host.changed();
    }
}

MutterGamma::State CalibrationSessions::state(const std::string& connector) const {
    const auto found = _sessions.find(connector);
    return found == _sessions.end() ? State{} : found->second.state;
}

bool CalibrationSessions::isIdle() const {
    return _stopsDue == 0 && std::ranges::none_of(_sessions, [](const auto& each) {
               return each.second.isOpening || each.second.isSetting;
           });
}

CalibrationSessions::Session* CalibrationSessions::find(const std::string& connector,
                                                        std::uint64_t attempt) {
    const auto found = _sessions.find(connector);
    return found == _sessions.end() || found->second.attempt != attempt ? nullptr : &found->second;
}

void CalibrationSessions::open(Session& session) {
    session.retry.reset();
    session.isOpening = true;
    session.isRampUnsent = true;
    session.attempt = ++_attempts;
    ask(session);
}

// One at a time: what an abandoned attempt is granted must be stopped first, or the compositor
// refuses the next one as it would another program's.
void CalibrationSessions::ask(const Session& session) {
    if (!_asked.insert(session.connector).second) {
        return;
    }
    _host.bus.ask(
        {colorManager, colorManagerPath, colorManager, "CalibrateMonitor"}, {session.connector},
        [this, connector = session.connector, attempt = session.attempt](BusArguments& arguments) {
            _asked.erase(connector);
            opened(connector, attempt, arguments.text());
        },
        [this, connector = session.connector,
         attempt = session.attempt](const std::string& reason) {
            _asked.erase(connector);
            if (Session* const asked = find(connector, attempt)) {
                refused(*asked, reason);
            } else {
                askAfterAbandoned(connector);
            }
        });
}

void CalibrationSessions::askAfterAbandoned(const std::string& connector) {
    const auto found = _sessions.find(connector);
    if (found != _sessions.end() && found->second.isOpening) {
        ask(found->second);
    }
}

void CalibrationSessions::opened(const std::string& connector, std::uint64_t attempt,
                                 const std::string& path) {
    Session* const session = find(connector, attempt);
    if (session == nullptr) {
        stop(path);
        askAfterAbandoned(connector);
        return;
    }
    session->path = path;
    _host.bus.ask(
        {colorManager, path, "org.freedesktop.DBus.Properties", "Get"},
        {std::string(calibration), std::string("GammaLutSize")},
        [this, connector, attempt](BusArguments& arguments) {
            if (Session* const asked = find(connector, attempt)) {
                const auto value = arguments.value();
                const auto* const size = std::get_if<std::uint32_t>(&value);
                sizeKnown(*asked, size == nullptr ? 0 : *size);
            }
        },
        [this, connector, attempt] {
            if (Session* const asked = find(connector, attempt)) {
                lost(*asked);
            }
        });
}

void CalibrationSessions::sizeKnown(Session& session, std::uint32_t size) {
    if (size >= smallestSize && size <= largestSize) {
        session.isOpening = false;
        session.state = {.size = size};
        sendRamp(session);
    } else {
        // Given back, so that the compositor goes on with its own colour management.
        close(session);
        session.state = {.obstacle = obstacleFromSize(size), .hasRamp = size != 0};
        retryAfter(session, retryInterval);
    }
    _host.changed();
}

void CalibrationSessions::refused(Session& session, const std::string& reason) {
    if (says(reason, "not ready")) {
        lost(session);
        return;
    }
    close(session);
    if (says(reason, "already being calibrated")) {
        session.state = {
            .size = session.state.size,
            .obstacle = TONQUIL_TEXT("Problem", "Another program is calibrating this display."),
            .isTaken = true};
    } else if (says(reason, "cannot be calibrated")) {
        session.state = {.obstacle = obstacleFromSize(0), .hasRamp = false};
    } else {
        session.state = {.size = session.state.size, .obstacle = refusal()};
    }
    retryAfter(session, retryInterval);
    _host.changed();
}

// Mostly the monitors are changing just then, and the compositor will say so.
void CalibrationSessions::lost(Session& session) {
    if (session.reachedAt && _host.runLoop->now() - *session.reachedAt > retryInterval) {
        session.pause = shortestPause;
    }
    close(session);
    if (session.isHeld) {
        retryAfter(session, session.pause);
        session.pause = std::min(2 * session.pause, retryInterval);
        if (session.pause == retryInterval) {
            session.state = {.size = session.state.size, .obstacle = refusal()};
            _host.changed();
        }
    }
}

void CalibrationSessions::close(Session& session) {
    // An answer that is still due finds no session of its attempt; what it opened is stopped then.
    session.attempt = 0;
    session.isOpening = false;
    session.isSetting = false;
    session.state.isReached = false;
    session.reachedAt.reset();
    session.retry.reset();
    if (!session.path.empty()) {
        stop(std::exchange(session.path, {}));
    }
}

void CalibrationSessions::stop(const std::string& path) {
    ++_stopsDue;
    const auto stopped = [this] { --_stopsDue; };
    _host.bus.ask(
        {colorManager, path, calibration, "Stop"}, {}, [stopped](BusArguments&) { stopped(); },
        stopped);
}

void CalibrationSessions::sendRamp(Session& session) {
    if (session.isSetting || !session.isRampUnsent) {
        return;
    }
    session.isSetting = true;
    session.isRampUnsent = false;
    const HardwareRamp ramp = _host.ramp(session.connector, session.state.size);
    const auto answered = [this, connector = session.connector,
                           attempt = session.attempt](bool isTaken) {
        if (Session* const asked = find(connector, attempt)) {
            asked->isSetting = false;
            asked->state.isReached = isTaken;
            if (isTaken) {
                if (!asked->reachedAt && _host.runLoop != nullptr) {
                    asked->reachedAt = _host.runLoop->now();
                }
                sendRamp(*asked);
            } else {
                lost(*asked);
            }
        }
    };
    _host.bus.ask(
        {colorManager, session.path, calibration, "SetCrtcGammaLut"},
        {ramp.channel(0), ramp.channel(1), ramp.channel(2)},
        [answered](BusArguments&) { answered(true); }, [answered] { answered(false); });
}

void CalibrationSessions::retryAfter(Session& session, std::chrono::milliseconds pause) {
    if (_host.runLoop != nullptr) {
        session.retry = _host.runLoop->callOnce(pause, [this, &session] {
            session.retry.reset();
            if (session.isHeld) {
                open(session);
            }
        });
    }
}

}  // namespace tonquil
