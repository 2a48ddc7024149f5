// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11RampJournal.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tonquil {

namespace {

constexpr std::size_t correctionUnits = 3;
constexpr std::size_t systemRampHeaderUnits = 2;

/// Long enough that compacting is rare even during a drag, short enough to be read at every start.
constexpr std::size_t longCorrections =
    std::size_t{8} * correctionUnits * RampHistory::mostCorrections;
constexpr std::size_t longSystemRamps = 64 * std::size_t{1024};
/// In 32-bit units; nothing of ours comes near.
constexpr std::uint32_t mostUnits = 1U << 20U;

std::size_t unitsForEntries(std::uint32_t size) {
    return (3 * std::size_t{size} + 1) / 2;
}

std::span<const std::uint32_t> unitsOf(const xcb_get_property_reply_t* reply) {
    if (reply == nullptr || reply->format != 32) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(reply)), reply->value_len};
}

std::vector<std::uint32_t> systemRampUnits(xcb_randr_crtc_t crtc, const HardwareRamp& ramp) {
    std::vector<std::uint32_t> units(systemRampHeaderUnits + unitsForEntries(ramp.size()));
    units[0] = crtc;
    units[1] = ramp.size();
    std::memcpy(units.data() + systemRampHeaderUnits, ramp.entries().data(),
                ramp.entries().size_bytes());
    return units;
}

xcb_get_property_cookie_t askForProperty(const X11Connection& connection, xcb_atom_t property) {
    return xcb_get_property(connection.get(), 0, connection.root(), property, XCB_ATOM_CARDINAL, 0,
                            mostUnits);
}

}  // namespace

void X11RampJournal::ask() {
    _correctionsCookie = askForProperty(_connection, _connection.correctionsAtom());
    _systemRampsCookie = askForProperty(_connection, _connection.systemRampsAtom());
}

X11RampJournal::Histories X11RampJournal::receive() {
    const XcbPointer<xcb_get_property_reply_t> corrections(
        xcb_get_property_reply(_connection.get(), _correctionsCookie, nullptr));
    const XcbPointer<xcb_get_property_reply_t> systemRamps(
        xcb_get_property_reply(_connection.get(), _systemRampsCookie, nullptr));
    _correctionUnits = unitsOf(corrections.get()).size();
    _systemRampUnits = unitsOf(systemRamps.get()).size();
    return parse(unitsOf(corrections.get()), unitsOf(systemRamps.get()));
}

X11RampJournal::Histories X11RampJournal::parse(std::span<const std::uint32_t> corrections,
                                                std::span<const std::uint32_t> systemRamps) {
    Histories histories;
    for (; corrections.size() >= correctionUnits;
         corrections = corrections.subspan(correctionUnits)) {
        histories[corrections[0]].addCorrection((std::uint64_t{corrections[1]} << 32U) |
                                                corrections[2]);
    }
    while (systemRamps.size() >= systemRampHeaderUnits) {
        const xcb_randr_crtc_t crtc = systemRamps[0];
        const std::uint32_t size = systemRamps[1];
        systemRamps = systemRamps.subspan(systemRampHeaderUnits);
        if (size < 2 || size > HardwareRamp::largestSize ||
            systemRamps.size() < unitsForEntries(size)) {
            break;
        }
        HardwareRamp ramp(size);
        std::memcpy(ramp.entries().data(), systemRamps.data(), ramp.entries().size_bytes());
        histories[crtc].setSystemRamp(std::move(ramp));
        systemRamps = systemRamps.subspan(unitsForEntries(size));
    }
    return histories;
}

void X11RampJournal::append(xcb_atom_t property, std::span<const std::uint32_t> units) {
    xcb_change_property(_connection.get(), XCB_PROP_MODE_APPEND, _connection.root(), property,
                        XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(units.size()),
                        units.data());
}

void X11RampJournal::replace(xcb_atom_t property, std::span<const std::uint32_t> units) {
    xcb_change_property(_connection.get(), XCB_PROP_MODE_REPLACE, _connection.root(), property,
                        XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(units.size()),
                        units.data());
}

void X11RampJournal::appendCorrection(xcb_randr_crtc_t crtc, std::uint64_t fingerprint) {
    const std::array<std::uint32_t, correctionUnits> units{
        crtc, static_cast<std::uint32_t>(fingerprint >> 32U),
        static_cast<std::uint32_t>(fingerprint & 0xFFFFFFFFU)};
    append(_connection.correctionsAtom(), units);
    _correctionUnits += units.size();
}

void X11RampJournal::appendSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp) {
    const auto units = systemRampUnits(crtc, ramp);
    append(_connection.systemRampsAtom(), units);
    _systemRampUnits += units.size();
}

void X11RampJournal::compactIfLong() {
    // A journal that is long when compact is left to double first.
    if (_correctionUnits < std::max(longCorrections, 2 * _compactCorrectionUnits) &&
        _systemRampUnits < std::max(longSystemRamps, 2 * _compactSystemRampUnits)) {
        return;
    }
    // Nobody may append between the reading and the writing.
    xcb_grab_server(_connection.get());
    ask();
    const Histories histories = receive();
    std::vector<std::uint32_t> corrections;
    std::vector<std::uint32_t> systemRamps;
    for (const auto& [crtc, history] : histories) {
        for (const std::uint64_t fingerprint : history.corrections()) {
            corrections.insert(corrections.end(),
                               {crtc, static_cast<std::uint32_t>(fingerprint >> 32U),
                                static_cast<std::uint32_t>(fingerprint & 0xFFFFFFFFU)});
        }
        if (history.systemRamp()) {
            const auto units = systemRampUnits(crtc, *history.systemRamp());
            systemRamps.insert(systemRamps.end(), units.begin(), units.end());
        }
    }
    replace(_connection.correctionsAtom(), corrections);
    replace(_connection.systemRampsAtom(), systemRamps);
    xcb_ungrab_server(_connection.get());
    xcb_flush(_connection.get());
    _correctionUnits = _compactCorrectionUnits = corrections.size();
    _systemRampUnits = _compactSystemRampUnits = systemRamps.size();
}

}  // namespace tonquil
