// SPDX-License-Identifier: MIT
#include "bench/BareRampLoop.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "tests/support/RampReader.h"

namespace tonquil {

BareRampLoop::BareRampLoop(const std::string& display)
    : _connection(xcb_connect(display.c_str(), nullptr)) {
    const auto outputs = RampReader::connect(display).and_then(
        [](const RampReader& connected) { return connected.all(); });
    if (!outputs || xcb_connection_has_error(_connection.get()) != 0) {
        std::fputs("The X server's outputs cannot be listed.\n", stderr);
        std::exit(1);  // NOLINT(concurrency-mt-unsafe)
    }
    for (const OutputState& output : *outputs) {
        if (output.crtc != XCB_NONE) {
            keepRamp(output.crtc);
        }
    }
}

void BareRampLoop::keepRamp(xcb_randr_crtc_t crtc) {
    const XcbReply<xcb_randr_get_crtc_gamma_reply_t> reply(xcb_randr_get_crtc_gamma_reply(
        _connection.get(), xcb_randr_get_crtc_gamma(_connection.get(), crtc), nullptr));
    if (reply) {
        const std::uint16_t* first = xcb_randr_get_crtc_gamma_red(reply.get());
        _ramps.push_back({.crtc = crtc,
                          .size = reply->size,
                          .entries = {first, first + 3 * std::size_t{reply->size}}});
    }
}

bool BareRampLoop::reapply() {
    xcb_connection_t* const connection = _connection.get();
    std::vector<xcb_randr_get_crtc_gamma_cookie_t> asked;
    asked.reserve(_ramps.size());
    for (const Ramp& ramp : _ramps) {
        asked.push_back(xcb_randr_get_crtc_gamma(connection, ramp.crtc));
        const std::uint16_t* red = ramp.entries.data();
        xcb_randr_set_crtc_gamma(connection, ramp.crtc, ramp.size, red, red + ramp.size,
                                 red + 2 * std::size_t{ramp.size});
    }
    const XcbReply<xcb_get_input_focus_reply_t> last(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    bool areAnswered = last != nullptr;
    for (const auto cookie : asked) {
        const XcbReply<xcb_randr_get_crtc_gamma_reply_t> reply(
            xcb_randr_get_crtc_gamma_reply(connection, cookie, nullptr));
        areAnswered = areAnswered && reply;
    }
    return areAnswered;
}

}  // namespace tonquil
