// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/CurveValues.h"
#include "model/GammaTable.h"

namespace tonquil {

/// Keeps the last table that was computed for a screen, so that re-applying an unchanged curve
/// costs a comparison and no arithmetic.
///
/// Everything that the table depends on is compared by value: a point that is changed through its
/// setter, a changed mode and a base that was read anew are all noticed.
class ComputedTable {
 public:
    /// The table of `curve` over `base`. Allocates nothing; the reference stays valid, and its
    /// contents unchanged, until the next call.
    [[nodiscard]] const GammaTable& tableFor(const CurveValues& curve, const BaseGamma& base);

 private:
    bool _isComputed = false;
    CurveValues _curve;
    BaseGamma _base;
    GammaTable _table;
};

}  // namespace tonquil
