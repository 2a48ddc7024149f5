// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "remote/DatagramSocket.h"
#include "remote/RemoteMessages.h"

namespace tonquil {

/// Network access for the remote commands.
struct RemoteAccess {
    RunLoop& runLoop;
    /// Runs the event loop until `stop` is called from within it.
    std::function<void()> run;
    std::function<void()> stop;
    std::function<Result<std::unique_ptr<DatagramSocket>>()> openSocket;
    /// The IPv4 address of a host, first number in the highest byte.
    std::function<Result<std::uint32_t>(const std::string& name)> lookUpHost;
    /// Prints and flushes; false if that fails.
    std::function<bool(const std::string& text)> printNow;
    /// The port that servers listen on.
    std::uint16_t port = remote::serverPort;
};

}  // namespace tonquil
