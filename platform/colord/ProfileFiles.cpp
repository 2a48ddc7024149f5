// SPDX-License-Identifier: MIT
#include "platform/colord/ProfileFiles.h"

#include <utility>

#include "files/BoundedFile.h"
#include "platform/icc/CalibrationRamp.h"

namespace tonquil {

namespace {

constexpr const char* colourManager = "org.freedesktop.ColorManager";
constexpr const char* colourManagerPath = "/org/freedesktop/ColorManager";
constexpr const char* colourDevice = "org.freedesktop.ColorManager.Device";
constexpr const char* colourProfile = "org.freedesktop.ColorManager.Profile";

/// The first of several, or the only text of a property.
std::string firstText(const BusArguments::Value& value) {
    if (const auto* const texts = std::get_if<std::vector<std::string>>(&value)) {
        return texts->empty() ? std::string() : texts->front();
    }
    const auto* const text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
}

}  // namespace

ProfileFiles::ProfileFiles(Surroundings with) : _with(std::move(with)), _bus(_with.runLoop) {}

void ProfileFiles::ask(std::vector<std::string> connectors) {
    _connectors = std::move(connectors);
    if (_with.systemBus.empty() || _isHopeless || _connectors.empty()) {
        return;
    }
    if (_isOpen) {
        askAll();
    } else if (!std::exchange(_isOpening, true)) {
        open();
    }
    if (_with.runLoop == nullptr) {
        _isHopeless =
            !_bus.waitUntil([this] { return _isOpen && _answersDue == 0; }, longestAnswer);
    }
}

void ProfileFiles::open() {
    _bus.open(_with.systemBus,
              {.opened =
                   [this] {
                       _isOpen = true;
                       for (const char* const name :
                            {"DeviceAdded", "DeviceChanged", "DeviceRemoved", "ProfileAdded",
                             "ProfileChanged", "ProfileRemoved"}) {
                           _bus.watch({colourManager, name}, [this](BusArguments&) { askAll(); });
                       }
                       askAll();
                   },
               .gone = [this] { _isOpen = false; }});
}

// A burst of changes is asked about twice: at its start, and once more after the answers.
void ProfileFiles::askAll() {
    _isStale = _answersDue > 0;
    if (_isStale) {
        return;
    }
    _found.clear();
    _answersDue = _connectors.size();
    for (const std::string& connector : _connectors) {
        askFor(connector);
    }
}

void ProfileFiles::askFor(const std::string& connector) {
    _bus.ask(
        {colourManager, colourManagerPath, colourManager, "FindDeviceByProperty"},
        {std::string("XRANDR_name"), connector},
        [this, connector](BusArguments& device) {
            getProperty(device.text(), colourDevice, "Profiles", connector,
                        &ProfileFiles::takeProfile);
        },
        [this] { answered(); });
}

void ProfileFiles::getProperty(const std::string& object, const char* interface, const char* name,
                               const std::string& connector,
                               void (ProfileFiles::*take)(const std::string&, const std::string&)) {
    if (object.empty()) {
        answered();
        return;
    }
    _bus.ask(
        {colourManager, object, "org.freedesktop.DBus.Properties", "Get"},
        {std::string(interface), std::string(name)},
        [this, connector, take](BusArguments& arguments) {
            (this->*take)(connector, firstText(arguments.value()));
        },
        [this] { answered(); });
}

void ProfileFiles::takeProfile(const std::string& connector, const std::string& profile) {
    getProperty(profile, colourProfile, "Filename", connector, &ProfileFiles::takeFile);
}

void ProfileFiles::takeFile(const std::string& connector, const std::string& file) {
    // Even profiles with large tables for printing have only a few MiB.
    constexpr std::size_t mostBytes = std::size_t{16} * 1024 * 1024;
    auto bytes = readBoundedFile(file, mostBytes);
    if (bytes && calibrationRamp(*bytes, GammaTable::capacity)) {
        _found[connector] = std::move(*bytes);
    }
    answered();
}

void ProfileFiles::answered() {
    if (--_answersDue > 0) {
        return;
    }
    const bool hasChanged = _found != _profiles;
    _profiles = std::exchange(_found, {});
    if (_isStale) {
        askAll();
    }
    if (hasChanged && _with.changed) {
        _with.changed();
    }
}

HardwareRamp ProfileFiles::calibration(const std::string& connector, std::uint32_t size) const {
    const auto found = _profiles.find(connector);
    const auto ramp =
        found == _profiles.end() ? std::nullopt : calibrationRamp(found->second, size);
    return ramp.value_or(HardwareRamp::straight(size));
}

}  // namespace tonquil
