// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "foundation/Problem.h"

namespace tonquil {

/// Reads a whole regular file of at most `mostBytes` bytes.
///
/// Symbolic links are followed. A folder, device, pipe or socket is refused at once and never
/// waited for. The size that the file claims is only a reason to refuse: a file that grows while it
/// is read, or that claims no size at all, is held to the same limit. Each failure has a sentence
/// of its own that names the file.
[[nodiscard]] Result<std::vector<std::uint8_t>> readBoundedFile(const std::filesystem::path& path,
                                                                std::size_t mostBytes);

}  // namespace tonquil
