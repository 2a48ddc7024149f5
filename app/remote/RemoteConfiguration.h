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
///
/// If it cannot start, for example because its port is in use, it keeps retrying.
class RemoteConfiguration {
 public:
    /// Opens a server that logs to `log`; the problem's detail is the line it logged.
    using ServerOpener = std::function<Result<std::unique_ptr<TQPlayerServer>>(Log log)>;

    static constexpr std::chrono::seconds retryInterval{5};

    struct Surroundings {
        ScreenRegistry& registry;
        PreferencesStore& preferences;
        RunLoop& runLoop;
        TargetWindows& targets;
        Alerts& alerts;
        CurveEditing& editing;
        PanelView& view;
        ServerOpener openServer;
        /// Called with whether a server runs, whenever that may have changed.
        std::function<void(bool)> showRunning;
        /// Called with the reason why no server runs although it should, a text of the table
        /// "Problem"; empty once the problem is gone.
        std::function<void(const std::string&)> showProblem;
        Log log;
    };

    explicit RemoteConfiguration(const Surroundings& surroundings);

    /// Starts or stops the server according to the preferences.
    void _applyDefaultsToServer();
    /// Sends the displays' state to subscribed companions, after the current event.
    void pushStateUpdate();

 private:
    [[nodiscard]] RemoteDisplays::Reactions reactions();
    void startServer();
    void stopServer();
    void broadcastTestFailed();

    Surroundings _with;
    RemoteDisplays _displays;
    std::unique_ptr<TQPlayerServer> _server;
    /// Set while no server can be started.
    std::unique_ptr<RunLoop::Handle> _retry;
    /// What the last attempt logged.
    std::string _lastFailure;
};

}  // namespace tonquil
