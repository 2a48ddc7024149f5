// SPDX-License-Identifier: MIT
#include "tests/support/KdeCompositor.h"

#include <kde-output-server.h>
#include <wayland-server-core.h>

#include <fstream>
#include <iterator>
#include <set>

#include "platform/icc/CalibrationRamp.h"
#include "plist/Base64.h"
#include "tests/support/EdidBuilder.h"

namespace tonquil {

namespace {

/// What the profile does that is at `path` now.
HardwareRamp load(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(file), {});
    return calibrationRamp(bytes, 256).value_or(HardwareRamp::straight(256));
}

}  // namespace

struct KdeCompositor::Output {
    KdeCompositor* compositor;
    std::string name;
    int x;
    std::uint32_t serial;
    double scale;
    wl_global* global = nullptr;
    std::set<wl_resource*> bound = {};
    bool isHdr = false;
    HardwareRamp ramp = {};

    void set(const Choice& choice, const HardwareRamp& loaded) {
        compositor->_choices[name] = choice;
        ramp = choice.second == 1 ? loaded : HardwareRamp::straight(256);
        for (wl_resource* resource : bound) {
            tell(resource);
        }
    }
    void tell(wl_resource* resource) const {
        const auto& [path, source] = compositor->_choices[name];
        kde_output_device_v2_send_high_dynamic_range(resource, isHdr ? 1 : 0);
        kde_output_device_v2_send_icc_profile_path(resource, path.c_str());
        kde_output_device_v2_send_color_profile_source(resource, source);
        kde_output_device_v2_send_done(resource);
    }
};

struct KdeCompositor::Change {
    KdeCompositor* compositor;
    std::size_t outputs;
    bool isHeard;
    Output* output = nullptr;
    Choice choice = {};
    HardwareRamp ramp = {};
};

/// What clients ask for.
struct KdeCompositor::Requests {
    template <typename Value>
    static Value& of(wl_resource* resource) {
        return *static_cast<Value*>(wl_resource_get_user_data(resource));
    }

    static void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        auto& output = *static_cast<Output*>(data);
        wl_resource* const resource = wl_resource_create(client, &kde_output_device_v2_interface,
                                                         static_cast<int>(version), id);
        wl_resource_set_implementation(
            resource, nullptr, data, [](wl_resource* gone) { of<Output>(gone).bound.erase(gone); });
        output.bound.insert(resource);
        wl_resource* const mode = wl_resource_create(client, &kde_output_device_mode_v2_interface,
                                                     static_cast<int>(version), 0);
        kde_output_device_v2_send_geometry(resource, output.x, 0, 600, 340, 0, "Maker", "Model", 0);
        kde_output_device_v2_send_mode(resource, mode);
        kde_output_device_mode_v2_send_size(mode, 1920, 1080);
        kde_output_device_v2_send_current_mode(resource, mode);
        kde_output_device_v2_send_scale(resource, wl_fixed_from_double(output.scale));
        auto edid = buildEdid({.serial = output.serial});
        // A wider gamut than sRGB's: red at 0.70, 0.28.
        edid[27] = 0xB3;
        edid[28] = 0x48;
        kde_output_device_v2_send_edid(resource, base64FromBytes(edid).c_str());
        kde_output_device_v2_send_enabled(resource, 1);
        kde_output_device_v2_send_uuid(resource, ("uuid of " + output.name).c_str());
        kde_output_device_v2_send_capabilities(resource, 0x40);
        kde_output_device_v2_send_name(resource, output.name.c_str());
        output.tell(resource);
    }

    static void bindManagement(wl_client* client, void* data, std::uint32_t version,
                               std::uint32_t id) {
        static constexpr struct kde_output_management_v2_interface requests {
            .create_configuration = begin
        };
        wl_resource* const resource = wl_resource_create(
            client, &kde_output_management_v2_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(resource, &requests, data, nullptr);
    }

    static void begin(wl_client* client, wl_resource* management, std::uint32_t id) {
        static const auto requests = [] {
            struct kde_output_configuration_v2_interface all {};
            all.set_icc_profile_path = setPath;
            all.set_color_profile_source = setSource;
            all.apply = apply;
            all.destroy = [](wl_client*, wl_resource* gone) { wl_resource_destroy(gone); };
            return all;
        }();
        auto& compositor = of<KdeCompositor>(management);
        wl_resource* const resource =
            wl_resource_create(client, &kde_output_configuration_v2_interface, 8, id);
        const bool isHeard = compositor.pass();
        wl_resource_set_implementation(
            resource, &requests,
            new Change{&compositor, compositor._outputs.size() + compositor._plugged.size(),
                       isHeard},
            [](wl_resource* gone) { delete &of<Change>(gone); });
    }

    static void setPath(wl_client*, wl_resource* resource, wl_resource* output, const char* path) {
        of<Change>(resource).output = &of<Output>(output);
        of<Change>(resource).choice.first = path;
        of<Change>(resource).ramp = load(path);
    }
    static void setSource(wl_client*, wl_resource* resource, wl_resource*, std::uint32_t source) {
        of<Change>(resource).choice.second = source;
    }

    static void apply(wl_client*, wl_resource* resource) {
        auto& change = of<Change>(resource);
        auto& compositor = *change.compositor;
        if (!change.isHeard) {
            return;
        }
        if (compositor._outputs.size() + compositor._plugged.size() != change.outputs ||
            compositor._refusals-- > 0) {
            kde_output_configuration_v2_send_failed(resource);
            return;
        }
        compositor._refusals = 0;
        ++compositor._changes;
        change.output->set(change.choice, change.ramp);
        kde_output_configuration_v2_send_applied(resource);
    }
};

