// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11Profiles.h"

#include <algorithm>
#include <string>

#include "platform/icc/CalibrationRamp.h"

namespace tonquil {

namespace {

// Of four bytes each.
constexpr std::uint32_t mostProfileUnits = 1U << 22U;

}  // namespace

void X11Profiles::findAtoms(std::size_t count) {
    std::vector<xcb_intern_atom_cookie_t> cookies(count);
    _atoms.resize(std::max(count, _atoms.size()), XCB_NONE);
    for (std::size_t i = 0; i < count; ++i) {
        if (_atoms[i] == XCB_NONE) {
            const std::string name = i == 0 ? "_ICC_PROFILE" : "_ICC_PROFILE_" + std::to_string(i);
            cookies[i] = xcb_intern_atom(_connection.get(), 1,
                                         static_cast<std::uint16_t>(name.size()), name.data());
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (_atoms[i] == XCB_NONE) {
            const XcbPointer<xcb_intern_atom_reply_t> reply(
                xcb_intern_atom_reply(_connection.get(), cookies[i], nullptr));
            _atoms[i] = reply ? reply->atom : XCB_NONE;
        }
    }
}

void X11Profiles::load(std::size_t count) {
    findAtoms(count);
    std::vector<xcb_get_property_cookie_t> cookies(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (_atoms[i] != XCB_NONE) {
            cookies[i] = xcb_get_property(_connection.get(), 0, _connection.root(), _atoms[i],
                                          XCB_GET_PROPERTY_TYPE_ANY, 0, mostProfileUnits);
        }
    }
    _profiles.assign(count, {});
    for (std::size_t i = 0; i < count; ++i) {
        if (_atoms[i] == XCB_NONE) {
            continue;
        }
        const XcbPointer<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(_connection.get(), cookies[i], nullptr));
        if (reply) {
            const auto* bytes =
                static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
            _profiles[i].assign(bytes, bytes + xcb_get_property_value_length(reply.get()));
        }
    }
}

std::optional<HardwareRamp> X11Profiles::calibration(std::size_t index, std::uint32_t size) const {
    return index >= _profiles.size() || _profiles[index].empty()
               ? std::nullopt
               : calibrationRamp(_profiles[index], size);
}

}  // namespace tonquil
