// SPDX-License-Identifier: MIT
#include "tests/support/GammaCompositor.h"

#include <fcntl.h>
#include <gamma-control-server.h>
#include <unistd.h>
#include <wayland-server-core.h>
#include <wayland-server-protocol.h>

#include <array>

namespace tonquil {

struct GammaCompositor::Output {
    std::string name;
    int x = 0;
    std::uint32_t size = 256;
    bool isTaken = false;
    wl_global* global = nullptr;
    /// The control of whoever holds it; null when nobody does.
    wl_resource* holder = nullptr;
    HardwareRamp ramp;

    void reset() {
        holder = nullptr;
        ramp = HardwareRamp::straight(size <= 65536 ? size : 256);
    }
};

/// What clients ask for.
struct GammaCompositor::Requests {
    static Output* outputOf(wl_resource* resource) {
        return static_cast<Output*>(wl_resource_get_user_data(resource));
    }
    static void destroy(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

    static void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static constexpr struct wl_output_interface requests { .release = destroy };
        const auto& output = *static_cast<Output*>(data);
        wl_resource* const resource =
            wl_resource_create(client, &wl_output_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(resource, &requests, data, nullptr);
        wl_output_send_geometry(resource, output.x, 0, 600, 340, 0, "Maker", "Model", 0);
        wl_output_send_mode(resource, WL_OUTPUT_MODE_CURRENT, 1920, 1080, 60'000);
        wl_output_send_name(resource, output.name.c_str());
        wl_output_send_done(resource);
    }

    static void bindManager(wl_client* client, void* data, std::uint32_t version,
                            std::uint32_t id) {
        static constexpr struct zwlr_gamma_control_manager_v1_interface requests {
            .get_gamma_control = getControl, .destroy = destroy
        };
        wl_resource* const resource = wl_resource_create(
            client, &zwlr_gamma_control_manager_v1_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(resource, &requests, data, nullptr);
    }

    static void getControl(wl_client* client, wl_resource*, std::uint32_t id,
                           wl_resource* outputResource) {
        static constexpr struct zwlr_gamma_control_v1_interface requests {
            .set_gamma = setGamma, .destroy = destroy
        };
        Output* const output = outputOf(outputResource);
        wl_resource* const resource =
            wl_resource_create(client, &zwlr_gamma_control_v1_interface, 1, id);
        wl_resource_set_implementation(resource, &requests, output, controlGone);
        if (output->isTaken || output->holder != nullptr) {
            zwlr_gamma_control_v1_send_failed(resource);
            return;
        }
        output->reset();
        output->holder = resource;
        if (output->size != silence) {
            zwlr_gamma_control_v1_send_gamma_size(resource, output->size);
        }
    }

    static void controlGone(wl_resource* resource) {
        Output* const output = outputOf(resource);
        if (output->holder == resource) {
            output->reset();
        }
    }

    static void setGamma(wl_client*, wl_resource* resource, int descriptor) {
        const FileDescriptor file(descriptor);
        Output* const output = outputOf(resource);
        if (output->holder != resource) {
            return;
        }
        // Read to the end from where the file stands, as the strictest compositors do.
        const auto entries = std::as_writable_bytes(output->ramp.entries());
        std::array<char, 1> more{};
        if ((fcntl(descriptor, F_GET_SEALS) & F_SEAL_WRITE) == 0 ||
            read(descriptor, entries.data(), entries.size()) != std::ssize(entries) ||
            read(descriptor, more.data(), more.size()) != 0) {
            wl_resource_post_error(resource, ZWLR_GAMMA_CONTROL_V1_ERROR_INVALID_GAMMA, "length");
        }
    }
};

GammaCompositor::GammaCompositor() {
    wl_global_create(display(), &zwlr_gamma_control_manager_v1_interface, 1, this,
                     Requests::bindManager);
    start();
}

GammaCompositor::~GammaCompositor() {
    die();
}

void GammaCompositor::plug(const std::string& name, int x, std::uint32_t size) {
    call([&] {
        Output& output = *(_outputs[name] = std::make_unique<Output>());
        output.name = name;
        output.x = x;
        output.size = size;
        output.reset();
        output.global =
            wl_global_create(display(), &wl_output_interface, 4, &output, Requests::bindOutput);
    });
}

void GammaCompositor::unplug(const std::string& name) {
    call([&] {
        // Removed and not destroyed, as a client may be about to bind it.
        wl_global_remove(_outputs.at(name)->global);
        _gone.insert(_outputs.extract(name));
    });
}

void GammaCompositor::setSize(const std::string& name, std::uint32_t size) {
    call([&] {
        Output& output = *_outputs.at(name);
        wl_resource* const holder = output.holder;
        output.size = size;
        output.reset();
        output.holder = holder;
        if (holder != nullptr) {
            zwlr_gamma_control_v1_send_gamma_size(holder, size);
        }
    });
}

void GammaCompositor::setTaken(const std::string& name, bool isTaken) {
    call([&] {
        Output& output = *_outputs.at(name);
        output.isTaken = isTaken;
        if (output.holder != nullptr) {
            zwlr_gamma_control_v1_send_failed(output.holder);
        }
        output.reset();
    });
}

HardwareRamp GammaCompositor::ramp(const std::string& name) {
    HardwareRamp ramp;
    call([&] { ramp = _outputs.at(name)->ramp; });
    return ramp;
}

bool GammaCompositor::isHeld(const std::string& name) {
    bool isHeld = false;
    call([&] { isHeld = _outputs.at(name)->holder != nullptr; });
    return isHeld;
}

}  // namespace tonquil
