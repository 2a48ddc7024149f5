// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "remote/TokenBucket.h"

namespace tonquil {

/// Rate limits for our answers to the network.
///
/// An answer is larger than its request, and a datagram's source can be forged: without limits a
/// server could be used to flood another host, or be kept busy itself. The limits are far above
/// normal use, where even a companion that queries after each slider move stays below 20 a second.
/// Programs on this computer are not limited: see `AnswerQueue::admits`.
class AnswerLimits {
 public:
    /// Per source host, for all its ports together, because ports cost a sender nothing.
    static constexpr Rate forOneHost{.burst = 100, .perSecond = 20};
    /// For all hosts together: the limit that remains when source addresses are forged.
    static constexpr Rate forAll{.burst = 200, .perSecond = 50};
    /// For pushes to all subscribers: a stranger can have targets shown and dismissed at will, and
    /// each one that closes causes a push.
    static constexpr Rate forPushes{.burst = 20, .perSecond = 5};
    /// Size of the host table. A host may be dropped 5 s after its last answer, and in 5 s at most
    /// 450 hosts get one, so there is room.
    static constexpr std::size_t mostHosts = 512;

    /// Takes one answer for the host, if both the host and the global limit allow it.
    [[nodiscard]] bool take(std::uint32_t host, TokenBucket::Time now);

 private:
    void forgetIdleHosts(TokenBucket::Time now);

    TokenBucket _all{forAll};
    std::unordered_map<std::uint32_t, TokenBucket> _hosts;
};

}  // namespace tonquil
