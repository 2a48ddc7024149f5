// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "cli/Arguments.h"
#include "cli/RemoteAccess.h"
#include "foundation/Problem.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// What a command works with.
struct CommandEnvironment {
    /// Opens the display service of this desktop.
    std::function<Result<std::unique_ptr<DisplayService>>()> openDisplays;
    /// What the service logged last.
    const std::string& logged;
    /// What the command prints.
    std::string& out;
    /// What the remote commands talk through.
    const RemoteAccess& remote;
    /// Remarks that are of interest only if the command succeeds.
    std::string& notes;
    /// Opens the display service for a command that stays: on the run loop of `remote`, which it
    /// stops when the displays are lost.
    std::function<Result<std::unique_ptr<DisplayService>>()> openDisplaysToHold = {};
    /// Whether the displays were lost meanwhile.
    std::function<bool()> areDisplaysLost = {};
};

/// Carries out a command. A fault in what it was given is found before any display is changed.
[[nodiscard]] Result<void> runCommand(const Arguments& arguments,
                                      const CommandEnvironment& environment);

[[nodiscard]] Result<void> runDisplays(const Arguments& arguments,
                                       const CommandEnvironment& environment);
[[nodiscard]] Result<void> runApply(const Arguments& arguments,
                                    const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRestore(const Arguments& arguments,
                                      const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRead(const Arguments& arguments,
                                   const CommandEnvironment& environment);
[[nodiscard]] Result<void> runTable(const Arguments& arguments,
                                    const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRemoteScan(const Arguments& arguments,
                                         const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRemoteGet(const Arguments& arguments,
                                        const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRemoteSet(const Arguments& arguments,
                                        const CommandEnvironment& environment);
/// Ends when the access's `run` is stopped.
[[nodiscard]] Result<void> runRemoteWatch(const Arguments& arguments,
                                          const CommandEnvironment& environment);

}  // namespace tonquil
