// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/curves/CurveRecovery.h"
#include "app/preferences/PreferencesStore.h"
#include "foundation/RunLoop.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Keeps the displays' curves between runs, in the preferences, and what was edited in this run
/// where a crash cannot take it.
class CurveStorage {
 public:
    /// Within this time after an edit the curves are on the disk.
    static constexpr std::chrono::milliseconds keepingDelay{500};

    /// The most displays whose curves are kept for the day that they come back.
    static constexpr std::size_t mostStored = 512;

    /// Takes over what a program that crashed has left.
    CurveStorage(ScreenRegistry& registry, PreferencesStore& preferences, CurveRecovery& recovery,
                 RunLoop& runLoop);

    /// The curves by reference ID: those of the preferences, and over them those of edits that
    /// have not got there yet.
    [[nodiscard]] PropertyValue storedCurves() const;
    /// Gives each display the neutral curve, then the one that is stored for it.
    void _adoptDefaultCurves();
    /// Writes the displays' curves into the preferences. Those stored for displays that are not
    /// attached now stay.
    void _updateDefaultCurves();
    /// Whether there is room for these beside those that are stored.
    [[nodiscard]] bool hasRoomFor(const PropertyValue& curves) const;
    /// Lays the curves of an opened file over those that are stored. To be called when the displays
    /// have them.
    void storeCurves(const PropertyValue& curves);
    /// To be called after each edit.
    void curvesWereEdited();
    /// Puts edits on the disk that wait for it. To be called before displays may leave the list.
    void keepPendingEdits();
    /// Saves everything for good at the end of a run.
    void close();

 private:
    void keepCurves();

    ScreenRegistry& _registry;
    PreferencesStore& _preferences;
    CurveRecovery& _recovery;
    RunLoop& _runLoop;
    /// What a run that crashed has left, until this one ends.
    PropertyValue _left;
    /// Edited in this run, or opened over what was.
    PropertyValue _kept = PropertyValue::object();
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
