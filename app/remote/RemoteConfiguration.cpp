// SPDX-License-Identifier: MIT
#include "app/remote/RemoteConfiguration.h"

#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

RemoteConfiguration::RemoteConfiguration(const Surroundings& surroundings)
    : _with(surroundings),
      _displays(surroundings.registry, surroundings.targets, surroundings.runLoop, surroundings.log,
                reactions()) {}

void RemoteConfiguration::_applyDefaultsToServer() {
    const bool isAllowed = _with.preferences.boolForKey(settingsKey::allowRemote);
    if (!isAllowed) {
        stopServer();
    } else if (!_server && !_retry) {
        startServer();
    }
    _with.showRunning(_server != nullptr);
}

void RemoteConfiguration::startServer() {
    // Log a repeated failure only once.
    const bool isRetry = _retry != nullptr;
    auto opened = _with.openServer([this](std::string_view line) {
        if (line != _lastFailure) {
            _with.log(line);
        }
    });
    _retry.reset();
    if (!opened) {
        _lastFailure = opened.error().detail;
        _retry = _with.runLoop.callOnce(retryInterval, [this] { startServer(); });
        _with.showProblem(TONQUIL_TEXT("Problem",
                                       "UDP port 44188 cannot be used. Another program may have "
                                       "it. It is tried again every 5 seconds."));
        return;
    }
    _lastFailure.clear();
    _server = std::move(*opened);
    _server->setDataSource(&_displays);
    _server->broadcastAnnounce();
    _with.showProblem("");
    if (isRetry) {
        _with.showRunning(true);
    }
}

void RemoteConfiguration::stopServer() {
    _retry.reset();
    _lastFailure.clear();
    _server.reset();
    _displays.dropWaiting();
    _with.showProblem("");
}

void RemoteConfiguration::pushStateUpdate() {
    _with.runLoop.post([this] {
        if (_server) {
            _server->sendStateToSubscribers();
        }
    });
}

// A curve from the network is a normal edit: it can be undone, and survives a crash.
RemoteDisplays::Reactions RemoteConfiguration::reactions() {
    return {.willEdit = [this] { _with.editing.willEditFromAfar(); },
            .didEdit = [this] { _with.editing.curvesWereEdited(); },
            .refreshPanel = [this] { _with.view._updateCurveInPanel(); },
            .targetClosed = [this] { pushStateUpdate(); },
            .broadcastFailed = [this] { broadcastTestFailed(); }};
}

void RemoteConfiguration::broadcastTestFailed() {
    _with.preferences.setValue(settingsKey::allowRemote, false);
    static_cast<void>(_with.alerts.runModal(
        {.message = TONQUIL_TEXT("", "Cannot enable remote configuration"),
         .informativeText =
             TONQUIL_TEXT("",
                          "Network broadcast does not appear to work. Please check that only one "
                          "instance of Tonquil is running on this computer and that UDP ports "
                          "44188 and 48184 are not blocked by a firewall."),
         .buttons = {TONQUIL_TEXT("", "OK")}}));
}

}  // namespace tonquil
