// SPDX-License-Identifier: MIT
#include "model/ComputedTable.h"

#include "model/TableComputation.h"

namespace tonquil {

const GammaTable& ComputedTable::tableFor(const CurveValues& curve, const BaseGamma& base) {
    const bool isKept = _isComputed && haveSameBits(curve, _curve) &&
                        base.sampleCount == _base.sampleCount &&
                        haveSameBits(base.table, _base.table);
    if (!isKept) {
        _curve = curve;
        _base = base;
        _table = base.table;
        computeTransferTable(curve, _table, base.sampleCount);
        _isComputed = true;
    }
    return _table;
}

}  // namespace tonquil
