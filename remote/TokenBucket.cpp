// SPDX-License-Identifier: MIT
#include "remote/TokenBucket.h"

#include <algorithm>

namespace tonquil {

double TokenBucket::tokensAt(Time now) const {
    const std::chrono::duration<double> passed = now - _refilled;
    return std::min(_rate.burst, _tokens + std::max(passed.count(), 0.0) * _rate.perSecond);
}

bool TokenBucket::take(Time now) {
    const double tokens = tokensAt(now);
    if (tokens < 1) {
        return false;
    }
    _tokens = tokens - 1;
    _refilled = now;
    return true;
}

}  // namespace tonquil
