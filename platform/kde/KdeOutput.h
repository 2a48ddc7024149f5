// SPDX-License-Identifier: MIT
#pragma once

#include <kde-output-client.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/edid/Edid.h"
#include "platform/kde/KdeProfileChoice.h"
#include "platform/wayland/WaylandConnection.h"
#include "screens/Geometry.h"

namespace tonquil {

/// One output of KDE's compositor and its properties.
class KdeOutput {
 public:
    /// As of the compositor's last `done` event.
    struct Properties {
        /// The connector, such as "DP-1"; made up where the compositor does not tell.
        std::string name;
        std::string model;
        /// The compositor's own name for the output; may be empty.
        std::string uuid;
        std::optional<Edid> edid;
        double widthInMillimetres = 0;
        double heightInMillimetres = 0;
        /// In the compositor's own, scaled, top-down space.
        Rectangle bounds;
        bool isEnabled = true;
        bool takesProfiles = false;
        bool isHdr = false;
        /// The colour profile that the compositor has for it now.
        KdeProfileChoice choice;
    };

    /// Binds the output that the registry announced as `number`. `changed` is called after each
    /// change of the properties.
    KdeOutput(wl_registry* registry, std::uint32_t number, std::uint32_t version,
              std::function<void()> changed);
    KdeOutput(const KdeOutput&) = delete;
    KdeOutput& operator=(const KdeOutput&) = delete;
    ~KdeOutput() = default;

    [[nodiscard]] kde_output_device_v2* get() const { return _device.get(); }
    [[nodiscard]] std::uint32_t number() const { return _number; }
    /// False until the first `done` event.
    [[nodiscard]] bool isComplete() const { return _isComplete; }
    [[nodiscard]] const Properties& properties() const { return _properties; }

 private:
    struct Events;
    struct Mode {
        std::unique_ptr<kde_output_device_mode_v2, DestroyWaylandProxy> proxy;
        double width = 0;
        double height = 0;
    };
    /// Null when there is none.
    [[nodiscard]] Mode* find(const kde_output_device_mode_v2* proxy);
    void take();

    std::uint32_t _number;
    std::function<void()> _changed;
    std::unique_ptr<kde_output_device_v2, DestroyWaylandProxy> _device;
    std::vector<Mode> _modes;
    const kde_output_device_mode_v2* _currentMode = nullptr;
    bool _isOnItsSide = false;
    double _scale = 1;
    /// As received so far, complete or not; the size of its bounds is not filled in.
    Properties _said;
    Properties _properties;
    bool _isComplete = false;
};

}  // namespace tonquil
