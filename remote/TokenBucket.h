// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RunLoop.h"

namespace tonquil {

/// A rate limit: a burst, then a number per second.
struct Rate {
    double burst;
    double perSecond;
};

/// Token bucket for a rate; initially full.
class TokenBucket {
 public:
    using Time = RunLoop::Clock::time_point;

    explicit TokenBucket(Rate rate) : _rate(rate), _tokens(rate.burst) {}

    /// Whether a token is available now.
    [[nodiscard]] bool has(Time now) const { return tokensAt(now) >= 1; }
    /// Takes one token; false, without effect, if there is none.
    [[nodiscard]] bool take(Time now);
    /// Whether all tokens are back.
    [[nodiscard]] bool isFull(Time now) const { return tokensAt(now) >= _rate.burst; }

 private:
    [[nodiscard]] double tokensAt(Time now) const;

    Rate _rate;
    double _tokens;
    Time _refilled{};
};

}  // namespace tonquil
