// SPDX-License-Identifier: MIT
#include "tests/support/RampReader.h"

#include <algorithm>
#include <span>

namespace tonquil {

Result<RampReader> RampReader::connect(const std::string& display) {
    RampReader made(display.c_str());
    // The server uses the old protocol until a client has announced its version.
    const XcbReply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        made.connection(), xcb_randr_query_version(made.connection(), 1, 5), nullptr));
    if (!version) {
        return problem("The X server " + display + " does not answer, or lacks RandR.");
    }
    return made;
}

xcb_window_t RampReader::root() const {
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

Result<std::vector<OutputState>> RampReader::all() const {
    auto* const c = connection();
    const XcbReply<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(
            c, xcb_randr_get_screen_resources_current(c, root()), nullptr));
    if (!resources) {
        return problem("The X server does not list its outputs.");
    }
    std::vector<OutputState> outputs;
    for (const auto id : std::span(xcb_randr_get_screen_resources_current_outputs(resources.get()),
                                   resources->num_outputs)) {
        const XcbReply<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
            c, xcb_randr_get_output_info(c, id, resources->config_timestamp), nullptr));
        if (info) {
            const auto* const name = xcb_randr_get_output_info_name(info.get());
            outputs.push_back({id, info->crtc, std::string(name, name + info->name_len)});
        }
    }
    return outputs;
}

Result<OutputState> RampReader::find(const std::string& connector) const {
    return all().and_then([&](const std::vector<OutputState>& outputs) -> Result<OutputState> {
        const auto found = std::ranges::find(outputs, connector, &OutputState::connector);
        if (found == outputs.end()) {
            return problem("The X server has no output named " + connector + ".");
        }
        return *found;
    });
}

Result<Ramp> RampReader::read(const std::string& connector) const {
    return find(connector).and_then([&](const OutputState& output) -> Result<Ramp> {
        const XcbReply<xcb_randr_get_crtc_gamma_reply_t> reply(xcb_randr_get_crtc_gamma_reply(
            connection(), xcb_randr_get_crtc_gamma(connection(), output.crtc), nullptr));
        if (!reply) {
            return problem("The ramp of " + connector + " cannot be read; is it lit?");
        }
        const auto copy = [&](const std::uint16_t* first) {
            return std::vector<std::uint16_t>(first, first + reply->size);
        };
        return Ramp{copy(xcb_randr_get_crtc_gamma_red(reply.get())),
                    copy(xcb_randr_get_crtc_gamma_green(reply.get())),
                    copy(xcb_randr_get_crtc_gamma_blue(reply.get()))};
    });
}

Result<void> RampReader::write(const std::string& connector, const Ramp& ramp) const {
    return find(connector).and_then([&](const OutputState& output) {
        return check(xcb_randr_set_crtc_gamma_checked(
                         connection(), output.crtc, static_cast<std::uint16_t>(ramp.red.size()),
                         ramp.red.data(), ramp.green.data(), ramp.blue.data()),
                     "The ramp of " + connector + " cannot be written.");
    });
}

Result<void> RampReader::setEdid(const std::string& connector,
                                 const std::vector<std::uint8_t>& edid) const {
    return find(connector).and_then([&](const OutputState& output) {
        return check(
            xcb_randr_change_output_property_checked(
                connection(), output.output, atom("EDID"), XCB_ATOM_INTEGER, 8,
                XCB_PROP_MODE_REPLACE, static_cast<std::uint32_t>(edid.size()), edid.data()),
            "The EDID of " + connector + " cannot be set.");
    });
}

xcb_atom_t RampReader::atom(const std::string& name) const {
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection(),
        xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_NONE};
}

Result<void> RampReader::check(xcb_void_cookie_t cookie, const std::string& what) const {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection(), cookie));
    // A connection that breaks while waiting for the reply reports no error of its own.
    if (error || xcb_connection_has_error(connection()) != 0) {
        return problem(what, error ? "X error " + std::to_string(error->error_code) : "");
    }
    return {};
}

}  // namespace tonquil
