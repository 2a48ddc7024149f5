// SPDX-License-Identifier: MIT
#include "platform/ramp/RampHistory.h"

#include <algorithm>

namespace tonquil {

bool RampHistory::isCorrection(std::uint64_t fingerprint) const {
    return std::any_of(_corrections.rbegin(), _corrections.rend(),
                       [=](const Correction& each) { return each.fingerprint == fingerprint; });
}

bool RampHistory::has(const Correction& correction) const {
    return std::find(_corrections.rbegin(), _corrections.rend(), correction) != _corrections.rend();
}

void RampHistory::addCorrection(const Correction& correction) {
    _corrections.push_back(correction);
    if (_corrections.size() <= mostCorrections) {
        return;
    }
    // The oldest one that its holder has replaced since.
    auto oldest = _corrections.begin();
    while (oldest != _corrections.end() &&
           std::none_of(oldest + 1, _corrections.end(),
                        [&](const Correction& later) { return later.holder == oldest->holder; })) {
        ++oldest;
    }
    if (oldest != _corrections.end()) {
        _corrections.erase(oldest);
    } else if (_corrections.size() > mostHolders) {
        _corrections.erase(_corrections.begin());
    }
}

HardwareRamp RampHistory::uncorrected(const HardwareRamp& present) const {
    return isCorrection(present.fingerprint()) ? underCorrection(present.size()) : present;
}

HardwareRamp RampHistory::underCorrection(std::uint32_t size) const {
    // A correction is only ever set after the system ramp was recorded. If the record is lost, a
    // linear ramp is the only guess that does not correct twice.
    return _systemRamp && _systemRamp->size() == size ? *_systemRamp : HardwareRamp::straight(size);
}

}  // namespace tonquil
