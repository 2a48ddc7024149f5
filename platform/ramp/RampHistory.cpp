// SPDX-License-Identifier: MIT
#include "platform/ramp/RampHistory.h"

#include <algorithm>

namespace tonquil {

bool RampHistory::isCorrection(std::uint64_t fingerprint) const {
    return std::find(_corrections.rbegin(), _corrections.rend(), fingerprint) !=
           _corrections.rend();
}

bool RampHistory::isNewestCorrection(std::uint64_t fingerprint) const {
    return !_corrections.empty() && _corrections.back() == fingerprint;
}

void RampHistory::addCorrection(std::uint64_t fingerprint) {
    if (isNewestCorrection(fingerprint)) {
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
