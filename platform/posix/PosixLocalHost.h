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

/// This computer, as described by POSIX and, if present, systemd's files.
class PosixLocalHost final : public LocalHost {
 public:
    /// `machineInfo` is the file that may contain the user's name for the computer.
    explicit PosixLocalHost(std::filesystem::path machineInfo = "/etc/machine-info")
        : _machineInfo(std::move(machineInfo)) {}

    /// PRETTY_HOSTNAME from the file; the host name if that is missing or empty.
    [[nodiscard]] std::string localizedName() const override;
    [[nodiscard]] std::optional<HardwareAddress> hardwareAddress() const override;
    [[nodiscard]] bool hasAddress(std::uint32_t host) const override;
    /// Based on the interfaces as of at most a second ago.
    [[nodiscard]] bool isBroadcastAddress(std::uint32_t host) const override;

 private:
    std::filesystem::path _machineInfo;
    mutable std::vector<std::uint32_t> _broadcasts;
    mutable std::optional<std::chrono::steady_clock::time_point> _broadcastsRead;
};

/// The IPv4 address of a host by name or dotted numbers, first number in the highest byte. Blocks
/// on the name service. Fails if there is none.
[[nodiscard]] Result<std::uint32_t> lookUpHost(const std::string& name);

}  // namespace tonquil
