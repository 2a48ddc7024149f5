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
/// An address stays for 90 s after its last subscription, or longer: it is looked at only when
/// there is something to tell. Strangers cannot make it grow: where it is full, and where one host
/// has its share, the entry nearest its expiry makes room.
class Subscribers {
 public:
    using Time = RunLoop::Clock::time_point;

    static constexpr std::chrono::seconds lifetime{90};
    static constexpr std::size_t most = 256;
    static constexpr std::size_t mostOfOneHost = 16;

    /// Adds the address, or gives it its whole time again.
    void subscribe(const SocketAddress& address, Time now);
    /// Removes those whose expiry is strictly earlier than `now`.
    void removeExpired(Time now);
    [[nodiscard]] bool isEmpty() const { return _expiries.empty(); }
    [[nodiscard]] std::vector<SocketAddress> addresses() const;

 private:
    void makeRoomFor(const SocketAddress& address);

    std::unordered_map<SocketAddress, Time> _expiries;
};

}  // namespace tonquil
