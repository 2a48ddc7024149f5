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
    if (isAllowed && !_server) {
        _server = _with.openServer();
        if (_server) {
            _server->setDataSource(&_displays);
            _server->broadcastAnnounce();
        }
    } else if (!isAllowed) {
        _server.reset();
        _displays.dropWaiting();
    }
    _with.showRunning(_server != nullptr);
}

void RemoteConfiguration::pushStateUpdate() {
    _with.runLoop.post([this] {
        if (_server) {
            _server->sendStateToSubscribers();
        }
    });
}

// A curve from the network is an edit like any other: it can be undone, and it outlives a crash.
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
