// SPDX-License-Identifier: MIT
#include "tests/support/RampReader.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tonquil {

RampReader::RampReader(XcbOutputs outputs) : _outputs(std::move(outputs)) {}

Result<RampReader> RampReader::connect(const std::string& display) {
    auto outputs = XcbOutputs::connect(display);
    if (!outputs) {
        return tl::unexpected(outputs.error());
    }
    return RampReader(std::move(*outputs));
}

Result<std::vector<OutputState>> RampReader::litOutputs() const {
    auto outputs = _outputs.all();
    if (outputs) {
        std::erase_if(*outputs, [](const OutputState& output) { return output.crtc == XCB_NONE; });
    }
    return outputs;
}

Result<OutputState> RampReader::litOutput(const std::string& connector) const {
    auto output = _outputs.find(connector);
    if (output && output->crtc == XCB_NONE) {
        return problem("The output " + connector + " is dark and has no ramp.");
    }
    return output;
}

Result<Ramp> RampReader::read(const std::string& connector) const {
    const auto output = litOutput(connector);
    if (!output) {
        return tl::unexpected(output.error());
    }
    auto* connection = _outputs.connection();
    const XcbReply<xcb_randr_get_crtc_gamma_reply_t> reply(xcb_randr_get_crtc_gamma_reply(
        connection, xcb_randr_get_crtc_gamma(connection, output->crtc), nullptr));
    if (!reply) {
        return problem("The ramp of " + connector + " cannot be read.");
    }
    const auto copy = [&](const std::uint16_t* first) {
        return std::vector<std::uint16_t>(first, first + reply->size);
    };
    return Ramp{copy(xcb_randr_get_crtc_gamma_red(reply.get())),
                copy(xcb_randr_get_crtc_gamma_green(reply.get())),
                copy(xcb_randr_get_crtc_gamma_blue(reply.get()))};
}

Result<void> RampReader::write(const std::string& connector, const Ramp& ramp) const {
    const auto output = litOutput(connector);
    if (!output) {
        return tl::unexpected(output.error());
    }
    const auto size = ramp.red.size();
    // The request carries one size for the three tables, so xcb would read past a shorter one.
    if (ramp.green.size() != size || ramp.blue.size() != size || size > UINT16_MAX) {
        return problem("The three tables of a ramp must have the same size.");
    }
    return _outputs.check(xcb_randr_set_crtc_gamma_checked(
                              _outputs.connection(), output->crtc, static_cast<std::uint16_t>(size),
                              ramp.red.data(), ramp.green.data(), ramp.blue.data()),
                          "The ramp of " + connector + " cannot be written.");
}

}  // namespace tonquil
