// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "foundation/RunLoop.h"
#include "remote/SocketAddress.h"

namespace tonquil {

/// Who gets state updates, and until when.
///
/// An address stays for at least 90 s after its last subscription: expired ones are only removed
/// before a push or when there is no room for a newcomer. Strangers can neither make the list grow
/// without limit nor push anybody out: when it is full, or a host has used its share, newcomers are
/// refused. Programs on this computer (127.0.0.0/8) have no share, only the overall limit.
class Subscribers {
 public:
    using Time = RunLoop::Clock::time_point;

    static constexpr std::chrono::seconds lifetime{90};
    static constexpr std::size_t most = 256;
    static constexpr std::size_t mostOfOneHost = 64;

    /// Adds the address or renews its time. Drops a newcomer if there is no room.
    void subscribe(const SocketAddress& address, Time now);
    /// Removes those that expired strictly before `now`.
    void removeExpired(Time now);
    [[nodiscard]] bool isEmpty() const { return _expiries.empty(); }
    [[nodiscard]] std::vector<SocketAddress> addresses() const;

 private:
    [[nodiscard]] bool hasRoomFor(const SocketAddress& address) const;

    std::unordered_map<SocketAddress, Time> _expiries;
};

}  // namespace tonquil
