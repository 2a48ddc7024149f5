// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace tonquil {

/// An IPv4 address and port: where a datagram comes from or goes to.
///
/// It is kept as the 16 bytes of a socket address: its length 16, the family 2, the port and the
/// address in network order, eight zeros. Two addresses are the same when all of these are.
///
/// The source of a datagram also knows which of this computer's addresses the datagram was sent
/// to. A companion expects its answer from there, so what is sent to such an address leaves from
/// it.
class SocketAddress {
 public:
    using Bytes = std::array<std::uint8_t, 16>;

    /// 255.255.255.255, which reaches every machine on the network.
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

    /// The same address, to which datagrams leave from `ownHost`.
    [[nodiscard]] SocketAddress reachedFrom(std::uint32_t ownHost) const;
    /// Our own address to send from; 0 leaves it to the system.
    [[nodiscard]] std::uint32_t ownHost() const { return _ownHost; }
    /// Whether it is in 127.0.0.0/8. The system takes no such source from the network.
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
