// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "foundation/Problem.h"

namespace tonquil {

/// How a file is saved.
struct AtomicFileOptions {
    /// The file's final permission bits, regardless of the umask. Without a value, an existing
    /// file's permissions (and, where allowed, its owner and group) are kept and a new file follows
    /// the umask.
    std::optional<mode_t> mode = 0600;
    /// Whether to wait until the data is on the disk, so that a power failure loses nothing.
    /// Without it the file survives a crash of the program, but perhaps not of the machine.
    bool isFlushed = true;

    /// For documents that a user saves: permissions as any editor would leave them.
    [[nodiscard]] static AtomicFileOptions document() { return {.mode = std::nullopt}; }
};

/// Saves `contents` to `target`. At any moment, even if the program or the machine crashes
/// half-way, the file is either the old one or the complete new one.
///
/// The bytes are written to `.<name>.tonquil-new` in the same folder, flushed if requested, and
/// that file is renamed over the target. A temporary file left by a crashed program is removed;
/// while another program is still writing its own, saving is refused. A symbolic link is kept and
/// the file it points to, existing or not, is saved. An existing target must be a regular file that
/// the user may write to.
///
/// On failure the temporary file is removed, and the sentence says that the old file was kept.
[[nodiscard]] Result<void> writeFileAtomically(const std::filesystem::path& target,
                                               std::span<const std::uint8_t> contents,
                                               const AtomicFileOptions& options = {});

}  // namespace tonquil
