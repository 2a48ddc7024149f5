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

/// Describes the displays to companions on the network, and applies what they request.
class RemoteDisplays final : public TQPlayerServerDataSource {
 public:
    /// Callbacks for network orders. All must be set.
    struct Reactions {
        /// A curve is about to be replaced.
        std::function<void()> willEdit;
        std::function<void()> didEdit;
        /// The panel may be out of date.
        std::function<void()> refreshPanel;
        /// A target shown for a companion was closed.
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
    /// A curve with an out-of-range number or an unknown mode is ignored; its target is still
    /// shown. Orders faster than `PacedOrders` allows are applied a little later.
    void playerServerSetStateForScreen(TQPlayerServer& server, const PropertyValue& state,
                                       const std::string& referenceID) override;
    void playerServerFailedBroadcastTest(TQPlayerServer& server, std::uint64_t reason) override;

    /// Drops waiting orders.
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
