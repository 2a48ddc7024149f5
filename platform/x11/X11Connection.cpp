// SPDX-License-Identifier: MIT
#include "platform/x11/X11Connection.h"

#include <xcb/randr.h>

#include <cstdlib>
#include <string_view>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

std::string named(const char* display) {
    const char* name = display != nullptr ? display : std::getenv("DISPLAY");
    return name != nullptr && *name != '\0' ? std::string(name) : std::string();
}

xcb_intern_atom_cookie_t askForAtom(xcb_connection_t* connection, std::string_view name) {
    return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t answeredAtom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const XcbPointer<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : XCB_NONE;
}

}  // namespace

Result<std::unique_ptr<X11Connection>> X11Connection::open(const char* display) {
    const std::string name = named(display);
    if (name.empty()) {
        return problem(
            TONQUIL_TEXT("Problem", "There is no X server to talk to: DISPLAY is not set."));
    }
    int screenNumber = 0;
    std::unique_ptr<X11Connection> connection(new X11Connection);
    connection->_connection.reset(xcb_connect(name.c_str(), &screenNumber));
    if (const int error = xcb_connection_has_error(connection->get())) {
        return problem("Cannot connect to the X server " + name + ".",
                       "xcb error " + std::to_string(error));
    }
    if (auto failure = connection->prepare(screenNumber)) {
        return tl::unexpected(std::move(*failure));
    }
    return connection;
}

std::optional<Problem> X11Connection::prepare(int screenNumber) {
    xcb_connection_t* const connection = get();
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 1 && screenNumber > 0; --screenNumber) {
        xcb_screen_next(&screens);
    }
    if (screens.rem == 0) {
        return Problem{TONQUIL_TEXT("Problem", "The X server has no screen."), {}};
    }
    _root = screens.data->root;

    // All in one round trip.
    constexpr std::string_view xwayland = "XWAYLAND";
    const auto xwaylandCookie = xcb_query_extension(
        connection, static_cast<std::uint16_t>(xwayland.size()), xwayland.data());
    const auto edidCookie = askForAtom(connection, "EDID");
    const auto correctionsCookie = askForAtom(connection, "_TONQUIL_CORRECTIONS");
    const auto systemRampsCookie = askForAtom(connection, "_TONQUIL_SYSTEM_RAMPS");
    const auto* randr = xcb_get_extension_data(connection, &xcb_randr_id);
    const XcbPointer<xcb_query_extension_reply_t> xwaylandReply(
        xcb_query_extension_reply(connection, xwaylandCookie, nullptr));
    _isXwayland = xwaylandReply && xwaylandReply->present != 0;
    _edid = answeredAtom(connection, edidCookie);
    _corrections = answeredAtom(connection, correctionsCookie);
    _systemRamps = answeredAtom(connection, systemRampsCookie);

    const Problem noGamma{
        TONQUIL_TEXT("Problem",
                     "The X server has no RandR extension, so its displays cannot be corrected."),
        {}};
    if (randr == nullptr || randr->present == 0) {
        return noGamma;
    }
    _randrFirstEvent = randr->first_event;
    const XcbPointer<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        connection, xcb_randr_query_version(connection, 1, 5), nullptr));
    if (!version) {
        return noGamma;
    }
    if (version->major_version < 1 || (version->major_version == 1 && version->minor_version < 3)) {
        return Problem{
            TONQUIL_TEXT("Problem",
                         "The X server's RandR extension is older than 1.3, so its displays "
                         "cannot be corrected."),
            "version " + std::to_string(version->major_version) + "." +
                std::to_string(version->minor_version)};
    }
    return std::nullopt;
}

std::vector<std::uint8_t> X11Connection::rootProperty(xcb_atom_t name,
                                                      std::size_t mostBytes) const {
    const XcbPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(get(),
                               xcb_get_property(get(), 0, _root, name, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                                static_cast<std::uint32_t>(mostBytes / 4)),
                               nullptr));
    if (!reply) {
        return {};
    }
    const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
    return {bytes, bytes + xcb_get_property_value_length(reply.get())};
}

xcb_atom_t X11Connection::atom(const std::string& name) const {
    return answeredAtom(get(), askForAtom(get(), name));
}

}  // namespace tonquil
