// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11RampJournal.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tonquil {

namespace {

constexpr std::size_t correctionUnits = 5;
constexpr std::size_t systemRampHeaderUnits = 5;

/// Long enough that compacting is rare even during a drag, short enough to be read at every start.
constexpr std::size_t longCorrections =
    std::size_t{5} * correctionUnits * RampHistory::mostCorrections;
constexpr std::size_t longSystemRamps = 64 * std::size_t{1024};
/// In 32-bit units; far more than we ever write.
constexpr std::uint32_t mostUnits = 1U << 20U;

using Units = std::span<const std::uint32_t>;

std::uint32_t high(std::uint64_t fingerprint) {
    return static_cast<std::uint32_t>(fingerprint >> 32U);
}

std::uint32_t low(std::uint64_t fingerprint) {
    return static_cast<std::uint32_t>(fingerprint & 0xFFFFFFFFU);
}

/// The value that a block's first unit must have, computed from the other four leading units.
std::uint32_t checkOf(Units block) {
    std::uint32_t check = 0x811c9dc5U;
    for (const std::uint32_t unit : block.subspan(1, correctionUnits - 1)) {
        check = (check ^ unit) * 0x01000193U;
        check ^= check >> 15U;
    }
    return check;
}

std::size_t unitsForEntries(std::uint32_t size) {
    return (3 * std::size_t{size} + 1) / 2;
}

/// The number of units that a correction takes at the front; 0 if there is none.
std::size_t takeCorrection(Units units, X11RampJournal::Histories& histories) {
    if (units.size() < correctionUnits || units[0] != checkOf(units)) {
        return 0;
    }
    histories[units[1]].addCorrection(
        {.fingerprint = (std::uint64_t{units[3]} << 32U) | units[4], .holder = units[2]});
    return correctionUnits;
}

std::size_t takeSystemRamp(Units units, X11RampJournal::Histories& histories) {
    if (units.size() < systemRampHeaderUnits || units[0] != checkOf(units)) {
        return 0;
    }
    const std::uint32_t size = units[2];
    const Units entries = units.subspan(systemRampHeaderUnits);
    if (size < 2 || size > HardwareRamp::largestSize || entries.size() < unitsForEntries(size)) {
        return 0;
    }
    HardwareRamp ramp(size);
    std::memcpy(ramp.entries().data(), entries.data(), ramp.entries().size_bytes());
    const std::uint64_t fingerprint = ramp.fingerprint();
    if (units[3] != high(fingerprint) || units[4] != low(fingerprint)) {
        return 0;
    }
    histories[units[1]].setSystemRamp(std::move(ramp));
    return systemRampHeaderUnits + unitsForEntries(size);
}

/// Takes block after block; returns false if it had to skip units that are not ours.
template <typename Take>
bool takeAll(Units units, X11RampJournal::Histories& histories, Take take) {
    bool areAllOurs = true;
    while (!units.empty()) {
        const std::size_t taken = take(units, histories);
        areAllOurs = areAllOurs && taken > 0;
        units = units.subspan(std::max<std::size_t>(taken, 1));
    }
    return areAllOurs;
}

bool isForeign(const xcb_get_property_reply_t* reply) {
    return reply != nullptr && reply->type != XCB_NONE &&
           (reply->type != XCB_ATOM_CARDINAL || reply->format != 32);
}

Units unitsOf(const xcb_get_property_reply_t* reply) {
    if (reply == nullptr || reply->format != 32) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(reply)), reply->value_len};
}

xcb_get_property_cookie_t askForProperty(const X11Connection& connection, xcb_atom_t property,
                                         std::uint32_t units) {
    return xcb_get_property(connection.get(), 0, connection.root(), property,
                            XCB_GET_PROPERTY_TYPE_ANY, 0, units);
}

}  // namespace

X11RampJournal::X11RampJournal(const X11Connection& connection)
    : _connection(connection), _holder(xcb_get_setup(connection.get())->resource_id_base) {}

void X11RampJournal::ask() {
    _correctionsCookie = askForProperty(_connection, _connection.correctionsAtom(), mostUnits);
    _systemRampsCookie = askForProperty(_connection, _connection.systemRampsAtom(), mostUnits);
}

X11RampJournal::Contents X11RampJournal::receiveAnswers() {
    const XcbPointer<xcb_get_property_reply_t> corrections(
        xcb_get_property_reply(_connection.get(), _correctionsCookie, nullptr));
    const XcbPointer<xcb_get_property_reply_t> systemRamps(
        xcb_get_property_reply(_connection.get(), _systemRampsCookie, nullptr));
    _correctionUnits = unitsOf(corrections.get()).size();
    _systemRampUnits = unitsOf(systemRamps.get()).size();
    Contents contents = parse(unitsOf(corrections.get()), unitsOf(systemRamps.get()));
    contents.areCorrectionsDamaged |= isForeign(corrections.get());
    contents.areSystemRampsDamaged |= isForeign(systemRamps.get());
    return contents;
}

