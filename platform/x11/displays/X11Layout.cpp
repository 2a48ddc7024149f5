// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11Layout.h"

#include <algorithm>
#include <span>

#include "platform/edid/Edid.h"

namespace tonquil {

namespace {

/// The part of an EDID that identifies a monitor, in 32-bit units.
constexpr std::uint32_t edidUnits = 32;

struct Resources {
    std::vector<xcb_randr_crtc_t> crtcs;
    xcb_timestamp_t timestamp = 0;
    xcb_randr_output_t primary = XCB_NONE;
};

Resources readResources(const X11Connection& connection) {
    xcb_connection_t* const c = connection.get();
    const auto resourcesCookie = xcb_randr_get_screen_resources_current(c, connection.root());
    const auto primaryCookie = xcb_randr_get_output_primary(c, connection.root());
    const XcbPointer<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(c, resourcesCookie, nullptr));
    const XcbPointer<xcb_randr_get_output_primary_reply_t> primary(
        xcb_randr_get_output_primary_reply(c, primaryCookie, nullptr));
    if (!resources) {
        return {};
    }
    const auto* crtcs = xcb_randr_get_screen_resources_current_crtcs(resources.get());
    return {.crtcs = {crtcs, crtcs + resources->num_crtcs},
            .timestamp = resources->config_timestamp,
            .primary = primary ? primary->output : static_cast<xcb_randr_output_t>(XCB_NONE)};
}

/// The active CRTCs, each as a display with only its position known.
std::vector<X11Display> readLitCrtcs(const X11Connection& connection, const Resources& resources) {
    xcb_connection_t* const c = connection.get();
    std::vector<xcb_randr_get_crtc_info_cookie_t> cookies;
    cookies.reserve(resources.crtcs.size());
    for (const xcb_randr_crtc_t crtc : resources.crtcs) {
        cookies.push_back(xcb_randr_get_crtc_info(c, crtc, resources.timestamp));
    }
    std::vector<X11Display> displays;
    for (std::size_t i = 0; i < cookies.size(); ++i) {
        const XcbPointer<xcb_randr_get_crtc_info_reply_t> info(
            xcb_randr_get_crtc_info_reply(c, cookies[i], nullptr));
        if (!info || info->mode == XCB_NONE || info->num_outputs == 0) {
            continue;
        }
        const std::span outputs(xcb_randr_get_crtc_info_outputs(info.get()), info->num_outputs);
        const bool hasPrimary =
            std::find(outputs.begin(), outputs.end(), resources.primary) != outputs.end();
        X11Display display;
        display.output = hasPrimary ? resources.primary : outputs.front();
        display.crtc = resources.crtcs[i];
        display.bounds = {static_cast<double>(info->x), static_cast<double>(info->y),
                          static_cast<double>(info->width), static_cast<double>(info->height)};
        displays.push_back(display);
    }
    return displays;
}

void describe(X11Display& display, const xcb_randr_get_output_info_reply_t& info,
              std::span<const std::uint8_t> edidBytes) {
    // The accessor returns non-const bytes although it only reads.
    const auto* name = xcb_randr_get_output_info_name(&info);
    display.connector.assign(name, name + xcb_randr_get_output_info_name_length(&info));
    display.identity.isBuiltIn = isBuiltInConnector(display.connector);
    display.identity.widthInMillimetres = info.mm_width;
    display.identity.heightInMillimetres = info.mm_height;
    if (const auto edid = parseEdid(edidBytes)) {
        display.identity.serialNumber = edid->serialNumber;
        display.identity.modelNumber = edid->modelNumber;
        display.identity.vendorNumber = edid->vendorNumber;
        display.productName = edid->productName;
        display.primaries = edid->primaries;
    } else {
        // Otherwise all outputs of one size without an EDID would share a reference ID.
        display.identity.modelNumber = numberOf(display.connector);
    }
}

/// Fills in what the outputs report, and drops those that vanished meanwhile.
void describeAll(const X11Connection& connection, xcb_timestamp_t timestamp,
                 std::vector<X11Display>& displays) {
    xcb_connection_t* const c = connection.get();
    struct Cookies {
        xcb_randr_get_output_info_cookie_t info;
        xcb_randr_get_output_property_cookie_t edid;
    };
    std::vector<Cookies> cookies;
    cookies.reserve(displays.size());
    for (const X11Display& display : displays) {
        cookies.push_back(
            {xcb_randr_get_output_info(c, display.output, timestamp),
             xcb_randr_get_output_property(c, display.output, connection.edidAtom(),
                                           XCB_GET_PROPERTY_TYPE_ANY, 0, edidUnits, 0, 0)});
    }
    for (std::size_t i = 0; i < cookies.size(); ++i) {
        const XcbPointer<xcb_randr_get_output_info_reply_t> info(
            xcb_randr_get_output_info_reply(c, cookies[i].info, nullptr));
        const XcbPointer<xcb_randr_get_output_property_reply_t> edid(
            xcb_randr_get_output_property_reply(c, cookies[i].edid, nullptr));
        if (!info) {
            displays[i].output = XCB_NONE;
            continue;
        }
        std::span<const std::uint8_t> edidBytes;
        if (edid && edid->format == 8) {
            edidBytes = {xcb_randr_get_output_property_data(edid.get()), edid->num_items};
        }
        describe(displays[i], *info, edidBytes);
    }
    std::erase_if(displays, [](const auto& display) { return display.output == XCB_NONE; });
}

}  // namespace

std::vector<X11Display> readX11Layout(const X11Connection& connection) {
    const Resources resources = readResources(connection);
    std::vector<X11Display> displays = readLitCrtcs(connection, resources);
    describeAll(connection, resources.timestamp, displays);
    const auto isPrimary = [&](const auto& display) { return display.output == resources.primary; };
    const auto isAtOrigin = [](const auto& display) {
        return display.bounds.x == 0 && display.bounds.y == 0;
    };
    auto main = std::find_if(displays.begin(), displays.end(), isPrimary);
    if (main == displays.end()) {
        main = std::find_if(displays.begin(), displays.end(), isAtOrigin);
    }
    if (main != displays.end()) {
        std::rotate(displays.begin(), main, main + 1);
    }
    return displays;
}

std::vector<xcb_randr_crtc_t> crtcsLeft(std::span<const X11Display> before,
                                        std::span<const X11Display> now) {
    std::vector<xcb_randr_crtc_t> left;
    for (const X11Display& display : before) {
        const bool isStillThere = std::ranges::any_of(now, [&](const X11Display& each) {
            return each.output == display.output && each.crtc == display.crtc;
        });
        if (!isStillThere) {
            left.push_back(display.crtc);
        }
    }
    return left;
}

}  // namespace tonquil
