// SPDX-License-Identifier: MIT
#include "platform/portal/PortalHotKeyService.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "platform/portal/PreferredTrigger.h"

namespace tonquil {

namespace {

constexpr const char* shortcutsInterface = "org.freedesktop.portal.GlobalShortcuts";
constexpr const char* sessionInterface = "org.freedesktop.portal.Session";

constexpr const char* refusal = "The desktop has refused to give out keys for hot keys.";
constexpr const char* noKeys = "The desktop has given the hot keys no keys.";

std::string fromPortal(const std::string& more = {}) {
    return "sender='" + std::string(PortalRequests::service) + "'" + more;
}

}  // namespace

PortalHotKeyService::PortalHotKeyService(Surroundings surroundings)
    : _with(std::move(surroundings)), _bus(_with.runLoop) {}

void PortalHotKeyService::start(const std::string& address) {
    _bus.open(address, {.opened =
                            [this] {
                                _requests.watchAnswers();
                                watchPortal();
                                watchKeys();
                                findPortal();
                            },
                        .gone = [this] { portalLost(); }});
}

std::string PortalHotKeyService::trigger(const std::string& action) const {
    const auto found = _triggers.find(action);
    return found == _triggers.end() ? std::string() : found->second;
}

void PortalHotKeyService::changeKeys() {
    constexpr std::uint32_t firstWithDialog = 2;
    const auto askAnew = [this] {
        _asked.clear();
        bindSoon();
    };
    if (_session.empty() || _version < firstWithDialog) {
        askAnew();
        return;
    }
    _bus.ask(
        {PortalRequests::service, PortalRequests::object, shortcutsInterface, "ConfigureShortcuts"},
        {BusObjectPath{_session}, std::string(), BusDictionary{}}, [](BusArguments&) {}, askAnew);
}

void PortalHotKeyService::setHandlers(Handler pressed, Handler released) {
    _pressed = std::move(pressed);
    _released = std::move(released);
}

Result<HotKeyHandle> PortalHotKeyService::registerHotKey(std::uint16_t keyCode,
                                                         HotKeyServiceMask modifiers,
                                                         std::uint32_t id,
                                                         const std::string& action) {
    _registrations[++_lastHandle] = {id, action, keyCode, modifiers};
    bindSoon();
    return _lastHandle;
}

void PortalHotKeyService::unregisterHotKey(HotKeyHandle handle) {
    const auto found = _registrations.find(handle);
    if (found != _registrations.end()) {
        _held.erase(found->second.action);
        _registrations.erase(found);
        bindSoon();
    }
}

void PortalHotKeyService::watchPortal() {
    _bus.watch({.interface = "org.freedesktop.DBus",
                .name = "NameOwnerChanged",
                .rest = "sender='org.freedesktop.DBus',arg0='" +
                        std::string(PortalRequests::service) + "'"},
               [this](BusArguments& arguments) {
                   static_cast<void>(arguments.text());
                   const bool wasThere = !arguments.text().empty();
                   const bool isThere = !arguments.text().empty();
                   if (wasThere) {
                       portalLost();
                   }
                   // Our first call starts the portal, whose appearance is then no news.
                   if (isThere && _isLost) {
                       findPortal();
                   }
               });
    _bus.watch({.interface = sessionInterface, .name = "Closed", .rest = fromPortal()},
               [this](BusArguments& arguments) {
                   if (arguments.path() == _session) {
                       forgetSession();
                       _with.changed();
                       repeatLater();
                   }
               });
}

void PortalHotKeyService::watchKeys() {
    const auto watch = [this](const char* name, BusConnection::Call call) {
        _bus.watch({shortcutsInterface, name, PortalRequests::object, fromPortal()},
                   std::move(call));
    };
    watch("Activated", [this](BusArguments& arguments) { keyChanged(arguments, true); });
    watch("Deactivated", [this](BusArguments& arguments) { keyChanged(arguments, false); });
    watch("ShortcutsChanged", [this](BusArguments& arguments) {
        if (!_session.empty() && arguments.text() == _session) {
            takeShortcuts(arguments);
        }
    });
}

void PortalHotKeyService::findPortal() {
    _isLost = false;
    // Where programs can say who they are, desktops remember the keys of those that do. It must be
    // the first call to the portal, and older ones do not have it.
    _bus.ask({PortalRequests::service, PortalRequests::object,
              "org.freedesktop.host.portal.Registry", "Register"},
             {std::string("tonquil"), BusDictionary{}}, [](BusArguments&) {});
    _bus.ask(
        {PortalRequests::service, PortalRequests::object, "org.freedesktop.DBus.Properties", "Get"},
        {std::string(shortcutsInterface), std::string("version")}, [this](BusArguments& arguments) {
            const auto value = arguments.value();
            const auto* const version = std::get_if<std::uint32_t>(&value);
            _version = version == nullptr ? 0 : *version;
            _with.changed();
            bindSoon();
        });
}

void PortalHotKeyService::portalLost() {
    _isLost = true;
    _version = 0;
    _asked.clear();
    _repeat.reset();
    _requests.clear();
    forgetSession();
    _with.changed();
}

void PortalHotKeyService::bindSoon() {
    _turn = _with.runLoop.callOnce(std::chrono::milliseconds(0), [this] { bind(true); });
}

// The shortcuts of a session cannot be changed, so different ones need a new session.
void PortalHotKeyService::bind(bool mayRepeat) {
    _turn.reset();
    std::set<std::string> actions;
    for (const auto& [handle, registration] : _registrations) {
        actions.insert(registration.action);
    }
    if (_version == 0 || actions == _asked) {
        return;
    }
    _asked = std::move(actions);
    _mayRepeat = mayRepeat;
    _repeat.reset();
    if (!_session.empty()) {
        closeSession(_session);
    }
    forgetSession();
    _with.changed();
    if (!_asked.empty()) {
        createSession();
    }
}

void PortalHotKeyService::createSession() {
    _requests.ask(shortcutsInterface, "CreateSession", {},
                  {{"session_handle_token", _requests.newToken()}},
                  {[this, round = _round](BusArguments* results) {
                       if (results == nullptr) {
                           refused(refusal);
                           return;
                       }
                       std::string session;
                       results->eachEntry([&](const std::string& key) {
                           if (key == "session_handle") {
                               results->insideVariant([&] { session = results->text(); });
                           }
                       });
                       if (round == _round) {
                           bindIn(session);
                       } else {
                           closeSession(session);
                       }
                   },
                   [this, round = _round] { failed(refusal, round); }});
}

void PortalHotKeyService::bindIn(const std::string& session) {
    _session = session;
    _requests.ask(shortcutsInterface, "BindShortcuts",
                  {BusObjectPath{session}, shortcuts(), std::string()}, {},
                  {[this, round = _round](BusArguments* results) {
                       if (results == nullptr) {
                           refused(noKeys);
                       } else if (round == _round) {
                           _mayRepeat = true;
                           results->eachEntry([&](const std::string& key) {
                               if (key == "shortcuts") {
                                   results->insideVariant([&] { takeShortcuts(*results); });
                               }
                           });
                       }
                   },
                   [this, round = _round] { failed(noKeys, round); }});
}

BusNamedDictionaries PortalHotKeyService::shortcuts() const {
    BusNamedDictionaries all;
    for (const auto& [handle, registration] : _registrations) {
        const auto description = _with.descriptions.find(registration.action);
        BusDictionary shortcut{{"description", description == _with.descriptions.end()
                                                   ? registration.action
                                                   : description->second}};
        const std::string trigger = preferredTrigger(registration.keyCode, registration.modifiers);
        if (!trigger.empty()) {
            shortcut["preferred_trigger"] = trigger;
        }
        all.emplace_back(registration.action, std::move(shortcut));
    }
    return all;
}

// A change may list only some of them.
void PortalHotKeyService::takeShortcuts(BusArguments& arguments) {
    arguments.eachStructure([&] {
        const std::string action = arguments.text();
        arguments.eachEntry([&](const std::string& key) {
            if (key == "trigger_description") {
                arguments.insideVariant([&] { _triggers[action] = arguments.text(); });
            }
        });
    });
    _with.changed();
}

void PortalHotKeyService::keyChanged(BusArguments& arguments, bool isPressed) {
    const std::string session = arguments.text();
    const std::string action = arguments.text();
    const auto time = arguments.longNumber().value_or(0);
    const auto found = std::ranges::find_if(
        _registrations, [&](const auto& each) { return each.second.action == action; });
    if (session != _session || found == _registrations.end()) {
        return;
    }
    const bool isNews = isPressed ? _held.insert(action).second : _held.erase(action) != 0;
    const Handler& handler = isPressed ? _pressed : _released;
    if (!isNews || !handler) {
        return;
    }
    // Some desktops do not tell the time.
    using std::chrono::milliseconds;
    const auto now = _with.runLoop.now().time_since_epoch();
    handler({.id = found->second.id,
             .timestamp = time == 0 ? std::chrono::duration_cast<milliseconds>(now)
                                    : milliseconds(static_cast<std::int64_t>(time))});
}

void PortalHotKeyService::forgetSession() {
    ++_round;
    _session.clear();
    _triggers.clear();
    _held.clear();
}

void PortalHotKeyService::closeSession(const std::string& session) {
    _bus.ask({PortalRequests::service, session, sessionInterface, "Close"}, {},
             [](BusArguments&) {});
}

void PortalHotKeyService::repeatLater() {
    if (_mayRepeat) {
        _repeat = _with.runLoop.callOnce(repeatInterval, [this] {
            _asked.clear();
            bind(false);
        });
    }
}

// The desktop may close the session of a request that the user refuses, before or after it says so.
void PortalHotKeyService::refused(const std::string& line) {
    _mayRepeat = false;
    _repeat.reset();
    report(line);
}

void PortalHotKeyService::failed(const std::string& line, std::uint32_t round) {
    report(line);
    if (round == _round) {
        repeatLater();
    }
}

void PortalHotKeyService::report(const std::string& line) const {
    if (_with.log) {
        _with.log(line);
    }
}

}  // namespace tonquil
