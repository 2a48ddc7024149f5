// SPDX-License-Identifier: MIT
#include "remote/Subscribers.h"

#include <algorithm>

namespace tonquil {

void Subscribers::subscribe(const SocketAddress& address, Time now) {
    // Erased first: it is added back with the address of ours that it used last.
    if (_expiries.erase(address) == 0 && !hasRoomFor(address)) {
        removeExpired(now);
        if (!hasRoomFor(address)) {
            return;
        }
    }
    _expiries.emplace(address, now + lifetime);
}

bool Subscribers::hasRoomFor(const SocketAddress& address) const {
    const auto isOfSameHost = [&](const auto& entry) {
        return entry.first.host() == address.host();
    };
    return _expiries.size() < most &&
           (address.isLoopback() || std::ranges::count_if(_expiries, isOfSameHost) <
                                        static_cast<std::ptrdiff_t>(mostOfOneHost));
}

void Subscribers::removeExpired(Time now) {
    std::erase_if(_expiries, [now](const auto& entry) { return entry.second < now; });
}

std::vector<SocketAddress> Subscribers::addresses() const {
    std::vector<SocketAddress> addresses;
    addresses.reserve(_expiries.size());
    for (const auto& [address, expiry] : _expiries) {
        addresses.push_back(address);
    }
    return addresses;
}

}  // namespace tonquil
