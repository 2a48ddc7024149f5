// SPDX-License-Identifier: MIT
#include "platform/posix/PosixLocalHost.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string_view>

#include "files/BoundedFile.h"
#include "platform/posix/NetworkInterfaces.h"

namespace tonquil {

namespace {

/// Removes shell quoting from a value, as far as programs write it: `"Anna's \"desk\""`.
std::string unquoted(std::string_view value) {
    char quote = 0;
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const char c = value[i];
        if (quote == 0 && (c == '"' || c == '\'')) {
            quote = c;
        } else if (c == quote) {
            quote = 0;
        } else if (c == '\\' && quote != '\'' && i + 1 < value.size()) {
            text += value[++i];
        } else {
            text += c;
        }
    }
    return text;
}

/// The value from the last line that sets the key.
std::string valueOf(std::string_view key, std::string_view lines) {
    std::string value;
    while (!lines.empty()) {
        const auto length = std::min(lines.find('\n'), lines.size());
        const std::string_view line = lines.substr(0, length);
        if (line.starts_with(key) && line.substr(key.size()).starts_with('=')) {
            value = unquoted(line.substr(key.size() + 1));
        }
        lines.remove_prefix(std::min(length + 1, lines.size()));
    }
    return value;
}

}  // namespace

std::string PosixLocalHost::localizedName() const {
    constexpr std::size_t mostBytes = 65536;
    if (const auto file = readBoundedFile(_machineInfo, mostBytes)) {
        const std::string text(file->begin(), file->end());
        if (auto name = valueOf("PRETTY_HOSTNAME", text); !name.empty()) {
            return name;
        }
    }
    std::array<char, 256> name{};
    // A name that does not fit may lack its terminating zero.
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::optional<LocalHost::HardwareAddress> PosixLocalHost::hardwareAddress() const {
    return mainHardwareAddress();
}

bool PosixLocalHost::hasAddress(std::uint32_t host) const {
    return isOwnAddress(host);
}

// Listing the interfaces takes longer than everything else done for a datagram, and a stranger may
// send thousands a second.
bool PosixLocalHost::isBroadcastAddress(std::uint32_t host) const {
    constexpr std::chrono::seconds lifetime{1};
    const auto now = std::chrono::steady_clock::now();
    if (!_broadcastsRead || now - *_broadcastsRead >= lifetime) {
        _broadcasts = broadcastAddresses();
        _broadcastsRead = now;
    }
    return std::ranges::find(_broadcasts, host) != _broadcasts.end();
}

Result<std::uint32_t> lookUpHost(const std::string& name) {
    addrinfo wanted{};
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_DGRAM;
    addrinfo* list = nullptr;
    const int error = getaddrinfo(name.c_str(), nullptr, &wanted, &list);
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> found(error == 0 ? list : nullptr,
                                                                   freeaddrinfo);
    if (!found) {
        return problem("The host " + name + " is not known.", gai_strerror(error));
    }
    sockaddr_in address{};
    std::memcpy(&address, found->ai_addr, sizeof address);
    return ntohl(address.sin_addr.s_addr);
}

}  // namespace tonquil
