// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "app/correction/Correction.h"
#include "app/curves/CurveStorage.h"
#include "app/curves/PanelView.h"
#include "foundation/RunLoop.h"
#include "model/KVTableGammaCurve.h"
#include "screens/HandedCurves.h"

namespace tonquil {

/// Every way to replace curves, from the panel or elsewhere: each goes to the displays in one
/// batch, can be undone, and is saved to disk.
class CurveEditing {
 public:
    struct Surroundings {
        DisplayService& service;
        ScreenRegistry& registry;
        RunLoop& runLoop;
        PanelControls& controls;
        CurrentScreens& currentScreens;
        CurrentCurve& currentCurve;
        EditHistory& history;
        PanelView& view;
        Correction& correction;
        CurveStorage& storage;
        PreferencesStore& preferences;
    };

    explicit CurveEditing(const Surroundings& surroundings) : _with(surroundings) {}

    /// A slider moved. `isLinked`: the other colours of its point follow.
    void applyGamma(PanelSlider sender, bool isLinked);
    /// The slider was let go: the next edit of it is another undo step.
    void endEdit();
    void changeBlendingMode();
    /// Restores the system calibration and, after a pause, starts over from it.
    void resetGamma();
    void undo();
    void redo();

    /// Assigns a curve from elsewhere to the current displays.
    void adoptCurve(const KVGammaCurve& curve);
    /// Puts a table on the current displays, then derives every display's curve from its tables.
    void adoptTable(const std::shared_ptr<KVGammaCurve>& table);

    /// Puts a table on the current displays, where it stays until their curve is replaced. On
    /// displays that have it already it makes no undo step.
    void keepTable(const std::shared_ptr<KVTableGammaCurve>& table);
    /// Whether a current display has a table instead of a curve that can be edited.
    [[nodiscard]] bool hasTable();
    /// Replaces the tables of the current displays by the curves that come closest to them. Returns
    /// by how much a level is off at most; nothing if no display has a table.
    std::optional<float> makeEditable();
    /// Assigns curves to displays, as one undo step. A problem, with nothing changed, if one of the
    /// displays is not attached.
    Result<void> takeCurves(const HandedCurves& curves);

    /// Call it before other code replaces curves: starts a new undo step.
    void willEdit(const ScreenRegistry::Screens& screens, int subject);
    /// A companion on the network is about to replace curves. Its edits with gaps of less than a
    /// second are one undo step, on any number of displays.
    void willEditFromAfar();
    /// Call it after each edit: shows the result and schedules saving.
    void curvesWereEdited();

 private:
    void rememberFirstEdit();
    void replaceCurves(int subject);
    void _adoptCurrentCurves();
    void _doneReset();

    Surroundings _with;
    std::unique_ptr<RunLoop::Handle> _resetTimer;
    RunLoop::Clock::time_point _lastFromAfar{};
};

}  // namespace tonquil
