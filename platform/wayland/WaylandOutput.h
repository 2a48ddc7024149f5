// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client-protocol.h>
#include <xdg-output-client.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/wayland/WaylandConnection.h"
#include "screens/Geometry.h"

namespace tonquil {

/// One output of a compositor and its properties.
class WaylandOutput {
 public:
    /// As of the compositor's last `done` event.
    struct Properties {
        /// The connector, such as "DP-1"; made up where the compositor does not tell.
        std::string name;
        std::string model;
        double widthInMillimetres = 0;
        double heightInMillimetres = 0;
        /// In the compositor's own, scaled, top-down space.
        Rectangle bounds;
    };

    /// Binds the output that the registry announced as `number`. `changed` is called after each
    /// change of the properties.
    WaylandOutput(wl_registry* registry, std::uint32_t number, std::uint32_t version,
                  std::function<void()> changed);
    WaylandOutput(const WaylandOutput&) = delete;
    WaylandOutput& operator=(const WaylandOutput&) = delete;
    ~WaylandOutput() = default;

    /// Asks for the place in the desktop; to be called once.
    void askForPlace(zxdg_output_manager_v1* manager);

    [[nodiscard]] wl_output* get() const { return _output.get(); }
    [[nodiscard]] std::uint32_t number() const { return _number; }
    /// False until the first `done` event.
    [[nodiscard]] bool isComplete() const { return _isComplete; }
    [[nodiscard]] const Properties& properties() const { return _properties; }

 private:
    struct Events;
    struct Release {
        void operator()(wl_output* output) const;
    };
    struct DestroyXdgOutput {
        void operator()(zxdg_output_v1* output) const { zxdg_output_v1_destroy(output); }
    };
    /// As received so far, complete or not.
    struct Said {
        std::string name;
        std::string model;
        std::int32_t widthInMillimetres = 0;
        std::int32_t heightInMillimetres = 0;
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::int32_t pixelWidth = 0;
        std::int32_t pixelHeight = 0;
        std::int32_t scale = 1;
        bool isOnItsSide = false;
        /// From xdg-output, which knows of fractional scales; empty without it.
        Rectangle logical;
    };
    void take();

    std::uint32_t _number;
    std::function<void()> _changed;
    std::unique_ptr<wl_output, Release> _output;
    std::unique_ptr<zxdg_output_v1, DestroyXdgOutput> _xdgOutput;
    Said _said;
    Properties _properties;
    bool _isComplete = false;
};

}  // namespace tonquil
