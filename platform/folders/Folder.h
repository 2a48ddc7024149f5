// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "foundation/Problem.h"

namespace tonquil {

/// Creates a folder and its missing parents, each for its owner alone (mode 0700).
///
/// An existing one stays as it is, and may be a symbolic link to a folder.
[[nodiscard]] Result<void> makeFolder(const std::filesystem::path& folder);

/// Creates a folder in a place where others may have created one first, as in /tmp.
///
/// Refuses an existing one unless it belongs to this user, is no symbolic link and has mode 0700.
/// Its parent must exist.
[[nodiscard]] Result<void> makeOwnFolder(const std::filesystem::path& folder);

}  // namespace tonquil
