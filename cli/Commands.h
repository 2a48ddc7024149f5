// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "cli/Arguments.h"
#include "cli/RemoteAccess.h"
#include "foundation/Problem.h"
#include "screens/DisplayService.h"
#include "settings/PresetFolder.h"

namespace tonquil {

/// A command's dependencies and output.
struct CommandEnvironment {
    /// Opens the display service of this desktop.
    std::function<Result<std::unique_ptr<DisplayService>>()> openDisplays;
    /// The last line that the service logged.
    const std::string& logged;
    /// The command's output.
    std::string& out;
    /// Network access for the remote commands.
    const RemoteAccess& remote;
    /// Notes that are only shown if the command succeeds.
    std::string& notes;
    /// Opens the display service for a command that stays: on the run loop of `remote`, which it
    /// stops when the displays are lost.
    std::function<Result<std::unique_ptr<DisplayService>>()> openDisplaysToHold = {};
    /// Hands a request to the Tonquil that runs on this desktop; nothing where none does.
    std::function<std::optional<Result<void>>(const std::string& request)> handOver =
        [](const std::string&) { return std::nullopt; };
    /// The user's presets.
    PresetFolder presets = PresetFolder({});
    /// Whether the displays were lost meanwhile.
    std::function<bool()> areDisplaysLost = {};
    /// The names of the display services that are built in.
    std::string displayServices = {};
};

/// Runs a command. Invalid input is detected before any display is changed.
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
[[nodiscard]] Result<void> runExport(const Arguments& arguments,
                                     const CommandEnvironment& environment);
[[nodiscard]] Result<void> runFit(const Arguments& arguments,
                                  const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRemoteScan(const Arguments& arguments,
                                         const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRemoteGet(const Arguments& arguments,
                                        const CommandEnvironment& environment);
[[nodiscard]] Result<void> runRemoteSet(const Arguments& arguments,
                                        const CommandEnvironment& environment);
/// Returns when the access's `run` is stopped.
[[nodiscard]] Result<void> runRemoteWatch(const Arguments& arguments,
                                          const CommandEnvironment& environment);

}  // namespace tonquil
