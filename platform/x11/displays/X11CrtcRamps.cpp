// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11CrtcRamps.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tonquil {

namespace {

/// Red, green and blue follow one another in the reply.
std::span<const std::uint16_t> entriesOf(const xcb_randr_get_crtc_gamma_reply_t& reply) {
    return {xcb_randr_get_crtc_gamma_red(&reply), 3 * std::size_t{reply.size}};
}

/// Size 0 if there is no usable ramp.
HardwareRamp rampOf(const xcb_randr_get_crtc_gamma_reply_t* reply) {
    if (reply == nullptr || reply->size < 2 || reply->size > HardwareRamp::largestSize) {
        return {};
    }
    HardwareRamp ramp(reply->size);
    std::ranges::copy(entriesOf(*reply), ramp.entries().begin());
    return ramp;
}

}  // namespace

void X11CrtcRamps::load(const std::vector<xcb_randr_crtc_t>& crtcs) {
    std::vector<xcb_randr_get_crtc_gamma_cookie_t> cookies;
    cookies.reserve(crtcs.size());
    for (const xcb_randr_crtc_t crtc : crtcs) {
        cookies.push_back(xcb_randr_get_crtc_gamma(_connection.get(), crtc));
    }
    _journal.ask();
    auto journal = _journal.receive();
    for (std::size_t i = 0; i < crtcs.size(); ++i) {
        const XcbPointer<xcb_randr_get_crtc_gamma_reply_t> reply(
            xcb_randr_get_crtc_gamma_reply(_connection.get(), cookies[i], nullptr));
        look(crtcs[i], rampOf(reply.get()), std::move(journal.histories[crtcs[i]]),
             journal.areCorrectionsDamaged);
    }
    if (journal.areCorrectionsDamaged) {
        // Appended records must not stay in our output buffer until the next call.
        xcb_flush(_connection.get());
    }
}

void X11CrtcRamps::look(xcb_randr_crtc_t crtc, HardwareRamp present, RampHistory history,
                        bool areRecordsLost) {
    CrtcRamp& state = _crtcs[crtc];
    const RampHistory former = std::exchange(state.history, std::move(history));
    state.present = std::move(present);
    if (state.present.size() != state.correction.size()) {
        state.table.reset();
        state.isHeld = false;
    }
    state.isSystemRampUnsaved = false;
    state.isCorrectionSaved = state.isHeld && state.history.has(correctionOf(state));
    if (state.present.size() == 0) {
        return;
    }
    if (state.isHeld) {
        // The journal may have lost it; a current ramp that is not ours is a disturbance.
        if (!state.history.systemRamp() && former.systemRamp()) {
            state.history.setSystemRamp(*former.systemRamp());
            state.isSystemRampUnsaved = true;
        }
        return;
    }
    const std::uint64_t fingerprint = state.present.fingerprint();
    if (state.history.systemRamp() == state.present || state.history.isCorrection(fingerprint)) {
        return;
    }
    if (areRecordsLost && state.history.systemRamp()) {
        // Most likely a correction whose record is lost. If it were taken for the system's ramp, it
        // would be corrected twice, permanently.
        const RampHistory::Correction lost{.fingerprint = fingerprint, .holder = _journal.holder()};
        _journal.appendCorrection(crtc, lost);
        state.history.addCorrection(lost);
        return;
    }
    state.history.setSystemRamp(state.present);
    state.isSystemRampUnsaved = true;
}

void X11CrtcRamps::release(xcb_randr_crtc_t crtc) {
    const RampHistory ours = _crtcs[crtc].history;
    load({crtc});
    const CrtcRamp& state = _crtcs[crtc];
    const std::uint64_t fingerprint = state.present.fingerprint();
    const bool isOurs = ours.isCorrection(fingerprint);
    // What another process of ours has set since belongs to the display that is now on the CRTC.
    const bool isAnothers = !isOurs && state.history.isCorrection(fingerprint);
    if (state.present.size() > 0 && (isOurs || (state.isHeld && !isAnothers))) {
        setSystemRamp(crtc, state.history.underCorrection(state.present.size()));
    }
    _crtcs.erase(crtc);
}

std::uint32_t X11CrtcRamps::size(xcb_randr_crtc_t crtc) const {
    const auto found = _crtcs.find(crtc);
    return found == _crtcs.end() ? 0 : found->second.present.size();
}

const HardwareRamp* X11CrtcRamps::present(xcb_randr_crtc_t crtc) const {
    const auto found = _crtcs.find(crtc);
    return found == _crtcs.end() || found->second.present.size() == 0 ? nullptr
                                                                      : &found->second.present;
}

std::optional<HardwareRamp> X11CrtcRamps::uncorrected(xcb_randr_crtc_t crtc) const {
    const HardwareRamp* ramp = present(crtc);
    if (ramp == nullptr) {
        return std::nullopt;
    }
    const CrtcRamp& state = _crtcs.at(crtc);
    return state.isHeld ? state.history.underCorrection(ramp->size())
                        : state.history.uncorrected(*ramp);
}