X11RampJournal::Contents X11RampJournal::receive() {
    Contents contents = receiveAnswers();
    if (contents.areCorrectionsDamaged || contents.areSystemRampsDamaged) {
        // Appending to a property of another type fails.
        rewrite();
    }
    return contents;
}

void X11RampJournal::askIfIntact() {
    _intactCookie = askForProperty(_connection, _connection.correctionsAtom(), 0);
}

bool X11RampJournal::isIntact() {
    const XcbPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(_connection.get(), _intactCookie, nullptr));
    if (!reply) {
        return true;
    }
    const std::size_t units = reply->bytes_after / sizeof(std::uint32_t);
    if (isForeign(reply.get()) || units < _correctionUnits) {
        return false;
    }
    _correctionUnits = units;
    return true;
}

X11RampJournal::Contents X11RampJournal::parse(Units corrections, Units systemRamps) {
    Contents contents;
    contents.areCorrectionsDamaged = !takeAll(corrections, contents.histories, takeCorrection);
    contents.areSystemRampsDamaged = !takeAll(systemRamps, contents.histories, takeSystemRamp);
    return contents;
}

std::vector<std::uint32_t> X11RampJournal::correctionBlock(
    xcb_randr_crtc_t crtc, const RampHistory::Correction& correction) {
    std::vector<std::uint32_t> block{0, crtc, correction.holder, high(correction.fingerprint),
                                     low(correction.fingerprint)};
    block[0] = checkOf(block);
    return block;
}

std::vector<std::uint32_t> X11RampJournal::systemRampBlock(xcb_randr_crtc_t crtc,
                                                           const HardwareRamp& ramp) {
    std::vector<std::uint32_t> block(systemRampHeaderUnits + unitsForEntries(ramp.size()));
    const std::uint64_t fingerprint = ramp.fingerprint();
    block[1] = crtc;
    block[2] = ramp.size();
    block[3] = high(fingerprint);
    block[4] = low(fingerprint);
    block[0] = checkOf(block);
    std::memcpy(block.data() + systemRampHeaderUnits, ramp.entries().data(),
                ramp.entries().size_bytes());
    return block;
}

void X11RampJournal::write(std::uint8_t mode, xcb_atom_t property, Units units) {
    xcb_change_property(_connection.get(), mode, _connection.root(), property, XCB_ATOM_CARDINAL,
                        32, static_cast<std::uint32_t>(units.size()), units.data());
}

void X11RampJournal::appendCorrection(xcb_randr_crtc_t crtc,
                                      const RampHistory::Correction& correction) {
    const auto block = correctionBlock(crtc, correction);
    write(XCB_PROP_MODE_APPEND, _connection.correctionsAtom(), block);
    _correctionUnits += block.size();
}

void X11RampJournal::appendSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp) {
    const auto block = systemRampBlock(crtc, ramp);
    write(XCB_PROP_MODE_APPEND, _connection.systemRampsAtom(), block);
    _systemRampUnits += block.size();
}

void X11RampJournal::compactIfLong() {
    // A journal that is long even when compact may double before it is compacted again.
    if (_correctionUnits >= std::max(longCorrections, 2 * _compactCorrectionUnits) ||
        _systemRampUnits >= std::max(longSystemRamps, 2 * _compactSystemRampUnits)) {
        rewrite();
    }
}

void X11RampJournal::rewrite() {
    // Nobody may append between the read and the write.
    xcb_grab_server(_connection.get());
    ask();
    const Contents contents = receiveAnswers();
    std::vector<std::uint32_t> corrections;
    std::vector<std::uint32_t> systemRamps;
    for (const auto& [crtc, history] : contents.histories) {
        for (const RampHistory::Correction& correction : history.corrections()) {
            const auto block = correctionBlock(crtc, correction);
            corrections.insert(corrections.end(), block.begin(), block.end());
        }
        if (history.systemRamp()) {
            const auto block = systemRampBlock(crtc, *history.systemRamp());
            systemRamps.insert(systemRamps.end(), block.begin(), block.end());
        }
    }
    write(XCB_PROP_MODE_REPLACE, _connection.correctionsAtom(), corrections);
    write(XCB_PROP_MODE_REPLACE, _connection.systemRampsAtom(), systemRamps);
    xcb_ungrab_server(_connection.get());
    xcb_flush(_connection.get());
    _correctionUnits = _compactCorrectionUnits = corrections.size();
    _systemRampUnits = _compactSystemRampUnits = systemRamps.size();
}

}  // namespace tonquil
