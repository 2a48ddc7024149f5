// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "foundation/Problem.h"

namespace tonquil {

/// The locations of the program's files, by the XDG base directory rules.
///
/// A variable that is empty or holds a relative path counts as not set, as the rules require.
class XdgFolders {
 public:
    /// Fails for a user without a home folder, both in HOME and in the user database.
    [[nodiscard]] static Result<XdgFolders> fromEnvironment();

    /// Settings: $XDG_CONFIG_HOME/tonquil, else ~/.config/tonquil. May not exist yet.
    [[nodiscard]] const std::filesystem::path& config() const { return _config; }
    /// State kept between runs: $XDG_STATE_HOME/tonquil, else ~/.local/state/tonquil. May not exist
    /// yet.
    [[nodiscard]] const std::filesystem::path& state() const { return _state; }

    /// Sockets and locks of running programs: $XDG_RUNTIME_DIR/tonquil, else tonquil-<user number>
    /// in the folder for temporary files, also if the variable names a missing folder.
    ///
    /// May not exist yet, and be anybody's.
    [[nodiscard]] const std::filesystem::path& runtime() const { return _runtime; }
    /// Creates it, and refuses one that others could have tampered with.
    [[nodiscard]] Result<std::filesystem::path> makeRuntime() const;

 private:
    std::filesystem::path _config;
    std::filesystem::path _state;
    std::filesystem::path _runtime;
};

}  // namespace tonquil
