// SPDX-License-Identifier: MIT
#pragma once

#include "values/PropertyValue.h"

namespace tonquil {

/// Keeps the curves of a running program safe from a crash.
///
/// Stores an all-screens dictionary: the curve of each display, by reference ID.
class CurveRecovery {
 public:
    virtual ~CurveRecovery() = default;

    /// The curves left by a run that did not shut down properly; an empty dictionary if there are
    /// none, or if they cannot be read.
    [[nodiscard]] virtual PropertyValue leftCurves() = 0;
    /// Replaces the stored curves as soon as the disk allows; of several calls in between, only the
    /// last is written.
    virtual void keep(PropertyValue curves) = 0;
    /// Deletes the stored curves; done on return.
    virtual void forget() = 0;
};

}  // namespace tonquil
