// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11CrtcRamps.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tonquil {

namespace {

/// Red, green and blue stand one behind the other in the reply.
std::span<const std::uint16_t> entriesOf(const xcb_randr_get_crtc_gamma_reply_t& reply) {
    return {xcb_randr_get_crtc_gamma_red(&reply), 3 * std::size_t{reply.size}};
}

/// Size 0 where there is no ramp to speak of.
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
    auto histories = _journal.receive();
    for (std::size_t i = 0; i < crtcs.size(); ++i) {
        const XcbPointer<xcb_randr_get_crtc_gamma_reply_t> reply(
            xcb_randr_get_crtc_gamma_reply(_connection.get(), cookies[i], nullptr));
        CrtcRamp& state = _crtcs[crtcs[i]];
        state.present = rampOf(reply.get());
        state.history = std::move(histories[crtcs[i]]);
        if (state.present.size() != state.correction.size()) {
            state.table.reset();
        }
        state.isSystemRampUnsaved = false;
        if (state.present.size() > 0 && state.history.systemRamp() != state.present &&
            !state.history.isCorrection(state.present.fingerprint())) {
            state.history.setSystemRamp(state.present);
            state.isSystemRampUnsaved = true;
        }
    }
}

void X11CrtcRamps::release(xcb_randr_crtc_t crtc) {
    // What another process of ours has set since is for that display which has come there.
    const RampHistory ours = _crtcs[crtc].history;
    load({crtc});
    const CrtcRamp& state = _crtcs[crtc];
    if (state.present.size() > 0 && ours.isCorrection(state.present.fingerprint())) {
        setSystemRamp(crtc, state.history.uncorrected(state.present));
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
    return ramp == nullptr ? std::nullopt
                           : std::optional(_crtcs.at(crtc).history.uncorrected(*ramp));
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
        state.wasInPlace = false;
    }
    // In this order, so that a kill between any two requests leaves a ramp that is recognised and
    // a system ramp to go back to.
    if (std::exchange(state.isSystemRampUnsaved, false)) {
        _journal.appendSystemRamp(crtc, *state.history.systemRamp());
    }
    // Also when it is the same as before, if others set ramps as well: by then it may no longer be
    // remembered. Alone on the display, the journal is left in peace: each change of it wakes up
    // everybody who watches the root window.
    if (!std::exchange(state.wasInPlace, false)) {
        _journal.appendCorrection(crtc, state.correctionFingerprint);
        state.history.addCorrection(state.correctionFingerprint);
    }
    send(crtc, state, state.correction);
}

void X11CrtcRamps::setSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp) {
    CrtcRamp& state = _crtcs.at(crtc);
    if (state.isSystemRampUnsaved || state.history.systemRamp() != ramp) {
        _journal.appendSystemRamp(crtc, ramp);
        state.history.setSystemRamp(ramp);
        state.isSystemRampUnsaved = false;
    }
    send(crtc, state, *state.history.systemRamp());
}

void X11CrtcRamps::send(xcb_randr_crtc_t crtc, CrtcRamp& state, const HardwareRamp& ramp) {
    _pending.push_back(
        {.crtc = crtc,
         .replaced = xcb_randr_get_crtc_gamma(_connection.get(), crtc),
         .set = xcb_randr_set_crtc_gamma_checked(
             _connection.get(), crtc, static_cast<std::uint16_t>(ramp.size()),
             ramp.channel(0).data(), ramp.channel(1).data(), ramp.channel(2).data())});
    state.present = ramp;
}

void X11CrtcRamps::examineReplaced(xcb_randr_crtc_t crtc,
                                   const xcb_randr_get_crtc_gamma_reply_t& replaced) {
    const auto found = _crtcs.find(crtc);
    if (found == _crtcs.end()) {
        return;
    }
    CrtcRamp& state = found->second;
    // Re-applying an unchanged correction replaces that very correction.
    if (std::ranges::equal(entriesOf(replaced), state.present.entries())) {
        state.wasInPlace = state.present == state.correction;
        return;
    }
    const HardwareRamp ramp = rampOf(&replaced);
    const std::uint64_t fingerprint = ramp.fingerprint();
    if (ramp.size() == 0 || ramp == state.history.systemRamp() ||
        state.history.isCorrection(fingerprint)) {
        return;
    }
    // Another process of ours may have set it.
    _journal.ask();
    state.history = std::move(_journal.receive()[crtc]);
    if (!state.history.isCorrection(fingerprint) && ramp != state.history.systemRamp()) {
        _journal.appendSystemRamp(crtc, ramp);
        state.history.setSystemRamp(ramp);
    }
}

std::vector<xcb_randr_crtc_t> X11CrtcRamps::finish() {
    std::vector<xcb_randr_crtc_t> refused;
    if (_pending.empty()) {
        return refused;
    }
    xcb_connection_t* const connection = _connection.get();
    // The answer to this comes last: once it is here, those to all that was sent are.
    const auto last = xcb_get_input_focus(connection);
    const XcbPointer<xcb_get_input_focus_reply_t> lastReply(
        xcb_get_input_focus_reply(connection, last, nullptr));
    for (const auto& [crtc, replacedCookie, set] : _pending) {
        const XcbPointer<xcb_randr_get_crtc_gamma_reply_t> replaced(
            xcb_randr_get_crtc_gamma_reply(connection, replacedCookie, nullptr));
        const XcbPointer<xcb_generic_error_t> error(xcb_request_check(connection, set));
        if (!replaced || error) {
            refused.push_back(crtc);
            // Whatever was known of it is in doubt.
            _crtcs.erase(crtc);
            continue;
        }
        examineReplaced(crtc, *replaced);
    }
    _pending.clear();
    _journal.compactIfLong();
    // What was appended meanwhile must not lie in our buffer until the next call.
    xcb_flush(connection);
    return refused;
}

}  // namespace tonquil
