// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "foundation/Problem.h"
#include "remote/LocalHost.h"

namespace tonquil {

/// This computer, as a POSIX system with systemd's files, if they are there, describes it.
class PosixLocalHost final : public LocalHost {
 public:
    /// `machineInfo` is the file in which the user's name for the computer may be.
    explicit PosixLocalHost(std::filesystem::path machineInfo = "/etc/machine-info")
        : _machineInfo(std::move(machineInfo)) {}

    /// The PRETTY_HOSTNAME of the file; where that is missing or empty, the host name.
    [[nodiscard]] std::string localizedName() const override;
    [[nodiscard]] std::optional<HardwareAddress> hardwareAddress() const override;
    [[nodiscard]] bool hasAddress(std::uint32_t host) const override;
    /// By what the interfaces were at most a second ago.
    [[nodiscard]] bool isBroadcastAddress(std::uint32_t host) const override;

 private:
    std::filesystem::path _machineInfo;
    mutable std::vector<std::uint32_t> _broadcasts;
    mutable std::optional<std::chrono::steady_clock::time_point> _broadcastsRead;
};

/// The IPv4 address of a host by name or dotted numbers, first number in the highest byte. Waits
/// for the name service. A problem where there is none.
[[nodiscard]] Result<std::uint32_t> lookUpHost(const std::string& name);

}  // namespace tonquil
