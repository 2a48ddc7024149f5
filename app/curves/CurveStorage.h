// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/curves/CurveRecovery.h"
#include "app/preferences/PreferencesStore.h"
#include "foundation/RunLoop.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Keeps the displays' curves in the preferences between runs, and writes edits to a recovery file
/// so that a crash does not lose them.
class CurveStorage {
 public:
    /// After an edit the curves are on disk within this time.
    static constexpr std::chrono::milliseconds keepingDelay{500};

    /// How many displays' curves are stored at most, including displays that are not attached.
    static constexpr std::size_t mostStored = 512;

    /// Loads the recovery file that a crashed run left behind, if any.
    CurveStorage(ScreenRegistry& registry, PreferencesStore& preferences, CurveRecovery& recovery,
                 RunLoop& runLoop);

    /// The curves by reference ID: those in the preferences, overlaid with edits that have not been
    /// saved there yet.
    [[nodiscard]] PropertyValue storedCurves() const;
    /// Assigns each display the neutral curve, then its stored one.
    void _adoptDefaultCurves();
    /// Writes the displays' curves to the preferences. Keeps the stored curves of displays that are
    /// not attached.
    void _updateDefaultCurves();
    /// Whether these curves fit beside the stored ones.
    [[nodiscard]] bool hasRoomFor(const PropertyValue& curves) const;
    /// Adds the curves of an opened file to the stored ones, replacing those with the same key.
    /// Call it once the displays have them.
    void storeCurves(const PropertyValue& curves);
    /// Call it after each edit.
    void curvesWereEdited();
    /// Writes pending edits to disk now. Call it before the screen list is rebuilt.
    void keepPendingEdits();
    /// Saves everything to the preferences at the end of a run and removes the recovery file.
    void close();

 private:
    void keepCurves();

    ScreenRegistry& _registry;
    PreferencesStore& _preferences;
    CurveRecovery& _recovery;
    RunLoop& _runLoop;
    /// Left by a run that crashed; kept until this run ends.
    PropertyValue _left;
    /// Edited in this run, or opened from a file.
    PropertyValue _kept = PropertyValue::object();
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
