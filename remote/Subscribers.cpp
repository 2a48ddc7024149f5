// SPDX-License-Identifier: MIT
#include "remote/Subscribers.h"

#include <algorithm>

namespace tonquil {

void Subscribers::subscribe(const SocketAddress& address, Time now) {
    if (!_expiries.contains(address)) {
        makeRoomFor(address);
    }
    _expiries[address] = now + lifetime;
}

void Subscribers::makeRoomFor(const SocketAddress& address) {
    const auto isOfSameHost = [&](const auto& entry) {
        return entry.first.host() == address.host();
    };
    const bool hasItsShare = std::ranges::count_if(_expiries, isOfSameHost) >=
                             static_cast<std::ptrdiff_t>(mostOfOneHost);
    if (!hasItsShare && _expiries.size() < most) {
        return;
    }
    auto nearest = _expiries.end();
    for (auto entry = _expiries.begin(); entry != _expiries.end(); ++entry) {
        if (hasItsShare && !isOfSameHost(*entry)) {
            continue;
        }
        if (nearest == _expiries.end() || entry->second < nearest->second) {
            nearest = entry;
        }
    }
    _expiries.erase(nearest);
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
