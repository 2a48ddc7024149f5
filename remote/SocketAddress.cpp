// SPDX-License-Identifier: MIT
#include "remote/SocketAddress.h"

namespace tonquil {

namespace {

std::uint8_t byteOf(std::uint32_t number, unsigned shift) {
    return static_cast<std::uint8_t>(number >> shift);
}

}  // namespace

SocketAddress::SocketAddress(std::uint32_t host, std::uint16_t port)
    : _bytes{16,
             2,
             byteOf(port, 8),
             byteOf(port, 0),
             byteOf(host, 24),
             byteOf(host, 16),
             byteOf(host, 8),
             byteOf(host, 0)} {}

SocketAddress SocketAddress::reachedFrom(std::uint32_t ownHost) const {
    SocketAddress address = *this;
    address._ownHost = ownHost;
    return address;
}

std::uint32_t SocketAddress::host() const {
    return std::uint32_t{_bytes[4]} << 24U | std::uint32_t{_bytes[5]} << 16U |
           std::uint32_t{_bytes[6]} << 8U | _bytes[7];
}

std::string SocketAddress::dottedHost() const {
    std::string text = std::to_string(_bytes[4]);
    for (const std::size_t index : {5U, 6U, 7U}) {
        text += '.';
        text += std::to_string(_bytes[index]);
    }
    return text;
}

std::uint16_t SocketAddress::port() const {
    return static_cast<std::uint16_t>(_bytes[2] << 8U | _bytes[3]);
}

}  // namespace tonquil
