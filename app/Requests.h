// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/desktop/TargetWindows.h"
#include "foundation/Problem.h"

namespace tonquil {

class TQController;

/// What another start of the program may ask of the one that runs.
struct Request {
    enum class Kind : std::uint8_t {
        Reopen,  ///< It was started without anything to do.
        Toggle,
        On,
        Off,
        ShowPanel,
        Preferences,
        Open,     ///< A settings file.
        Targets,  ///< Floating, or all over a display.
        Quit,
    };

    Kind kind = Kind::Reopen;
    /// Absolute; only of `Open`.
    std::filesystem::path file = {};

    /// Only of `Targets`: without a kind the one shown last, without a display the floating window.
    std::optional<TargetKind> target = {};
    std::string referenceID = {};

    bool operator==(const Request&) const = default;
};

/// What a command line asks for.
struct CommandLine {
    /// Never empty unless the help or the version is wanted.
    std::vector<Request> requests;
    bool wantsHelp = false;
    bool wantsVersion = false;
};

/// Reads a command line without the program's name; what is no option, or comes after "--", is a
/// file. The problem is
/// one of usage.
[[nodiscard]] Result<CommandLine> readCommandLine(std::span<const char* const> arguments);
[[nodiscard]] std::string commandLineHelp();

/// Requests as text, one a line, to hand them over to another process; and back. A file's name may
/// hold any bytes.
[[nodiscard]] std::string textFromRequests(const std::vector<Request>& requests);
[[nodiscard]] Result<std::vector<Request>> requestsFromText(std::string_view text);

/// Whether the program's end is among them.
[[nodiscard]] bool wantsEnd(const std::vector<Request>& requests);
/// Does what was asked.
void carryOut(const std::vector<Request>& requests, TQController& controller);

}  // namespace tonquil
