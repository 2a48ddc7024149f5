// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/desktop/TargetWindows.h"
#include "app/remote/PacedOrders.h"
#include "app/remote/RemoteTargets.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "remote/LogLimiter.h"
#include "remote/TQPlayerServerDataSource.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Tells companions on the network about the displays, and sets what they ask for.
class RemoteDisplays final : public TQPlayerServerDataSource {
 public:
    /// What an order from the network leads to. All must be callable.
    struct Reactions {
        /// A curve is about to be replaced.
        std::function<void()> willEdit;
        std::function<void()> didEdit;
        /// The panel may be out of date.
        std::function<void()> refreshPanel;
        /// A target that was shown for a companion has been closed.
        std::function<void()> targetClosed;
        std::function<void()> broadcastFailed;
    };

    RemoteDisplays(ScreenRegistry& registry, TargetWindows& targets, RunLoop& runLoop,
                   const Log& log, Reactions reactions);

    [[nodiscard]] std::vector<std::string> screensForPlayerServer(TQPlayerServer& server) override;
    [[nodiscard]] PropertyValue playerServerInfoForScreen(TQPlayerServer& server,
                                                          const std::string& referenceID) override;
    [[nodiscard]] PropertyValue playerServerStateForScreen(TQPlayerServer& server,
                                                           const std::string& referenceID) override;
    /// A curve with a number beyond all use, or of an unknown mode, is not taken; the target is.
    /// What comes faster than `PacedOrders` allows is set a little later.
    void playerServerSetStateForScreen(TQPlayerServer& server, const PropertyValue& state,
                                       const std::string& referenceID) override;
    void playerServerFailedBroadcastTest(TQPlayerServer& server, std::uint64_t reason) override;

    /// Drops what is to be set a little later.
    void dropWaiting() { _orders.clear(); }

 private:
    [[nodiscard]] std::shared_ptr<TQExtendedGammaCurve> curveFrom(const PropertyValue& compactArray,
                                                                  const KVScreen& screen);
    void carryOut(const std::string& referenceID, const RemoteOrder& order);
    void setCurve(KVScreen& screen, const std::shared_ptr<TQExtendedGammaCurve>& curve) const;
    void setContent(DisplayID display, const std::string& content);

    ScreenRegistry& _registry;
    TargetWindows& _targets;
    RunLoop& _runLoop;
    Log _log;
    LogLimiter _refusalLog;
    Reactions _reactions;
    RemoteTargets _remoteTargets;
    PacedOrders _orders;
};

}  // namespace tonquil
