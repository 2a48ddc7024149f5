// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "colourfiles/ExportedTable.h"
#include "foundation/Problem.h"

namespace tonquil {

/// The parsed command-line arguments. Whether the command accepts each option is already checked.
struct Arguments {
    enum class Command {
        help,
        version,
        displays,
        apply,
        restore,
        read,
        table,
        exportTable,
        fit,
        remoteScan,
        remoteGet,
        remoteSet,
        remoteWatch
    };

    Command command = Command::help;
    bool json = false;
    bool hardware = false;
    /// Stay and keep the correction on the displays.
    bool hold = false;
    /// Reference IDs of the displays that are meant; empty for all.
    std::vector<std::string> displays = {};
    std::optional<std::string> curve = {};
    std::optional<std::string> file = {};
    std::optional<std::string> base = {};
    /// The name of a settings file in the folder of presets.
    std::optional<std::string> preset = {};
    /// Without a value the file's extension decides.
    std::optional<ExportFormat> format = {};
    std::uint32_t samples = 256;
    /// The host for a remote command; for a scan, none means the whole network.
    std::optional<std::string> host = {};
    /// The selected remote display.
    std::optional<std::string> referenceID = {};
    std::optional<std::string> content = {};
    /// How long a scan listens.
    std::chrono::milliseconds timeout{1000};
};

/// On invalid arguments, the problem says what is wrong.
[[nodiscard]] Result<Arguments> parseArguments(int argc, char* const* argv);

}  // namespace tonquil
