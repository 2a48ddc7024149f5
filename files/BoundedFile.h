// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "foundation/Problem.h"

namespace tonquil {

/// What a file begins with.
struct FileBeginning {
    std::vector<std::uint8_t> bytes;
    /// Whether the file ends there.
    bool isWhole = true;
};

/// Reads a regular file up to `mostBytes` bytes; what comes after them does no harm. Refuses what
/// `readBoundedFile` refuses, except a file that is too large.
[[nodiscard]] Result<FileBeginning> readFileBeginning(const std::filesystem::path& path,
                                                      std::size_t mostBytes);

/// The problem of a file of more than `mostBytes` bytes.
[[nodiscard]] tl::unexpected<Problem> fileTooLarge(const std::filesystem::path& path,
                                                   std::size_t mostBytes);

/// Reads a whole regular file of at most `mostBytes` bytes.
///
/// Symbolic links are followed. A folder, device, pipe or socket is refused at once and never
/// waited for. The size that the file claims plays no part: a file that grows while it is read is
/// held to the same limit. Each failure has a sentence of its own that names the file.
[[nodiscard]] Result<std::vector<std::uint8_t>> readBoundedFile(const std::filesystem::path& path,
                                                                std::size_t mostBytes);

}  // namespace tonquil