void X11CrtcRamps::setCorrection(xcb_randr_crtc_t crtc, const GammaTable& table) {
    CrtcRamp& state = _crtcs.at(crtc);
    if (!state.table || !haveSameBits(*state.table, table)) {
        if (state.correction.size() != state.present.size()) {
            state.correction = HardwareRamp(state.present.size());
        }
        state.correction.setTable(table);
        state.correctionFingerprint = state.correction.fingerprint();
        state.table = table;
        state.isCorrectionSaved = false;
    }
    // In this order, so that being killed between any two requests leaves a recognisable ramp and a
    // system ramp to restore.
    if (std::exchange(state.isSystemRampUnsaved, false)) {
        _journal.appendSystemRamp(crtc, *state.history.systemRamp());
    }
    // Not on every re-application: each change of the journal wakes up every client that watches
    // the root window, and a holder's last correction is not forgotten.
    if (!std::exchange(state.isCorrectionSaved, true)) {
        _journal.appendCorrection(crtc, correctionOf(state));
        state.history.addCorrection(correctionOf(state));
    }
    send(crtc, state, state.correction, true);
}

void X11CrtcRamps::setSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp) {
    CrtcRamp& state = _crtcs.at(crtc);
    if (state.isSystemRampUnsaved || state.history.systemRamp() != ramp) {
        _journal.appendSystemRamp(crtc, ramp);
        state.history.setSystemRamp(ramp);
        state.isSystemRampUnsaved = false;
    }
    send(crtc, state, *state.history.systemRamp(), false);
}

void X11CrtcRamps::send(xcb_randr_crtc_t crtc, CrtcRamp& state, const HardwareRamp& ramp,
                        bool isCorrection) {
    Pending pending;
    pending.crtc = crtc;
    const bool wasHeld = std::exchange(state.isHeld, isCorrection);
    if (isCorrection && !wasHeld) {
        pending.replaced = xcb_randr_get_crtc_gamma(_connection.get(), crtc);
    }
    pending.set = xcb_randr_set_crtc_gamma_checked(
        _connection.get(), crtc, static_cast<std::uint16_t>(ramp.size()), ramp.channel(0).data(),
        ramp.channel(1).data(), ramp.channel(2).data());
    _pending.push_back(pending);
    state.present = ramp;
}

// The system may have set its ramp after our last look.
void X11CrtcRamps::examineReplaced(xcb_randr_crtc_t crtc, const HardwareRamp& replaced) {
    const auto found = _crtcs.find(crtc);
    if (found == _crtcs.end() || replaced.size() == 0) {
        return;
    }
    RampHistory& history = found->second.history;
    const std::uint64_t fingerprint = replaced.fingerprint();
    const auto isKnown = [&] {
        return replaced == history.systemRamp() || history.isCorrection(fingerprint);
    };
    if (isKnown()) {
        return;
    }
    // Another process of ours may have set it.
    _journal.ask();
    history = std::move(_journal.receive().histories[crtc]);
    if (!isKnown()) {
        _journal.appendSystemRamp(crtc, replaced);
        history.setSystemRamp(replaced);
    }
}

// Somebody has shortened the journal, or deleted it.
void X11CrtcRamps::saveAgain() {
    _journal.ask();
    auto journal = _journal.receive();
    for (auto& [crtc, state] : _crtcs) {
        RampHistory& saved = journal.histories[crtc];
        const auto& systemRamp = state.history.systemRamp();
        if (systemRamp && (!saved.systemRamp() || state.isSystemRampUnsaved)) {
            saved.setSystemRamp(*systemRamp);
            _journal.appendSystemRamp(crtc, *systemRamp);
            state.isSystemRampUnsaved = false;
        }
        if (state.isHeld && !saved.has(correctionOf(state))) {
            saved.addCorrection(correctionOf(state));
            _journal.appendCorrection(crtc, correctionOf(state));
        }
        state.history = std::move(saved);
    }
}

std::vector<xcb_randr_crtc_t> X11CrtcRamps::finish() {
    std::vector<xcb_randr_crtc_t> refused;
    if (_pending.empty()) {
        return refused;
    }
    xcb_connection_t* const connection = _connection.get();
    // The reply to this comes last: once it is here, so are the replies to everything sent before.
    _journal.askIfIntact();
    if (!_journal.isIntact()) {
        saveAgain();
    }
    for (const Pending& pending : _pending) {
        const XcbPointer<xcb_generic_error_t> error(xcb_request_check(connection, pending.set));
        XcbPointer<xcb_randr_get_crtc_gamma_reply_t> replaced;
        if (pending.replaced) {
            replaced.reset(xcb_randr_get_crtc_gamma_reply(connection, *pending.replaced, nullptr));
        }
        if (error || (pending.replaced && !replaced)) {
            refused.push_back(pending.crtc);
            // Whatever was known about it is in doubt.
            _crtcs.erase(pending.crtc);
        } else if (replaced) {
            examineReplaced(pending.crtc, rampOf(replaced.get()));
        }
    }
    _pending.clear();
    _journal.compactIfLong();
    // Records appended meanwhile must not stay in our output buffer until the next call.
    xcb_flush(connection);
    return refused;
}

}  // namespace tonquil
