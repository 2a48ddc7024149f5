// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "foundation/Problem.h"

namespace tonquil {

/// Makes a folder and what is missing above it, each for its owner alone (mode 0700).
///
/// One that is there already stays as it is, and may be a symbolic link to a folder.
[[nodiscard]] Result<void> makeFolder(const std::filesystem::path& folder);

/// Makes a folder in a place where others may have put one first, as they can in /tmp.
///
/// One that is there already is refused unless it belongs to this user, is no symbolic link and
/// has mode 0700. What is above it must exist.
[[nodiscard]] Result<void> makeOwnFolder(const std::filesystem::path& folder);

}  // namespace tonquil
