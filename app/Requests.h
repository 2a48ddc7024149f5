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
#include "screens/HandedCurves.h"

namespace tonquil {

class TQController;

/// A request that a second start of the program can send to the running instance.
struct Request {
    enum class Kind : std::uint8_t {
        Reopen,  ///< Started without arguments.
        Toggle,
        On,
        Off,
        ShowPanel,
        Preferences,
        Open,     ///< A settings file.
        Preset,   ///< A settings file of the folder of presets.
        Targets,  ///< Floating, or covering a display.
        Curves,   ///< For displays by their connectors, from tonquilctl.
        Quit,
    };

    Kind kind = Kind::Reopen;
    /// Absolute; only for `Open`.
    std::filesystem::path file = {};

    /// Only for `Targets`: without a kind the last one shown, without a display the floating
    /// window.
    std::optional<TargetKind> target = {};
    std::string referenceID = {};
    /// Only for `Preset`.
    std::string preset = {};
    /// Only for `Curves`.
    HandedCurves curves = {};

    bool operator==(const Request&) const = default;
};

/// The parsed command-line arguments.
struct CommandLine {
    /// Only empty if help or version is wanted.
    std::vector<Request> requests;
    bool wantsHelp = false;
    bool wantsVersion = false;
};

/// Parses the command-line arguments without the program name; anything that is not an option, or
/// comes after "--", is a file. The problem is a usage error.
[[nodiscard]] Result<CommandLine> readCommandLine(std::span<const char* const> arguments);
[[nodiscard]] std::string commandLineHelp();

/// Serialises requests as text, one per line, to send to another process; and parses them. A file
/// name may contain any bytes.
[[nodiscard]] std::string textFromRequests(const std::vector<Request>& requests);
[[nodiscard]] Result<std::vector<Request>> requestsFromText(std::string_view text);

/// Whether the program is to quit.
[[nodiscard]] bool wantsEnd(const std::vector<Request>& requests);
/// Carries out the requests; returns what could not be done, a sentence, or nothing.
std::string carryOut(const std::vector<Request>& requests, TQController& controller);

}  // namespace tonquil
