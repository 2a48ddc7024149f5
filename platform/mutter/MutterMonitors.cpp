// SPDX-License-Identifier: MIT
#include "platform/mutter/MutterMonitors.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <tuple>

#include "platform/listing/KernelEdid.h"

namespace tonquil {

namespace {

struct Size {
    double width = 0;
    double height = 0;
};

/// What is said of a monitor apart from its place in the desktop.
struct SaidMonitor {
    MutterMonitor monitor;
    Size pixels;
};

/// A monitor's place in the desktop.
struct Place {
    std::int32_t x = 0;
    std::int32_t y = 0;
    double scale = 1;
    std::uint32_t transform = 0;
    bool isPrimary = false;
    std::vector<std::string> connectors;
};

SaidMonitor readMonitor(BusArguments& state) {
    SaidMonitor said;
    state.structure([&] {
        said.monitor.connector = state.text();
        said.monitor.vendor = state.text();
        said.monitor.product = state.text();
        said.monitor.serial = state.text();
    });
    state.eachStructure([&] {
        static_cast<void>(state.text());
        const Size size{.width = static_cast<double>(state.integer().value_or(0)),
                        .height = static_cast<double>(state.integer().value_or(0))};
        // The refresh rate, the scale that it would get, and those that it could.
        state.skip();
        state.skip();
        state.skip();
        state.eachEntry([&](const std::string& key) {
            if (key == "is-current" && state.value() == BusArguments::Value(true)) {
                said.pixels = size;
            }
        });
    });
    return said;
}

Place readPlace(BusArguments& state) {
    Place place;
    place.x = state.integer().value_or(0);
    place.y = state.integer().value_or(0);
    const double scale = state.real().value_or(1);
    place.scale = scale > 0 && std::isfinite(scale) ? scale : 1;
    place.transform = state.number().value_or(0);
    place.isPrimary = state.boolean().value_or(false);
    state.eachStructure([&] { place.connectors.push_back(state.text()); });
    return place;
}

/// The desktop's space is in the monitors' pixels where they are not laid out by scale.
Rectangle boundsOf(const Place& place, Size pixels, bool isScaled) {
    const bool isOnItsSide = place.transform % 2 == 1;
    const double scale = isScaled ? place.scale : 1;
    const double width = std::round((isOnItsSide ? pixels.height : pixels.width) / scale);
    const double height = std::round((isOnItsSide ? pixels.width : pixels.height) / scale);
    return {static_cast<double>(place.x), static_cast<double>(place.y), width, height};
}

std::uint32_t numberFromWords(const std::string& words) {
    constexpr int hexadecimal = 16;
    std::uint32_t number = 0;
    if (words.starts_with("0x")) {
        std::from_chars(words.data() + 2, words.data() + words.size(), number, hexadecimal);
        return number;
    }
    return words.empty() || words == "unknown" ? 0 : numberOf(words);
}

/// The three letters of a manufacturer have five bits each in an EDID.
std::uint32_t vendorFromWords(const std::string& words) {
    const auto isLetter = [](char c) { return c >= 'A' && c <= 'Z'; };
    if (words.size() != 3 || !std::ranges::all_of(words, isLetter)) {
        return numberFromWords(words);
    }
    std::uint32_t code = 0;
    for (const char c : words) {
        code = (code << 5U) | static_cast<std::uint32_t>(c - 'A' + 1);
    }
    return code;
}

std::optional<Edid> edidFromWords(const MutterMonitor& monitor) {
    Edid edid;
    edid.vendorNumber = vendorFromWords(monitor.vendor);
    edid.modelNumber = numberFromWords(monitor.product);
    edid.serialNumber = numberFromWords(monitor.serial);
    if (edid.vendorNumber == 0 && edid.modelNumber == 0 && edid.serialNumber == 0) {
        return std::nullopt;
    }
    if (!monitor.product.starts_with("0x")) {
        edid.productName = monitor.product;
    }
    return edid;
}

/// The kernel tells the kinds of these connectors apart, the compositor does not always.
std::vector<std::string> kernelNames(const std::string& connector) {
    std::vector<std::string> names{connector};
    const auto dash = connector.find('-');
    const std::string kind = connector.substr(0, dash);
    const std::string rest = dash == std::string::npos ? std::string() : connector.substr(dash);
    if (kind == "HDMI") {
        names.insert(names.end(), {kind + "-A" + rest, kind + "-B" + rest});
    } else if (kind == "DVI") {
        names.insert(names.end(), {kind + "-I" + rest, kind + "-D" + rest, kind + "-A" + rest});
    }
    return names;
}

}  // namespace

MutterLayout readMutterLayout(BusArguments& state) {
    constexpr std::uint32_t physicalLayout = 2;
    MutterLayout layout;
    layout.serial = state.number().value_or(0);
    std::vector<SaidMonitor> said;
    state.eachStructure([&] { said.push_back(readMonitor(state)); });
    std::vector<Place> places;
    state.eachStructure([&] { places.push_back(readPlace(state)); });
    bool isScaled = true;
    state.eachEntry([&](const std::string& key) {
        isScaled = isScaled &&
                   !(key == "layout-mode" && state.value() == BusArguments::Value(physicalLayout));
    });
    for (const Place& place : places) {
        for (auto& [monitor, pixels] : said) {
            if (std::ranges::find(place.connectors, monitor.connector) != place.connectors.end()) {
                monitor.bounds = boundsOf(place, pixels, isScaled);
                monitor.isPrimary = place.isPrimary;
                layout.monitors.push_back(monitor);
            }
        }
    }
    std::ranges::sort(layout.monitors, {}, [](const MutterMonitor& each) {
        return std::tuple(!each.isPrimary, each.bounds.x, each.bounds.y, each.connector);
    });
    return layout;
}

ListedDisplay listedDisplay(const MutterMonitor& monitor, const std::filesystem::path& connectors) {
    std::optional<Edid> edid;
    for (const std::string& name : kernelNames(monitor.connector)) {
        if (!edid) {
            edid = readKernelEdid(connectors, name);
        }
    }
    if (!edid) {
        edid = edidFromWords(monitor);
    }
    ListedDisplay display;
    display.connector = monitor.connector;
    display.bounds = monitor.bounds;
    if (edid) {
        display.identity.widthInMillimetres = edid->widthInMillimetres;
        display.identity.heightInMillimetres = edid->heightInMillimetres;
    }
    identify(display, edid);
    return display;
}

}  // namespace tonquil
