// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "foundation/Problem.h"

namespace tonquil {

/// Where the program keeps its files, by the XDG base directory rules.
///
/// A variable that is empty or holds a relative path counts as not set, as the rules ask.
class XdgFolders {
 public:
    /// Fails for a person who has no home, neither in HOME nor among the system's users.
    [[nodiscard]] static Result<XdgFolders> fromEnvironment();

    /// Settings: $XDG_CONFIG_HOME/tonquil, else ~/.config/tonquil. May not exist yet.
    [[nodiscard]] const std::filesystem::path& config() const { return _config; }
    /// What a run leaves to the next: $XDG_STATE_HOME/tonquil, else ~/.local/state/tonquil. May
    /// not exist yet.
    [[nodiscard]] const std::filesystem::path& state() const { return _state; }

    /// Sockets and locks of running programs: $XDG_RUNTIME_DIR/tonquil, else tonquil-<user number>
    /// in the folder for temporary files, as also where the variable names a missing folder.
    ///
    /// Makes it, and refuses one that others could have a hand in.
    [[nodiscard]] Result<std::filesystem::path> makeRuntime() const;

 private:
    std::filesystem::path _config;
    std::filesystem::path _state;
    std::filesystem::path _runtime;
};

}  // namespace tonquil
