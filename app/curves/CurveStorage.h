// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/curves/CurveRecovery.h"
#include "app/preferences/PreferencesStore.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Keeps the displays' curves in the preferences between runs, and writes edits to a recovery file
/// so that a crash does not lose them.
class CurveStorage {
 public:
    /// Within this time after an edit the curves are on the disk.
    static constexpr std::chrono::milliseconds keepingDelay{500};

    /// Loads the recovery file that a crashed run left behind, if any.
    CurveStorage(ScreenRegistry& registry, PreferencesStore& preferences, CurveRecovery& recovery,
                 RunLoop& runLoop, Log log);

    /// The curves by reference ID: those in the preferences, overlaid with edits that have not been
    /// saved there yet.
    [[nodiscard]] PropertyValue storedCurves() const;
    /// Gives each display the neutral curve, then the one that is stored for it.
    void _adoptDefaultCurves();
    /// Writes the displays' curves into the preferences. Those stored for displays that are not
    /// attached now stay.
    void _updateDefaultCurves();
    /// Adds the curves of an opened file to the stored ones, replacing those with the same key.
    void storeCurves(const PropertyValue& curves);
    /// To be called after each edit.
    void curvesWereEdited();
    /// Writes pending edits to disk now. Call it before the screen list is rebuilt.
    void keepPendingEdits();
    /// Saves everything to the preferences at the end of a run and removes the recovery file.
    void close();

 private:
    void saveLeftCurves();
    void keepCurves();

    ScreenRegistry& _registry;
    PreferencesStore& _preferences;
    CurveRecovery& _recovery;
    RunLoop& _runLoop;
    Log _log;
    /// What a run that crashed has left, until it is stored.
    PropertyValue _left;
    /// Edited in this run.
    PropertyValue _kept = PropertyValue::object();
    std::unique_ptr<RunLoop::Handle> _timer;
    bool _hasFailed = false;
};

}  // namespace tonquil
