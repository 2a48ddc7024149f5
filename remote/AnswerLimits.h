// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "remote/TokenBucket.h"

namespace tonquil {

/// How many answers anybody on the network can get from us.
///
/// An answer is larger than its question, and the source of a datagram can be forged: without
/// limits a server could be used to flood somebody else, or be kept busy itself. The numbers are
/// far above ordinary use, where even a companion that asks after each move of a slider stays below
/// 20 a second. Programs on this computer are not limited: see `AnswerQueue::admits`.
class AnswerLimits {
 public:
    /// For one source host, whatever its ports, since ports cost a sender nothing.
    static constexpr Rate forOneHost{.burst = 100, .perSecond = 20};
    /// For all together: what is left when source addresses are forged.
    static constexpr Rate forAll{.burst = 200, .perSecond = 50};
    /// For pushes to all subscribers: a stranger can have targets shown and dismissed at will, and
    /// each that closes is a push.
    static constexpr Rate forPushes{.burst = 20, .perSecond = 5};
    /// How many hosts are remembered. A host may be forgotten 5 s after its last answer, and in 5 s
    /// no more than 450 hosts get one, so there is room.
    static constexpr std::size_t mostHosts = 512;

    /// Takes one answer for the host, if there is one for it and one for all.
    [[nodiscard]] bool take(std::uint32_t host, TokenBucket::Time now);

 private:
    void forgetIdleHosts(TokenBucket::Time now);

    TokenBucket _all{forAll};
    std::unordered_map<std::uint32_t, TokenBucket> _hosts;
};

}  // namespace tonquil
