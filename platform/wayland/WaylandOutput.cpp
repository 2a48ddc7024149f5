// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandOutput.h"

#include <algorithm>
#include <utility>

namespace tonquil {

/// What libwayland calls with each event of an output.
struct WaylandOutput::Events {
    static Said& said(void* data) { return static_cast<WaylandOutput*>(data)->_said; }

    static void geometry(void* data, wl_output*, std::int32_t x, std::int32_t y,
                         std::int32_t millimetresWide, std::int32_t millimetresHigh, std::int32_t,
                         const char*, const char* model, std::int32_t transform) {
        Said& all = said(data);
        all.x = x;
        all.y = y;
        all.widthInMillimetres = std::max(millimetresWide, 0);
        all.heightInMillimetres = std::max(millimetresHigh, 0);
        all.model = model;
        // Of the eight transforms the odd ones are turns by 90 and 270 degrees.
        all.isOnItsSide = (transform & 1) != 0;
    }
    static void mode(void* data, wl_output*, std::uint32_t flags, std::int32_t width,
                     std::int32_t height, std::int32_t) {
        if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) {
            said(data).pixelWidth = width;
            said(data).pixelHeight = height;
        }
    }
    static void done(void* data, wl_output*) { static_cast<WaylandOutput*>(data)->take(); }
    static void scale(void* data, wl_output*, std::int32_t factor) {
        said(data).scale = std::max(factor, 1);
    }
    static void name(void* data, wl_output*, const char* name) { said(data).name = name; }
    static void description(void*, wl_output*, const char*) {}

    static void logicalPosition(void* data, zxdg_output_v1*, std::int32_t x, std::int32_t y) {
        said(data).logical.x = x;
        said(data).logical.y = y;
    }
    static void logicalSize(void* data, zxdg_output_v1*, std::int32_t width, std::int32_t height) {
        said(data).logical.width = width;
        said(data).logical.height = height;
    }
    // Only versions before 3 end with this; then there may be no other end.
    static void xdgDone(void* data, zxdg_output_v1*) { static_cast<WaylandOutput*>(data)->take(); }
    static void xdgName(void* data, zxdg_output_v1*, const char* name) { said(data).name = name; }
    static void xdgDescription(void*, zxdg_output_v1*, const char*) {}

    static constexpr wl_output_listener ofOutput{.geometry = geometry,
                                                 .mode = mode,
                                                 .done = done,
                                                 .scale = scale,
                                                 .name = name,
                                                 .description = description};
    static constexpr zxdg_output_v1_listener ofXdgOutput{.logical_position = logicalPosition,
                                                         .logical_size = logicalSize,
                                                         .done = xdgDone,
                                                         .name = xdgName,
                                                         .description = xdgDescription};
};

void WaylandOutput::Release::operator()(wl_output* output) const {
    if (wl_output_get_version(output) >= WL_OUTPUT_RELEASE_SINCE_VERSION) {
        wl_output_release(output);
    } else {
        wl_output_destroy(output);
    }
}

WaylandOutput::WaylandOutput(wl_registry* registry, std::uint32_t number, std::uint32_t version,
                             std::function<void()> changed)
    : _number(number), _changed(std::move(changed)) {
    constexpr std::uint32_t newestKnown = 4;
    _output.reset(static_cast<wl_output*>(
        wl_registry_bind(registry, number, &wl_output_interface, std::min(version, newestKnown))));
    wl_output_add_listener(_output.get(), &Events::ofOutput, this);
}

void WaylandOutput::askForPlace(zxdg_output_manager_v1* manager) {
    _xdgOutput.reset(zxdg_output_manager_v1_get_xdg_output(manager, _output.get()));
    zxdg_output_v1_add_listener(_xdgOutput.get(), &Events::ofXdgOutput, this);
}

void WaylandOutput::take() {
    _properties.name = _said.name.empty() ? "output-" + std::to_string(_number) : _said.name;
    _properties.model = _said.model;
    _properties.widthInMillimetres = _said.widthInMillimetres;
    _properties.heightInMillimetres = _said.heightInMillimetres;
    _properties.bounds = _said.logical;
    if (_properties.bounds.isEmpty()) {
        auto width = static_cast<double>(_said.pixelWidth) / _said.scale;
        auto height = static_cast<double>(_said.pixelHeight) / _said.scale;
        if (_said.isOnItsSide) {
            std::swap(width, height);
        }
        _properties.bounds = {static_cast<double>(_said.x), static_cast<double>(_said.y), width,
                              height};
    }
    _isComplete = true;
    _changed();
}

}  // namespace tonquil
