// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "remote/TokenBucket.h"

namespace tonquil {

/// Rate-limits log lines of one kind, so that a stranger on the network cannot fill the log: 20 at
/// once, then one in 10 s.
class LogLimiter {
 public:
    /// `further` names the kind in the line that counts suppressed lines: "datagrams ignored".
    LogLimiter(Log log, std::string further);

    /// Whether a line may be logged now; if so, first logs how many were suppressed before it.
    [[nodiscard]] bool admits(RunLoop::Clock::time_point now);

 private:
    Log _log;
    std::string _further;
    TokenBucket _bucket;
    std::uint64_t _leftOut = 0;
};

}  // namespace tonquil
