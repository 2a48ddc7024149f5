// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <cstdint>
#include <memory>
#include <vector>

#include "targets/TargetScreen.h"

namespace tonquil {

class TQTargetWindowController;

/// The targets that cover displays, at most one each. Owns their controllers; the floating window's
/// controller is not in the list.
///
/// A reference to a controller stays valid until the event in which its window closes is done.
class TargetWindowList {
 public:
    TargetWindowList();
    ~TargetWindowList();
    Q_DISABLE_COPY_MOVE(TargetWindowList)

    /// The first controller whose display has the number or the frame of `screen`, or null.
    [[nodiscard]] TQTargetWindowController* existingTargetWindowControllerForScreen(
        const TargetScreen& screen) const;
    /// Same, but creates a controller of kind 0 if there is none. It is not shown yet.
    TQTargetWindowController& targetWindowControllerForScreen(const TargetScreen& screen);

    /// Moves each cover to its display's current position, and dismisses those whose display is
    /// gone. A display that comes back under another number is recognised by its frame. To be
    /// called once before the first change, too.
    void screensChanged(const std::vector<TargetScreen>& screens);

 private:
    friend class TQTargetWindowController;
    /// Removes a controller; it is destroyed once the current event is done.
    void release(TQTargetWindowController& controller);

    std::vector<std::unique_ptr<TQTargetWindowController>> _controllers;
    std::vector<std::unique_ptr<TQTargetWindowController>> _released;
    /// Those of the last `screensChanged`.
    std::vector<std::uint32_t> _displays;
    QTimer _cleaning;  ///< Fires after the current event.
};

}  // namespace tonquil
