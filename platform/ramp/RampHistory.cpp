// SPDX-License-Identifier: MIT
#include "platform/ramp/RampHistory.h"

#include <algorithm>

namespace tonquil {

bool RampHistory::isCorrection(std::uint64_t fingerprint) const {
    return std::find(_corrections.rbegin(), _corrections.rend(), fingerprint) !=
           _corrections.rend();
}

void RampHistory::addCorrection(std::uint64_t fingerprint) {
    const auto known = std::find(_corrections.begin(), _corrections.end(), fingerprint);
    if (known != _corrections.end()) {
        std::rotate(known, known + 1, _corrections.end());
        return;
    }
    if (_corrections.size() == mostCorrections) {
        _corrections.erase(_corrections.begin());
    }
    _corrections.push_back(fingerprint);
}

HardwareRamp RampHistory::uncorrected(const HardwareRamp& present) const {
    if (!isCorrection(present.fingerprint())) {
        return present;
    }
    // A correction is only ever set after the system ramp was noted; should the note be lost, a
    // straight line is the one guess that does not correct twice.
    return _systemRamp && _systemRamp->size() == present.size()
               ? *_systemRamp
               : HardwareRamp::straight(present.size());
}

}  // namespace tonquil
