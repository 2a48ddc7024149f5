// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedDeskReader.h"

#include <algorithm>
#include <array>

#include "values/BoundedJson.h"

namespace tonquil {

namespace {

std::uint32_t unsignedEntry(const PropertyValue& object, std::string_view key,
                            std::uint32_t missing) {
    const PropertyValue* value = entry(object, key);
    if (value == nullptr || !isNumber(*value)) {
        return missing;
    }
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(integerValue(*value), 0, 0xFFFFFFFFLL));
}

std::string textEntry(const PropertyValue& object, std::string_view key, std::string missing) {
    const PropertyValue* value = entry(object, key);
    return value != nullptr && value->is_string() ? value->get<std::string>() : std::move(missing);
}

template <std::size_t count>
std::array<double, count> numbersEntry(const PropertyValue& object, std::string_view key,
                                       std::array<double, count> missing) {
    const PropertyValue* value = entry(object, key);
    if (value == nullptr || !value->is_array() || value->size() != count) {
        return missing;
    }
    std::array<double, count> numbers{};
    for (std::size_t i = 0; i < count; ++i) {
        const PropertyValue& number = (*value)[i];
        numbers[i] = number.is_number() ? number.get<double>() : 0;
    }
    return numbers;
}

SimulatedDisplay displayFrom(const PropertyValue& object, DisplayID id, double left) {
    SimulatedDisplay display;
    display.id = unsignedEntry(object, "id", id);
    display.identity.serialNumber = unsignedEntry(object, "serial", 0);
    display.identity.modelNumber = unsignedEntry(object, "model", 0);
    display.identity.vendorNumber = unsignedEntry(object, "vendor", 0);
    const PropertyValue* builtIn = entry(object, "builtIn");
    display.identity.isBuiltIn = builtIn != nullptr && integerValue(*builtIn) != 0;
    const auto [width, height] = numbersEntry<2>(object, "millimetres", {0, 0});
    display.identity.widthInMillimetres = width;
    display.identity.heightInMillimetres = height;
    display.connector = textEntry(object, "connector", "SIM-" + std::to_string(display.id));
    display.productName = textEntry(object, "productName", "");
    const auto bounds = numbersEntry<4>(object, "bounds", {left, 0, 1920, 1080});
    display.bounds = {bounds[0], bounds[1], bounds[2], bounds[3]};
    display.ramp = serverStartRamp(
        std::min(unsignedEntry(object, "rampSize", 256), HardwareRamp::largestSize));
    return display;
}

}  // namespace

HardwareRamp serverStartRamp(std::uint32_t size) {
    HardwareRamp ramp(size);
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        for (std::uint32_t i = 0; i < size; ++i) {
            ramp.channel(c)[i] = static_cast<std::uint16_t>(i * 65536U / size);
        }
    }
    return ramp;
}

Result<SimulatedDesk> readSimulatedDesk(std::string_view json) {
    const auto value = readBoundedJson(json);
    if (!value) {
        return tl::unexpected(value.error());
    }
    if (!value->is_array()) {
        return problem("A simulated desk is an array of displays.");
    }
    SimulatedDesk desk;
    double left = 0;
    DisplayID next = 1;
    for (const PropertyValue& object : *value) {
        SimulatedDisplay display = displayFrom(object, next, left);
        if (display.id == 0 ||
            desk.displays().end() !=
                std::find_if(desk.displays().begin(), desk.displays().end(),
                             [&](const auto& each) { return each.id == display.id; })) {
            return problem("Each display of a simulated desk needs an ID of its own, above 0.");
        }
        next = display.id + 1;
        left = display.bounds.x + display.bounds.width;
        desk.plug(std::move(display));
    }
    return desk;
}

SimulatedDesk demonstrationDesk() {
    return readSimulatedDesk(R"([
        {"serial": 1001, "model": 41, "vendor": 4268, "connector": "SIM-1", "productName": "Left",
         "millimetres": [600, 340], "bounds": [0, 0, 1920, 1080]},
        {"model": 7, "vendor": 9, "connector": "SIM-2", "productName": "Middle",
         "millimetres": [520, 320], "bounds": [1920, 0, 1680, 1050], "rampSize": 1024},
        {"model": 12, "vendor": 1552, "connector": "eDP-1", "productName": "Built-in",
         "builtIn": true, "millimetres": [290, 180], "bounds": [3600, 0, 1440, 900]}])")
        .value();
}

}  // namespace tonquil
