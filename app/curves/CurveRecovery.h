// SPDX-License-Identifier: MIT
#pragma once

#include "values/PropertyValue.h"

namespace tonquil {

/// Keeps the curves of a running program where a crash cannot take them.
///
/// What is kept is an all-screens dictionary: reference IDs of displays, each with its curve.
class CurveRecovery {
 public:
    virtual ~CurveRecovery() = default;

    /// What a program that did not end in order has left; an empty dictionary when there is
    /// nothing, or nothing that can be read.
    [[nodiscard]] virtual PropertyValue leftCurves() = 0;
    /// Replaces what is kept, as soon as the disk allows: of what is asked for meanwhile, only the
    /// newest is kept.
    virtual void keep(PropertyValue curves) = 0;
    /// Forgets what is kept; done when it returns.
    virtual void forget() = 0;
};

}  // namespace tonquil
