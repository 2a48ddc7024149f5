// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "app/curves/CurveEditing.h"
#include "app/desktop/Alerts.h"
#include "app/remote/RemoteDisplays.h"
#include "remote/TQPlayerServer.h"

namespace tonquil {

/// Runs the server for companions on the network while the preferences allow it.
class RemoteConfiguration {
 public:
    struct Surroundings {
        ScreenRegistry& registry;
        PreferencesStore& preferences;
        RunLoop& runLoop;
        TargetWindows& targets;
        Alerts& alerts;
        CurveEditing& editing;
        PanelView& view;
        /// Opens a server; null, after a line in the log, where there can be none.
        std::function<std::unique_ptr<TQPlayerServer>()> openServer;
        /// Told whether a server runs, after each `_applyDefaultsToServer`.
        std::function<void(bool)> showRunning;
        Log log;
    };

    explicit RemoteConfiguration(const Surroundings& surroundings);

    /// Starts or ends the server, as the preferences want it.
    void _applyDefaultsToServer();
    /// Tells the companions that have subscribed how the displays are, after the current event.
    void pushStateUpdate();

 private:
    [[nodiscard]] RemoteDisplays::Reactions reactions();
    void broadcastTestFailed();

    Surroundings _with;
    RemoteDisplays _displays;
    std::unique_ptr<TQPlayerServer> _server;
};

}  // namespace tonquil
