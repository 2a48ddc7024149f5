// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/kde/KdeOutput.h"
#include "platform/wayland/WaylandConnection.h"

namespace tonquil {

/// The outputs that KDE's compositor announces, as they come and go, and its means to change them.
class KdeOutputs {
 public:
    /// `changed` is called whenever an output comes, goes, or something about it changes.
    KdeOutputs(const WaylandConnection& connection, std::function<void()> changed);
    KdeOutputs(const KdeOutputs&) = delete;
    KdeOutputs& operator=(const KdeOutputs&) = delete;
    ~KdeOutputs() = default;

    /// In the order in which they were announced.
    [[nodiscard]] const std::vector<std::unique_ptr<KdeOutput>>& all() const { return _all; }
    /// Null where outputs cannot be changed.
    [[nodiscard]] kde_output_management_v2* management() const { return _management.get(); }
    /// Whether colour profiles can be set at all.
    [[nodiscard]] bool takeProfiles() const;

 private:
    struct Events;
    void announced(std::uint32_t number, const std::string& interface, std::uint32_t version);
    void gone(std::uint32_t number);

    std::function<void()> _changed;
    std::unique_ptr<wl_registry, DestroyWaylandProxy> _registry;
    std::unique_ptr<kde_output_management_v2, DestroyWaylandProxy> _management;
    std::vector<std::unique_ptr<KdeOutput>> _all;
    std::vector<std::unique_ptr<KdeOutput>> _gone;
};

}  // namespace tonquil
