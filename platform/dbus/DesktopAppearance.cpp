// SPDX-License-Identifier: MIT
#include "platform/dbus/DesktopAppearance.h"

#include <utility>

namespace tonquil {

namespace {

constexpr const char* appearanceGroup = "org.freedesktop.appearance";
constexpr const char* interfaceGroup = "org.gnome.desktop.interface";
constexpr const char* portalSettings = "org.freedesktop.portal.Settings";
constexpr const char* portalPath = "/org/freedesktop/portal/desktop";

}  // namespace

void DesktopAppearance::start(const std::string& address, Handler handler) {
    _handler = std::move(handler);
    _bus.open(address, {.opened = [this] {
                  _bus.watch({portalSettings, "SettingChanged", portalPath},
                             [this](BusArguments& arguments) {
                                 const std::string group = arguments.text();
                                 const std::string key = arguments.text();
                                 take(group, key, arguments.value());
                                 tell();
                             });
                  ask();
              }});
}

// One query for all settings, which every portal version answers.
void DesktopAppearance::ask() {
    _bus.ask({"org.freedesktop.portal.Desktop", portalPath, portalSettings, "ReadAll"},
             {std::vector<std::string>{appearanceGroup, interfaceGroup}},
             [this](BusArguments& arguments) {
                 arguments.eachEntry([&](const std::string& group) {
                     arguments.eachEntry(
                         [&](const std::string& key) { take(group, key, arguments.value()); });
                 });
                 tell();
             });
}

void DesktopAppearance::take(const std::string& group, const std::string& key,
                             const BusArguments::Value& value) {
    if (group == appearanceGroup && key == "contrast") {
        const auto* const contrast = std::get_if<std::uint32_t>(&value);
        _settings.increaseContrast = contrast != nullptr && *contrast == 1;
    } else if (group == interfaceGroup && key == "enable-animations") {
        const auto* const isAnimated = std::get_if<bool>(&value);
        _settings.reduceMotion = isAnimated != nullptr && !*isAnimated;
    }
}

void DesktopAppearance::tell() {
    if (_settings != _told) {
        _told = _settings;
        _handler(_settings);
    }
}

}  // namespace tonquil
