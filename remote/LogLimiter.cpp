// SPDX-License-Identifier: MIT
#include "remote/LogLimiter.h"

#include <utility>

namespace tonquil {

namespace {

constexpr Rate linesForPeople{.burst = 20, .perSecond = 0.1};

}  // namespace

LogLimiter::LogLimiter(Log log, std::string further)
    : _log(std::move(log)), _further(std::move(further)), _bucket(linesForPeople) {}

bool LogLimiter::admits(RunLoop::Clock::time_point now) {
    if (!_bucket.take(now)) {
        ++_leftOut;
        return false;
    }
    if (const auto leftOut = std::exchange(_leftOut, 0); leftOut > 0 && _log) {
        _log(std::to_string(leftOut) + " " + _further + " without a line of their own");
    }
    return true;
}

}  // namespace tonquil
