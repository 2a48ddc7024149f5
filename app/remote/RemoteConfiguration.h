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
/// While it cannot be started, as when another program has its port, it is tried again and again.
class RemoteConfiguration {
 public:
    /// Opens a server, which writes to `log`; the problem's detail is the line that it left there.
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
        /// Called with why none runs although it should, a text of the table "Problem"; empty when
        /// there is no problem any more.
        std::function<void(const std::string&)> showProblem;
        Log log;
    };

    explicit RemoteConfiguration(const Surroundings& surroundings);

    /// Starts or ends the server, as the preferences want it.
    void _applyDefaultsToServer();
    /// Tells the companions that have subscribed about the displays, after the current event.
    void pushStateUpdate();

 private:
    [[nodiscard]] RemoteDisplays::Reactions reactions();
    void startServer();
    void stopServer();
    void broadcastTestFailed();

    Surroundings _with;
    RemoteDisplays _displays;
    std::unique_ptr<TQPlayerServer> _server;
    /// There while no server can be started.
    std::unique_ptr<RunLoop::Handle> _retry;
    /// The line that the last attempt left in the log.
    std::string _lastFailure;
};

}  // namespace tonquil
