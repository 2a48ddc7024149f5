// SPDX-License-Identifier: MIT
#include "tests/support/XcbOutputs.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tonquil {

XcbOutputs::XcbOutputs(Connection connection, xcb_window_t root)
    : _connection(std::move(connection)), _root(root) {}

Result<XcbOutputs> XcbOutputs::connect(const std::string& display) {
    Connection connection(xcb_connect(display.c_str(), nullptr));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return problem("The X server " + display + " does not answer.");
    }
    const auto* randr = xcb_get_extension_data(connection.get(), &xcb_randr_id);
    if (randr == nullptr || randr->present == 0) {
        return problem("The X server " + display + " lacks the RandR extension.");
    }
    // A server answers with the old protocol until a client has said which version it speaks.
    const XcbReply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        connection.get(), xcb_randr_query_version(connection.get(), 1, 5), nullptr));
    if (!version) {
        return problem("The X server " + display + " does not answer.");
    }
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    return XcbOutputs(std::move(connection), root);
}

OutputState XcbOutputs::describe(xcb_randr_output_t output, xcb_timestamp_t time) const {
    OutputState state;
    state.output = output;
    const XcbReply<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
        connection(), xcb_randr_get_output_info(connection(), output, time), nullptr));
    if (!info) {
        return state;
    }
    const auto length = static_cast<std::size_t>(xcb_randr_get_output_info_name_length(info.get()));
    const std::span name(xcb_randr_get_output_info_name(info.get()), length);
    state.connector.assign(name.begin(), name.end());
    state.crtc = info->crtc;
    if (state.crtc == XCB_NONE) {
        return state;
    }
    const XcbReply<xcb_randr_get_crtc_info_reply_t> crtc(xcb_randr_get_crtc_info_reply(
        connection(), xcb_randr_get_crtc_info(connection(), state.crtc, time), nullptr));
    if (crtc) {
        state.width = crtc->width;
        state.height = crtc->height;
    }
    return state;
}

Result<std::vector<OutputState>> XcbOutputs::all() const {
    const auto cookie = xcb_randr_get_screen_resources_current(connection(), _root);
    const XcbReply<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(connection(), cookie, nullptr));
    if (!resources) {
        return problem("The X server does not list its outputs.");
    }
    const auto count = static_cast<std::size_t>(
        xcb_randr_get_screen_resources_current_outputs_length(resources.get()));
    const std::span ids(xcb_randr_get_screen_resources_current_outputs(resources.get()), count);
    std::vector<OutputState> outputs;
    outputs.reserve(count);
    for (const auto id : ids) {
        outputs.push_back(describe(id, resources->config_timestamp));
    }
    return outputs;
}

Result<OutputState> XcbOutputs::find(const std::string& connector) const {
    const auto outputs = all();
    if (!outputs) {
        return tl::unexpected(outputs.error());
    }
    const auto found = std::find_if(outputs->begin(), outputs->end(), [&](const auto& output) {
        return output.connector == connector;
    });
    if (found == outputs->end()) {
        return problem("The X server has no output named " + connector + ".");
    }
    return *found;
}

Result<xcb_atom_t> XcbOutputs::atom(const std::string& name) const {
    const auto cookie =
        xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection(), cookie, nullptr));
    if (!reply) {
        return problem("The X server does not give an atom for " + name + ".");
    }
    return reply->atom;
}

Result<void> XcbOutputs::setEdid(const std::string& connector,
                                 const std::vector<std::uint8_t>& edid) const {
    const auto output = find(connector);
    if (!output) {
        return tl::unexpected(output.error());
    }
    const auto property = atom("EDID");
    if (!property) {
        return tl::unexpected(property.error());
    }
    return check(xcb_randr_change_output_property_checked(
                     connection(), output->output, *property, XCB_ATOM_INTEGER, 8,
                     XCB_PROP_MODE_REPLACE, static_cast<std::uint32_t>(edid.size()), edid.data()),
                 "The EDID of " + connector + " cannot be set.");
}

Result<void> XcbOutputs::removeAddedModes(const std::string& connector) const {
    const auto output = find(connector);
    if (!output) {
        return tl::unexpected(output.error());
    }
    const XcbReply<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
        connection(), xcb_randr_get_output_info(connection(), output->output, XCB_CURRENT_TIME),
        nullptr));
    if (!info) {
        return problem("The modes of " + connector + " cannot be listed.");
    }
    const std::span modes(
        xcb_randr_get_output_info_modes(info.get()),
        static_cast<std::size_t>(xcb_randr_get_output_info_modes_length(info.get())));
    for (const auto mode : modes) {
        // The server refuses to give up the driver's own modes, which tells the two kinds apart.
        const XcbReply<xcb_generic_error_t> refusal(xcb_request_check(
            connection(),
            xcb_randr_delete_output_mode_checked(connection(), output->output, mode)));
    }
    return {};
}

Result<void> XcbOutputs::check(xcb_void_cookie_t cookie, const std::string& what) const {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection(), cookie));
    if (error) {
        return problem(what, "X error " + std::to_string(error->error_code));
    }
    // A connection that breaks while the answer is awaited gives no error of its own.
    if (xcb_connection_has_error(connection()) != 0) {
        return problem(what, "The connection to the X server is broken.");
    }
    return {};
}

}  // namespace tonquil
