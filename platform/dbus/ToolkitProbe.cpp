// SPDX-License-Identifier: MIT
#include "platform/dbus/ToolkitProbe.h"

#include <utility>

#include "platform/dbus/BusAddresses.h"

namespace tonquil {

namespace {

constexpr const char* trayService = "org.kde.StatusNotifierWatcher";
constexpr const char* trayPath = "/StatusNotifierWatcher";
constexpr const char* accessibilityService = "org.a11y.Bus";
constexpr const char* accessibilityPath = "/org/a11y/bus";
constexpr const char* properties = "org.freedesktop.DBus.Properties";

}  // namespace

void ToolkitProbe::start(const Addresses& addresses, std::function<void(const Obstacles&)> done) {
    _done = std::move(done);
    _limit = _runLoop.callOnce(longestTime, [this] { finish(); });
    _knowsAccessibility = !addresses.accessibility.empty();
    if (_knowsAccessibility) {
        openAccessibility(_accessibility, addresses.accessibility);
    } else if (!addresses.announced.empty()) {
        ++_assistance.answersDue;
        openAccessibility(_announced, addresses.announced);
    }
    const auto unreachable = [this](const std::string& reason) {
        fail(_tray, "");
        if (!_knowsAccessibility) {
            fail(_assistance, "");
        }
        fail(_bus, reason);
    };
    if (addresses.session.empty()) {
        unreachable("it is not there");
        return;
    }
    const auto opened = [this] {
        answered(_bus);
        askForTray();
        if (!_knowsAccessibility) {
            askForAccessibility();
        }
    };
    _session.open(addresses.session, {.opened = opened,
                                      .unreachable = unreachable,
                                      .gone = [unreachable] { unreachable("it has gone"); }});
}

void ToolkitProbe::askForTray() {
    _tray.answersDue = 2;
    ask(_session, _tray,
        {trayService, trayPath, "org.freedesktop.DBus.Introspectable", "Introspect"}, {});
    ask(_session, _tray, {trayService, trayPath, properties, "Get"},
        {std::string(trayService), std::string("IsStatusNotifierHostRegistered")});
}

// Queries only a running service, and connects only to one that is switched on.
void ToolkitProbe::askForAccessibility() {
    const auto isNotUsed = [this] { answered(_assistance); };
    _session.ask(
        {"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner"},
        {std::string(accessibilityService)},
        [this, isNotUsed](BusArguments& arguments) {
            if (arguments.boolean() != true) {
                isNotUsed();
                return;
            }
            _session.ask(
                {accessibilityService, accessibilityPath, properties, "GetAll"},
                {std::string("org.a11y.Status")},
                [this](BusArguments& status) { takeStatus(status); }, isNotUsed);
        },
        isNotUsed);
}

void ToolkitProbe::takeStatus(BusArguments& arguments) {
    bool isEnabled = false;
    arguments.eachEntry([&](const std::string&) {
        isEnabled = arguments.value() == BusArguments::Value(true) || isEnabled;
    });
    if (!isEnabled) {
        answered(_assistance);
        return;
    }
    _session.ask(
        {accessibilityService, accessibilityPath, accessibilityService, "GetAddress"}, {},
        [this](BusArguments& address) {
            openAccessibility(_accessibility, unixAddresses(address.text()));
        },
        [this] { answered(_assistance); });
}

void ToolkitProbe::openAccessibility(BusConnection& bus, const std::string& address) {
    if (address.empty()) {
        answered(_assistance);
        return;
    }
    bus.open(address,
             {.opened =
                  [this, &bus] {
                      ask(bus, _assistance,
                          {"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root",
                           "org.freedesktop.DBus.Peer", "Ping"},
                          {});
                  },
              .unreachable = [this](const std::string& reason) { fail(_assistance, reason); },
              .gone = [this] { fail(_assistance, "its bus has gone"); }});
}

void ToolkitProbe::ask(BusConnection& bus, Subject& subject, const BusConnection::Method& method,
                       const std::vector<BusConnection::Argument>& arguments) {
    bus.ask(
        method, arguments, [this, &subject](BusArguments&) { answered(subject); },
        [this, &subject] { answered(subject); });
}

void ToolkitProbe::answered(Subject& subject) {
    if (--subject.answersDue == 0) {
        fail(subject, "");
    }
}

void ToolkitProbe::fail(Subject& subject, const std::string& reason) {
    subject = {.obstacle = reason, .answersDue = 0};
    if (_bus.answersDue <= 0 && _tray.answersDue <= 0 && _assistance.answersDue <= 0) {
        // Deferred, because a bus may be in the middle of a callback.
        _limit = _runLoop.callOnce(std::chrono::milliseconds(0), [this] { finish(); });
    }
}

void ToolkitProbe::finish() {
    if (!_bus.obstacle.empty()) {
        // Without the session bus Qt uses neither of the two, unless it knows the accessibility bus
        // from elsewhere.
        _tray.obstacle.clear();
        if (!_knowsAccessibility) {
            _assistance.obstacle.clear();
        }
    }
    _limit.reset();
    if (auto done = std::exchange(_done, nullptr)) {
        done({.session = _bus.obstacle,
              .tray = _tray.obstacle,
              .accessibility = _assistance.obstacle});
    }
}

}  // namespace tonquil
