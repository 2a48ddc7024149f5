// SPDX-License-Identifier: MIT
#include "platform/mutter/MutterBus.h"

#include <utility>

namespace tonquil {

namespace {

constexpr const char* monitorService = "org.gnome.Mutter.DisplayConfig";
constexpr const char* monitorServicePath = "/org/gnome/Mutter/DisplayConfig";
constexpr const char* sessionService = "org.gnome.Mutter.ColorManager";
constexpr const char* busItself = "org.freedesktop.DBus";

}  // namespace

bool MutterBus::open(const std::string& address, std::chrono::milliseconds limit,
                     std::function<void(const std::string&)> lost) {
    _lost = std::move(lost);
    _connection.open(address, {.opened =
                                   [this] {
                                       askFor(sessionService, _lendsSessions);
                                       askFor(monitorService, _hasMonitors);
                                   },
                               .gone = [this] { _lost("The session bus has gone."); }});
    return _connection.waitUntil([this] { return _lendsSessions && _hasMonitors; }, limit);
}

void MutterBus::askFor(const char* name, std::optional<bool>& isThere) {
    _connection.ask(
        {busItself, "/org/freedesktop/DBus", busItself, "NameHasOwner"}, {std::string(name)},
        [&isThere](BusArguments& answer) { isThere = answer.boolean().value_or(false); },
        [&isThere] { isThere = false; });
}

void MutterBus::watchMonitors(std::function<void()> changed) {
    _connection.watch({monitorService, "MonitorsChanged", monitorServicePath},
                      [changed = std::move(changed)](BusArguments&) { changed(); });
    // The third argument is the new owner.
    _connection.watch(
        {busItself, "NameOwnerChanged", {}, std::string("arg0='") + monitorService + "',arg2=''"},
        [this](BusArguments&) { _lost("The Wayland compositor has gone."); });
}

void MutterBus::askForMonitors(std::function<void(MutterLayout)> answered,
                               std::function<void()> failed) {
    _connection.ask(
        {monitorService, monitorServicePath, monitorService, "GetCurrentState"}, {},
        [answered = std::move(answered)](BusArguments& state) {
            answered(readMutterLayout(state));
        },
        std::move(failed));
}

}  // namespace tonquil
