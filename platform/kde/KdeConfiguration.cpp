// SPDX-License-Identifier: MIT
#include "platform/kde/KdeConfiguration.h"

#include <utility>

namespace tonquil {

struct KdeConfiguration::Events {
    static void answer(void* data, bool isApplied) {
        // Out of the object, which this call may destroy.
        const auto answered = std::move(static_cast<KdeConfiguration*>(data)->_answered);
        if (answered) {
            answered(isApplied);
        }
    }
    static void applied(void* data, kde_output_configuration_v2*) { answer(data, true); }
    static void failed(void* data, kde_output_configuration_v2*) { answer(data, false); }
    static constexpr kde_output_configuration_v2_listener all{.applied = applied, .failed = failed};
};

KdeConfiguration::KdeConfiguration(kde_output_management_v2* management,
                                   kde_output_device_v2* output, const KdeProfileChoice& choice,
                                   std::function<void(bool)> answered)
    : _answered(std::move(answered)),
      _configuration(kde_output_management_v2_create_configuration(management)) {
    auto* const configuration = _configuration.get();
    kde_output_configuration_v2_add_listener(configuration, &Events::all, this);
    kde_output_configuration_v2_set_icc_profile_path(configuration, output, choice.path.c_str());
    if (kde_output_configuration_v2_get_version(configuration) >=
        KDE_OUTPUT_CONFIGURATION_V2_SET_COLOR_PROFILE_SOURCE_SINCE_VERSION) {
        kde_output_configuration_v2_set_color_profile_source(configuration, output, choice.source);
    }
    kde_output_configuration_v2_apply(configuration);
}

}  // namespace tonquil
