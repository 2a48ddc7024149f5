// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "targets/TargetScreen.h"

namespace tonquil {

class TQTargetWindowController;

/// The targets that cover displays, one at most for each. Owns their controllers; the controller of
/// a floating window is not among them.
///
/// A reference to a controller is good until its window is closed, and until the event in which
/// that happens is done.
class TargetWindowList {
 public:
    TargetWindowList();
    ~TargetWindowList();
    Q_DISABLE_COPY_MOVE(TargetWindowList)

    /// The first of the controllers whose display has the number of `screen` or its frame, none if
    /// there is no such.
    [[nodiscard]] TQTargetWindowController* existingTargetWindowControllerForScreen(
        const TargetScreen& screen) const;
    /// The same, but a new one at kind 0 if there is none. It is not shown.
    TQTargetWindowController& targetWindowControllerForScreen(const TargetScreen& screen);

    /// Moves each cover to where its display now is, and dismisses those whose display is gone. A
    /// display that comes back under another number is known by its frame.
    void screensChanged(const std::vector<TargetScreen>& screens);

 private:
    friend class TQTargetWindowController;
    /// Takes a controller out; it is destroyed once the current event is done.
    void release(TQTargetWindowController& controller);

    std::vector<std::unique_ptr<TQTargetWindowController>> _controllers;
    std::vector<std::unique_ptr<TQTargetWindowController>> _released;
    QTimer _cleaning;  ///< Comes after the current event.
};

}  // namespace tonquil
