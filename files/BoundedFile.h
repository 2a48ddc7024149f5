// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "foundation/Problem.h"

namespace tonquil {

/// The first bytes of a file.
struct FileBeginning {
    std::vector<std::uint8_t> bytes;
    /// Whether `bytes` is the whole file.
    bool isWhole = true;
};

/// Reads at most the first `mostBytes` bytes of a regular file; the rest is ignored. Refuses what
/// `readBoundedFile` refuses, except a file that is too large.
[[nodiscard]] Result<FileBeginning> readFileBeginning(const std::filesystem::path& path,
                                                      std::size_t mostBytes);

/// The problem for a file of more than `mostBytes` bytes.
[[nodiscard]] tl::unexpected<Problem> fileTooLarge(const std::filesystem::path& path,
                                                   std::size_t mostBytes);

/// Reads a whole regular file of at most `mostBytes` bytes.
///
/// Follows symbolic links. A folder, device, pipe or socket is refused immediately, without
/// blocking. The reported file size is not trusted: a file that grows during the read is held to
/// the same limit. Each failure has its own sentence, which names the file.
[[nodiscard]] Result<std::vector<std::uint8_t>> readBoundedFile(const std::filesystem::path& path,
                                                                std::size_t mostBytes);

}  // namespace tonquil
