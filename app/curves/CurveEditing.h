// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/correction/Correction.h"
#include "app/curves/CurveStorage.h"
#include "app/curves/PanelView.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Every way in which curves are replaced, by the panel or by anybody else: each reaches the
/// displays in one batch, can be undone, and is kept on the disk.
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
    };

    explicit CurveEditing(const Surroundings& surroundings) : _with(surroundings) {}

    /// A slider was moved. `isLinked`: the other colours of its point follow.
    void applyGamma(PanelSlider sender, bool isLinked);
    void changeBlendingMode();
    /// Gives the displays back to the system's calibration and, after a pause, starts from that.
    void resetGamma();
    void undo();
    void redo();

    /// Gives the current displays a curve from elsewhere.
    void adoptCurve(const KVGammaCurve& curve);
    /// Puts a table on the current displays, then takes every display's curve from its tables.
    void adoptTable(const std::shared_ptr<KVGammaCurve>& table);

    /// Somebody else is about to replace curves: one step to undo, whatever came before.
    void willEdit(const ScreenRegistry::Screens& screens, int subject);
    /// A companion on the network is about to replace curves. What it does without a second's pause
    /// is one step to undo, on however many displays.
    void willEditFromAfar();
    /// To be called after each edit: shows it, and sees to it that it is kept.
    void curvesWereEdited();

 private:
    void replaceCurves(int subject);
    void _adoptCurrentCurves();
    void _doneReset();

    Surroundings _with;
    std::unique_ptr<RunLoop::Handle> _resetTimer;
    RunLoop::Clock::time_point _lastFromAfar{};
};

}  // namespace tonquil
