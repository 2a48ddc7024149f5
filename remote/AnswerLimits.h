// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "remote/TokenBucket.h"

namespace tonquil {

/// How many answers anybody can draw from us.
///
/// An answer is larger than its question, and the source of a datagram can be forged: without
/// limits a server could be used to flood somebody else, or be kept busy itself. The numbers are
/// far above what people do: a companion asks once a minute and after a click, and a house has a
/// few of them.
class AnswerLimits {
 public:
    /// For one source host, whatever its ports, since ports cost a sender nothing.
    static constexpr Rate forOneHost{.burst = 20, .perSecond = 5};
    /// For all together: what is left when source addresses are forged.
    static constexpr Rate forAll{.burst = 200, .perSecond = 50};
    /// For pushes to all subscribers: a stranger can have targets shown and dismissed at will, and
    /// each that closes is a push.
    static constexpr Rate forPushes{.burst = 20, .perSecond = 5};
    /// Hosts whose askings are remembered. As grants for all come at 50 a second and a host is
    /// forgotten 4 s after its last, a full table is one that the rate for all has filled.
    static constexpr std::size_t mostHosts = 512;

    /// Takes one answer for the host, if there is one for it and one for all.
    [[nodiscard]] bool take(std::uint32_t host, TokenBucket::Time now);

 private:
    void forgetIdleHosts(TokenBucket::Time now);

    TokenBucket _all{forAll};
    std::unordered_map<std::uint32_t, TokenBucket> _hosts;
};

}  // namespace tonquil
