// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "remote/TokenBucket.h"

namespace tonquil {

/// Lets through the lines of one kind only as often as people can use them, so that a stranger on
/// the network cannot fill the log: 20 at once, then one in 10 s.
class LogLimiter {
 public:
    /// `further` names the kind for the line that counts what was left out: "datagrams ignored".
    LogLimiter(Log log, std::string further);

    /// Whether a line may be written now; if so, what was left out before is told first.
    [[nodiscard]] bool admits(RunLoop::Clock::time_point now);

 private:
    Log _log;
    std::string _further;
    TokenBucket _bucket;
    std::uint64_t _leftOut = 0;
};

}  // namespace tonquil