KdeCompositor::KdeCompositor() {
    wl_global_create(display(), &kde_output_management_v2_interface, 8, this,
                     Requests::bindManagement);
    start();
}

KdeCompositor::~KdeCompositor() {
    die();
}

bool KdeCompositor::pass() {
    if (!std::exchange(_isToStop, false)) {
        return true;
    }
    _isStopped = true;
    return _goOn.get_future().get();
}

void KdeCompositor::plug(const std::string& name, int x, std::uint32_t serial, double scale) {
    call([&] {
        Output& output =
            *_outputs.emplace_back(std::make_unique<Output>(Output{this, name, x, serial, scale}));
        _plugged[name] = &output;
        output.set(_choices[name], load(_choices[name].first));
        output.global = wl_global_create(display(), &kde_output_device_v2_interface, 7, &output,
                                         Requests::bindOutput);
    });
}

void KdeCompositor::unplug(const std::string& name) {
    // Removed and not destroyed, as a client may be about to bind it.
    call([&] { wl_global_remove(_plugged.extract(name).mapped()->global); });
}

void KdeCompositor::choose(const std::string& name, const Choice& choice) {
    call([&] { _plugged.at(name)->set(choice, load(choice.first)); });
}

void KdeCompositor::setHdr(const std::string& name, bool isOn) {
    call([&] {
        _plugged.at(name)->isHdr = isOn;
        _plugged.at(name)->set(_choices[name], _plugged.at(name)->ramp);
    });
}

void KdeCompositor::refuse(int count) {
    call([&] { _refusals = count; });
}

void KdeCompositor::stopAtChange() {
    call([&] {
        _isToStop = true;
        _isStopped = false;
        _goOn = {};
    });
}

KdeCompositor::Choice KdeCompositor::choice(const std::string& name) {
    Choice choice;
    call([&] { choice = _choices[name]; });
    return choice;
}

HardwareRamp KdeCompositor::ramp(const std::string& name) {
    HardwareRamp ramp;
    call([&] { ramp = _plugged.at(name)->ramp; });
    return ramp;
}

int KdeCompositor::changes() {
    int changes = 0;
    call([&] { changes = _changes; });
    return changes;
}

}  // namespace tonquil
