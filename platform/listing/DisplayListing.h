// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "foundation/Log.h"
#include "platform/listing/ListedDisplay.h"
#include "screens/DisplayService.h"
#include "screens/ReconfigurationCallbacks.h"

namespace tonquil {

/// What every display service of a desktop that names its outputs by connector keeps about them:
/// their IDs, what the callbacks were told of last, and which displays were reported in the log.
class DisplayListing {
 public:
    explicit DisplayListing(Log log) : _log(std::move(log)) {}

    /// A number made of the connector's name, so that a display has the same ID in each run; the
    /// next free number once another monitor has been there.
    [[nodiscard]] DisplayID idFor(const std::string& connector, const DisplayIdentity& identity);

    [[nodiscard]] std::unique_ptr<DisplayService::Subscription> add(
        DisplayService::ReconfigurationCallback callback) {
        return _callbacks.add(std::move(callback));
    }
    /// What the callbacks were told of last.
    [[nodiscard]] const std::vector<ListedDisplay>& announced() const { return _announced; }
    /// Sets that without calling them.
    void begin(std::vector<ListedDisplay> displays) { _announced = std::move(displays); }
    /// Calls them for each display that came, went or differs.
    void announce(std::vector<ListedDisplay> displays);
    /// Has the next `announce` call them for this display even if it is described as before.
    void announceAgain(DisplayID display) { _again.insert(display); }

    /// Tells them that the display's system calibration is another one.
    void announceCalibration(DisplayID display) const {
        _callbacks.call(display, calibrationChanged);
    }

    /// Logs once for each display, until `forget`.
    void report(DisplayID display, const std::string& text);
    void reportGone(DisplayID display);
    void forget(DisplayID display) { _reported.erase(display); }

 private:
    struct KnownDisplay {
        std::string connector;
        DisplayIdentity identity;
        DisplayID id;
    };

    Log _log;
    std::vector<KnownDisplay> _known;
    std::vector<ListedDisplay> _announced;
    std::set<DisplayID> _again;
    ReconfigurationCallbacks _callbacks;
    std::set<DisplayID> _reported;
};

}  // namespace tonquil
