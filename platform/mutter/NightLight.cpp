// SPDX-License-Identifier: MIT
#include "platform/mutter/NightLight.h"

#include <cmath>
#include <string>
#include <utility>

#include "platform/mutter/BlackBodyWhite.h"

namespace tonquil {

namespace {

constexpr const char* colourSettings = "org.gnome.SettingsDaemon.Color";
constexpr const char* colourSettingsPath = "/org/gnome/SettingsDaemon/Color";
constexpr const char* propertiesInterface = "org.freedesktop.DBus.Properties";

}  // namespace

void NightLight::start() {
    _bus.watch({propertiesInterface, "PropertiesChanged", colourSettingsPath,
                std::string("arg0='") + colourSettings + "'"},
               [this](BusArguments& arguments) {
                   static_cast<void>(arguments.text());
                   take(arguments);
               });
    _bus.ask(
        {colourSettings, colourSettingsPath, propertiesInterface, "GetAll"},
        {std::string(colourSettings)},
        [this](BusArguments& arguments) {
            _isKnown = true;
            take(arguments);
        },
        [this] { _isKnown = true; });
}

void NightLight::tint(HardwareRamp& ramp) const {
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        for (std::uint16_t& entry : ramp.channel(c)) {
            entry = static_cast<std::uint16_t>(std::lround(entry * _white.at(c)));
        }
    }
}

void NightLight::take(BusArguments& properties) {
    properties.eachEntry([&](const std::string& key) {
        if (key != "Temperature" && key != "NightLightActive") {
            return;
        }
        const BusArguments::Value value = properties.value();
        if (const auto* const kelvin = std::get_if<std::uint32_t>(&value)) {
            _kelvin = *kelvin;
        } else if (const auto* const isActive = std::get_if<bool>(&value)) {
            _isActive = *isActive;
        }
    });
    const auto white = _isActive ? blackBodyWhite(_kelvin) : std::array<double, 3>{1, 1, 1};
    if (std::exchange(_white, white) != white) {
        _changed();
    }
}

}  // namespace tonquil
