// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace tonquil {

/// An IPv4 address and port: the source or destination of a datagram.
///
/// Stored as the 16 bytes of a socket address: length 16, family 2, port and address in network
/// byte order, eight zeros. Two addresses are equal if all of these are.
///
/// The source of a datagram also records which of this computer's addresses the datagram was sent
/// to. A companion expects the answer from that address, so a reply is sent from it.
class SocketAddress {
 public:
    using Bytes = std::array<std::uint8_t, 16>;

    /// 255.255.255.255, which reaches every computer on the network.
    static constexpr std::uint32_t broadcastHost = 0xFFFFFFFF;

    /// 0.0.0.0, port 0.
    SocketAddress() : SocketAddress(0, 0) {}
    /// `host` has the first of the dotted numbers in its highest byte.
    SocketAddress(std::uint32_t host, std::uint16_t port);

    [[nodiscard]] std::uint32_t host() const;
    /// "192.168.1.2".
    [[nodiscard]] std::string dottedHost() const;
    [[nodiscard]] std::uint16_t port() const;
    [[nodiscard]] const Bytes& bytes() const { return _bytes; }

    /// The same address, with `ownHost` as the address to send from.
    [[nodiscard]] SocketAddress reachedFrom(std::uint32_t ownHost) const;
    /// Our own address to send from; 0 lets the system choose.
    [[nodiscard]] std::uint32_t ownHost() const { return _ownHost; }
    /// Whether it is in 127.0.0.0/8. The system drops such sources when they come from the network.
    [[nodiscard]] bool isLoopback() const { return _bytes[4] == 127; }

    friend bool operator==(const SocketAddress& left, const SocketAddress& right) {
        return left._bytes == right._bytes;
    }
    friend bool operator<(const SocketAddress& left, const SocketAddress& right) {
        return left._bytes < right._bytes;
    }

 private:
    Bytes _bytes;
    std::uint32_t _ownHost = 0;
};

}  // namespace tonquil

template <>
struct std::hash<tonquil::SocketAddress> {
    std::size_t operator()(const tonquil::SocketAddress& address) const noexcept {
        return std::hash<std::uint64_t>()(std::uint64_t{address.host()} << 16U | address.port());
    }
};
