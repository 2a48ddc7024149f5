// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "foundation/RunLoop.h"
#include "remote/SocketAddress.h"

namespace tonquil {

/// Who is told of changes, and until when.
///
/// An address stays for 90 s after its last subscription, or longer: expired ones are removed only
/// when there is something to tell or no room for another. Strangers cannot make it grow, nor push
/// anybody out: when it is full, or one host has its share, newcomers are refused. Programs on this
/// computer (127.0.0.0/8) have no share, only the room that there is.
class Subscribers {
 public:
    using Time = RunLoop::Clock::time_point;

    static constexpr std::chrono::seconds lifetime{90};
    static constexpr std::size_t most = 256;
    static constexpr std::size_t mostOfOneHost = 64;

    /// Adds the address, or gives it its whole time again. A newcomer for whom there is no room is
    /// left out.
    void subscribe(const SocketAddress& address, Time now);
    /// Removes those whose expiry is strictly earlier than `now`.
    void removeExpired(Time now);
    [[nodiscard]] bool isEmpty() const { return _expiries.empty(); }
    [[nodiscard]] std::vector<SocketAddress> addresses() const;

 private:
    [[nodiscard]] bool hasRoomFor(const SocketAddress& address) const;

    std::unordered_map<SocketAddress, Time> _expiries;
};

}  // namespace tonquil
