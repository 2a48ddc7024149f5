// SPDX-License-Identifier: MIT
#include "platform/dbus/BusSessionEvents.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace tonquil {

namespace {

using namespace std::chrono_literals;

constexpr const char* loginService = "org.freedesktop.login1";
constexpr const char* loginManager = "org.freedesktop.login1.Manager";
constexpr const char* loginSession = "org.freedesktop.login1.Session";
constexpr const char* colourManager = "org.freedesktop.ColorManager";
constexpr const char* busProperties = "org.freedesktop.DBus.Properties";

BusConnection::Method busMethod(const std::string& name) {
    return {"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", name};
}

}  // namespace

BusSessionEvents::BusSessionEvents(RunLoop& runLoop, Addresses addresses, Log log)
    : _runLoop(runLoop),
      _addresses(std::move(addresses)),
      _log(std::move(log)),
      _system(runLoop),
      _session(runLoop) {}

void BusSessionEvents::start(Handler handler) {
    _handler = std::move(handler);
    open(_system, "The system bus", _addresses.system, [this] { watchSystemBus(); });
    open(_session, "The session bus", _addresses.session, [this] { watchSessionBus(); });
}

void BusSessionEvents::open(BusConnection& bus, const std::string& name, const std::string& address,
                            std::function<void()> opened) {
    bus.open(
        address,
        {.opened = std::move(opened),
         .unreachable =
             [this, name](const std::string& reason) {
                 report(name + " cannot be reached, so what it tells is left out: " + reason + ".");
             },
         .gone = [this,
                  name] { report(name + " has gone; what it tells is no longer noticed."); }});
}

void BusSessionEvents::watchSystemBus() {
    _system.watch({loginManager, "PrepareForSleep"},
                  [this](BusArguments& arguments) { sleepChanged(arguments); });
    for (const char* const name : {"DeviceAdded", "DeviceChanged", "DeviceRemoved", "ProfileAdded",
                                   "ProfileChanged", "ProfileRemoved"}) {
        _system.watch({colourManager, name}, [this](BusArguments&) {
            tellSoon(_colours, SessionEvent::ColourSpaceChanged);
        });
    }
    // A service that is not running may still be activatable.
    _system.ask(busMethod("ListNames"), {}, [this](BusArguments& running) {
        _system.ask(busMethod("ListActivatableNames"), {},
                    [this, names = running.texts()](BusArguments& startable) mutable {
                        std::ranges::move(startable.texts(), std::back_inserter(names));
                        findServices(names);
                    });
    });
}

void BusSessionEvents::watchSessionBus() {
    for (const char* const interface :
         {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.cinnamon.ScreenSaver",
          "org.mate.ScreenSaver", "org.xfce.ScreenSaver"}) {
        _session.watch({interface, "ActiveChanged"}, [this](BusArguments& arguments) {
            if (arguments.boolean() == false) {
                _handler(SessionEvent::ScreenSaverStopped);
            }
        });
    }
    // The third argument is the new owner: with this match, the bus itself filters out names that
    // only appear or change owner.
    _session.watch({"org.freedesktop.DBus", "NameOwnerChanged", {}, "arg2=''"},
                   [this](BusArguments& arguments) {
                       if (!arguments.text().starts_with(':')) {
                           tellSoon(_terminated, SessionEvent::ApplicationTerminated);
                       }
                   });
}

void BusSessionEvents::findServices(const std::vector<std::string>& names) {
    if (std::ranges::find(names, colourManager) == names.end()) {
        report("There is no colour management service, so a change of profiles is not noticed.");
    }
    if (std::ranges::find(names, loginService) != names.end()) {
        findSession();
    } else {
        report("There is no login service, so waking from sleep is not noticed.");
    }
}

void BusSessionEvents::findSession() {
    const auto none = [this] {
        report(
            "The login service knows no session of this program, so a switch to it is not "
            "noticed.");
    };
    const auto byDesktop = [this, none] {
        // This object stands for the session, but its signals come from the session's real object.
        _system.ask(
            {loginService, "/org/freedesktop/login1/session/auto", busProperties, "Get"},
            {std::string(loginSession), std::string("Id")},
            [this, none](BusArguments& arguments) {
                const auto value = arguments.value();
                const auto* const id = std::get_if<std::string>(&value);
                askForSession("GetSession", id == nullptr ? std::string() : *id, none);
            },
            none);
    };
    const auto byProcess = [this, byDesktop] {
        askForSession("GetSessionByPID", static_cast<std::uint32_t>(getpid()), byDesktop);
    };
    const char* const id = std::getenv("XDG_SESSION_ID");
    if (id == nullptr || *id == '\0') {
        byProcess();
    } else {
        askForSession("GetSession", std::string(id), byProcess);
    }
}

void BusSessionEvents::askForSession(const std::string& method, const BusConnection::Argument& key,
                                     const std::function<void()>& failed) {
    _system.ask(
        {loginService, "/org/freedesktop/login1", loginManager, method}, {key},
        [this](BusArguments& session) {
            _system.watch({busProperties, "PropertiesChanged", session.text()},
                          [this](BusArguments& arguments) { sessionChanged(arguments); });
        },
        failed);
}

void BusSessionEvents::sleepChanged(BusArguments& arguments) {
    const auto isFallingAsleep = arguments.boolean();
    if (isFallingAsleep == true) {
        _wakes = {};
    } else if (isFallingAsleep == false) {
        // Displays come up one after the other.
        _wakes = {tellAfter(1s, SessionEvent::Woke), tellAfter(5s, SessionEvent::Woke)};
        _handler(SessionEvent::Woke);
    }
}

void BusSessionEvents::sessionChanged(BusArguments& arguments) {
    if (arguments.text() != loginSession) {
        return;
    }
    arguments.eachEntry([&](const std::string& key) {
        const auto value = arguments.value();
        if (key == "Active" && value == BusArguments::Value(true)) {
            _active = tellAfter(1s, SessionEvent::SessionBecameActive);
            _handler(SessionEvent::SessionBecameActive);
        }
    });
}

void BusSessionEvents::tellSoon(Timer& timer, SessionEvent event) {
    if (!timer) {
        timer = _runLoop.callOnce(coalescingTime, [this, &timer, event] {
            timer.reset();
            _handler(event);
        });
    }
}

BusSessionEvents::Timer BusSessionEvents::tellAfter(std::chrono::milliseconds delay,
                                                    SessionEvent event) {
    return _runLoop.callOnce(delay, [this, event] { _handler(event); });
}

void BusSessionEvents::report(const std::string& line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
