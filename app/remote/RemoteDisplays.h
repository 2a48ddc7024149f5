// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/desktop/TargetWindows.h"
#include "foundation/Log.h"
#include "model/KVGammaCurve.h"
#include "remote/TQPlayerServerDataSource.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Tells companions on the network of the displays, and sets what they ask for.
class RemoteDisplays final : public TQPlayerServerDataSource {
 public:
    /// What an order from the network leads to. All must be callable.
    struct Reactions {
        /// These curves are about to be replaced.
        std::function<void(const ScreenRegistry::Screens&)> willEdit;
        std::function<void()> didEdit;
        /// The panel may show what is no longer so.
        std::function<void()> refreshPanel;
        /// A target that was shown for a companion has been closed.
        std::function<void()> targetClosed;
        std::function<void()> broadcastFailed;
    };

    RemoteDisplays(ScreenRegistry& registry, TargetWindows& targets, Log log, Reactions reactions)
        : _registry(registry),
          _targets(targets),
          _log(std::move(log)),
          _reactions(std::move(reactions)) {}

    [[nodiscard]] std::vector<std::string> screensForPlayerServer(TQPlayerServer& server) override;
    [[nodiscard]] PropertyValue playerServerInfoForScreen(TQPlayerServer& server,
                                                          const std::string& referenceID) override;
    [[nodiscard]] PropertyValue playerServerStateForScreen(TQPlayerServer& server,
                                                           const std::string& referenceID) override;
    /// A curve with a number beyond all use, or of an unknown mode, is not taken; the target is.
    void playerServerSetStateForScreen(TQPlayerServer& server, const PropertyValue& state,
                                       const std::string& referenceID) override;
    void playerServerFailedBroadcastTest(TQPlayerServer& server, std::uint64_t reason) override;

 private:
    void setCurve(KVScreen& screen, const PropertyValue& compactArray);
    void setContent(DisplayID display, const std::string& content);

    ScreenRegistry& _registry;
    TargetWindows& _targets;
    Log _log;
    Reactions _reactions;
};

}  // namespace tonquil
