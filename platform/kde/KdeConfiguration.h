// SPDX-License-Identifier: MIT
#pragma once

#include <kde-output-client.h>

#include <functional>
#include <memory>

#include "platform/kde/KdeProfileChoice.h"

namespace tonquil {

/// A change of an output's colour profile that is on its way to the compositor.
class KdeConfiguration {
 public:
    /// Sends it. `answered` is called once with whether the compositor has made the change, and may
    /// destroy this object. The compositor reads the profile before it answers.
    KdeConfiguration(kde_output_management_v2* management, kde_output_device_v2* output,
                     const KdeProfileChoice& choice, std::function<void(bool)> answered);
    KdeConfiguration(const KdeConfiguration&) = delete;
    KdeConfiguration& operator=(const KdeConfiguration&) = delete;
    ~KdeConfiguration() = default;

 private:
    struct Events;
    struct Destroy {
        void operator()(kde_output_configuration_v2* configuration) const {
            kde_output_configuration_v2_destroy(configuration);
        }
    };

    std::function<void(bool)> _answered;
    std::unique_ptr<kde_output_configuration_v2, Destroy> _configuration;
};

}  // namespace tonquil
