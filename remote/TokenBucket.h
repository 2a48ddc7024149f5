// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RunLoop.h"

namespace tonquil {

/// How often something may happen: so many times at once, then so many times a second.
struct Rate {
    double burst;
    double perSecond;
};

/// Grants what its rate allows; full at first.
class TokenBucket {
 public:
    using Time = RunLoop::Clock::time_point;

    explicit TokenBucket(Rate rate) : _rate(rate), _tokens(rate.burst) {}

    /// Whether a grant could be taken now.
    [[nodiscard]] bool has(Time now) const { return tokensAt(now) >= 1; }
    /// Takes one grant; false, and nothing taken, where there is none.
    [[nodiscard]] bool take(Time now);
    /// Whether it is as good as new.
    [[nodiscard]] bool isFull(Time now) const { return tokensAt(now) >= _rate.burst; }

 private:
    [[nodiscard]] double tokensAt(Time now) const;

    Rate _rate;
    double _tokens;
    Time _refilled{};
};

}  // namespace tonquil
