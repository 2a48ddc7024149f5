// SPDX-License-Identifier: MIT
#include "platform/kde/KdeOutput.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "plist/Base64.h"

namespace tonquil {

/// What libwayland calls with each event of an output and its modes.
struct KdeOutput::Events {
    using Device = kde_output_device_v2;
    using DeviceMode = kde_output_device_mode_v2;

    static KdeOutput& of(void* data) { return *static_cast<KdeOutput*>(data); }
    static Properties& said(void* data) { return of(data)._said; }
    template <typename... Arguments>
    static void ignore(Arguments...) {}

    static void geometry(void* data, Device*, std::int32_t x, std::int32_t y,
                         std::int32_t millimetresWide, std::int32_t millimetresHigh, std::int32_t,
                         const char*, const char* model, std::int32_t transform) {
        Properties& all = said(data);
        all.bounds.x = x;
        all.bounds.y = y;
        all.widthInMillimetres = std::max(millimetresWide, 0);
        all.heightInMillimetres = std::max(millimetresHigh, 0);
        all.model = model;
        // Of the eight transforms the odd ones are turns by 90 and 270 degrees.
        of(data)._isOnItsSide = (transform & 1) != 0;
    }
    static void currentMode(void* data, Device*, DeviceMode* mode) { of(data)._currentMode = mode; }
    static void mode(void* data, Device*, DeviceMode* mode) {
        of(data)._modes.emplace_back().proxy.reset(mode);
        kde_output_device_mode_v2_add_listener(mode, &ofMode, data);
    }
    static void done(void* data, Device*) { of(data).take(); }
    static void scale(void* data, Device*, wl_fixed_t factor) {
        // Scales are whole 120ths, as Wayland's fractional scales are; on the way they were
        // rounded to 256ths.
        constexpr double steps = 120;
        const double nearest = std::round(wl_fixed_to_double(factor) * steps) / steps;
        of(data)._scale = nearest > 0 ? nearest : 1;
    }
    static void edid(void* data, Device*, const char* text) {
        const auto bytes = bytesFromBase64(text);
        said(data).edid = bytes ? parseEdid(*bytes) : std::nullopt;
    }
    static void enabled(void* data, Device*, std::int32_t is) { said(data).isEnabled = is != 0; }
    static void uuid(void* data, Device*, const char* uuid) { said(data).uuid = uuid; }
    static void capabilities(void* data, Device*, std::uint32_t flags) {
        said(data).takesProfiles = (flags & KDE_OUTPUT_DEVICE_V2_CAPABILITY_ICC_PROFILE) != 0;
    }
    static void name(void* data, Device*, const char* name) { said(data).name = name; }
    static void hdr(void* data, Device*, std::uint32_t is) { said(data).isHdr = is != 0; }
    static void profilePath(void* data, Device* device, const char* path) {
        KdeProfileChoice& choice = said(data).choice;
        choice.path = path;
        // Before there was a choice of sources, a file was in force whenever there was one.
        if (kde_output_device_v2_get_version(device) <
            KDE_OUTPUT_DEVICE_V2_COLOR_PROFILE_SOURCE_SINCE_VERSION) {
            choice.source = choice.path.empty() ? KdeProfileChoice::plain : KdeProfileChoice::file;
        }
    }
    static void profileSource(void* data, Device*, std::uint32_t source) {
        said(data).choice.source = source;
    }

    static void modeSize(void* data, DeviceMode* proxy, std::int32_t width, std::int32_t height) {
        if (Mode* mode = of(data).find(proxy)) {
            mode->width = width;
            mode->height = height;
        }
    }
    static void modeRemoved(void* data, DeviceMode* proxy) {
        std::erase_if(of(data)._modes, [=](const Mode& each) { return each.proxy.get() == proxy; });
    }

    static constexpr kde_output_device_v2_listener ofDevice{.geometry = geometry,
                                                            .current_mode = currentMode,
                                                            .mode = mode,
                                                            .done = done,
                                                            .scale = scale,
                                                            .edid = edid,
                                                            .enabled = enabled,
                                                            .uuid = uuid,
                                                            .serial_number = ignore,
                                                            .eisa_id = ignore,
                                                            .capabilities = capabilities,
                                                            .overscan = ignore,
                                                            .vrr_policy = ignore,
                                                            .rgb_range = ignore,
                                                            .name = name,
                                                            .high_dynamic_range = hdr,
                                                            .sdr_brightness = ignore,
                                                            .wide_color_gamut = ignore,
                                                            .auto_rotate_policy = ignore,
                                                            .icc_profile_path = profilePath,
                                                            .brightness_metadata = ignore,
                                                            .brightness_overrides = ignore,
                                                            .sdr_gamut_wideness = ignore,
                                                            .color_profile_source = profileSource};
    static constexpr kde_output_device_mode_v2_listener ofMode{
        .size = modeSize, .refresh = ignore, .preferred = ignore, .removed = modeRemoved};
};

KdeOutput::KdeOutput(wl_registry* registry, std::uint32_t number, std::uint32_t version,
                     std::function<void()> changed)
    : _number(number), _changed(std::move(changed)) {
    // Later versions announce outputs in another way.
    constexpr std::uint32_t newestKnown = 7;
    _device.reset(static_cast<kde_output_device_v2*>(wl_registry_bind(
        registry, number, &kde_output_device_v2_interface, std::min(version, newestKnown))));
    kde_output_device_v2_add_listener(_device.get(), &Events::ofDevice, this);
}

KdeOutput::Mode* KdeOutput::find(const kde_output_device_mode_v2* proxy) {
    const auto found =
        std::ranges::find_if(_modes, [=](const Mode& each) { return each.proxy.get() == proxy; });
    return found == _modes.end() ? nullptr : &*found;
}

void KdeOutput::take() {
    _properties = _said;
    if (_properties.name.empty()) {
        _properties.name = "output-" + std::to_string(_number);
    }
    if (const Mode* mode = find(_currentMode)) {
        // Whole pixels, as windows are told the size of their output.
        _properties.bounds.width = std::round(mode->width / _scale);
        _properties.bounds.height = std::round(mode->height / _scale);
        if (_isOnItsSide) {
            std::swap(_properties.bounds.width, _properties.bounds.height);
        }
    }
    _isComplete = true;
    _changed();
}

}  // namespace tonquil
