// SPDX-License-Identifier: MIT
#include "platform/posix/NetworkInterfaces.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <net/if_arp.h>
#include <netpacket/packet.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>

namespace tonquil {

namespace {

using Interfaces = std::unique_ptr<ifaddrs, decltype(&freeifaddrs)>;

/// Null if the system cannot tell.
Interfaces interfaces() {
    ifaddrs* list = nullptr;
    return {getifaddrs(&list) == 0 ? list : nullptr, freeifaddrs};
}

/// The address as its family's structure; nothing for another family.
template <typename Address>
std::optional<Address> addressFrom(const sockaddr* generic, int family) {
    if (generic == nullptr || generic->sa_family != family) {
        return std::nullopt;
    }
    Address address{};
    std::memcpy(&address, generic, sizeof address);
    return address;
}

template <typename Address>
std::optional<Address> addressOf(const ifaddrs& interface, int family) {
    return addressFrom<Address>(interface.ifa_addr, family);
}

}  // namespace

std::vector<int> broadcastInterfaces() {
    std::vector<int> indices;
    const Interfaces list = interfaces();
    for (const ifaddrs* each = list.get(); each != nullptr; each = each->ifa_next) {
        if (!addressOf<sockaddr_in>(*each, AF_INET) || (each->ifa_flags & IFF_UP) == 0 ||
            (each->ifa_flags & IFF_BROADCAST) == 0) {
            continue;
        }
        const int index = static_cast<int>(if_nametoindex(each->ifa_name));
        // An interface is listed once for each of its addresses.
        if (index != 0 && std::ranges::find(indices, index) == indices.end()) {
            indices.push_back(index);
        }
    }
    return indices;
}

bool isOwnAddress(std::uint32_t host) {
    constexpr std::uint32_t loopback = 127;
    if (host >> 24U == loopback) {
        return true;
    }
    const Interfaces list = interfaces();
    for (const ifaddrs* each = list.get(); each != nullptr; each = each->ifa_next) {
        const auto address = addressOf<sockaddr_in>(*each, AF_INET);
        if (address && ntohl(address->sin_addr.s_addr) == host) {
            return true;
        }
    }
    return false;
}

std::vector<std::uint32_t> broadcastAddresses() {
    // In a network of two addresses both are hosts; there is no broadcast address.
    constexpr std::uint32_t smallestHostPart = 3;
    std::vector<std::uint32_t> addresses;
    const Interfaces list = interfaces();
    for (const ifaddrs* each = list.get(); each != nullptr; each = each->ifa_next) {
        const auto own = addressOf<sockaddr_in>(*each, AF_INET);
        if (!own || (each->ifa_flags & IFF_BROADCAST) == 0) {
            continue;
        }
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): how the system gives it.
        if (const auto told = addressFrom<sockaddr_in>(each->ifa_broadaddr, AF_INET)) {
            addresses.push_back(ntohl(told->sin_addr.s_addr));
        }
        if (const auto mask = addressFrom<sockaddr_in>(each->ifa_netmask, AF_INET)) {
            const std::uint32_t hostPart = ~ntohl(mask->sin_addr.s_addr);
            if (hostPart >= smallestHostPart) {
                addresses.push_back(ntohl(own->sin_addr.s_addr) | hostPart);
            }
        }
    }
    return addresses;
}

std::optional<LocalHost::HardwareAddress> mainHardwareAddress() {
    int first = 0;
    std::optional<LocalHost::HardwareAddress> result;
    const Interfaces list = interfaces();
    for (const ifaddrs* each = list.get(); each != nullptr; each = each->ifa_next) {
        const auto link = addressOf<sockaddr_ll>(*each, AF_PACKET);
        LocalHost::HardwareAddress address{};
        if (!link || (each->ifa_flags & IFF_UP) == 0 || (each->ifa_flags & IFF_LOOPBACK) != 0 ||
            link->sll_hatype != ARPHRD_ETHER || link->sll_halen != address.size() ||
            (result && link->sll_ifindex > first)) {
            continue;
        }
        std::copy_n(std::begin(link->sll_addr), address.size(), address.begin());
        first = link->sll_ifindex;
        result = address;
    }
    return result;
}

}  // namespace tonquil
