// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/CurveValues.h"
#include "model/GammaTable.h"

namespace tonquil {

/// Caches the last table computed for a screen, so that re-applying an unchanged curve costs one
/// comparison and no computation.
///
/// All inputs are compared by value, so changes through a point's setter, a new mode or a re-read
/// base are all noticed.
class ComputedTable {
 public:
    /// The table of `curve` over `base`. Does not allocate; the reference stays valid, and its
    /// contents unchanged, until the next call.
    [[nodiscard]] const GammaTable& tableFor(const CurveValues& curve, const BaseGamma& base);

 private:
    bool _isComputed = false;
    CurveValues _curve;
    BaseGamma _base;
    GammaTable _table;
};

}  // namespace tonquil
