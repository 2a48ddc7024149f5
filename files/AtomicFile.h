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
    /// The permission bits that the file has afterwards, whatever the umask. Nothing keeps those
    /// (and, where allowed, the owner and group) of an older file, else leaves it to the umask.
    std::optional<mode_t> mode = 0600;
    /// Whether to wait until the disk has it, so that a power failure takes nothing. Without it
    /// the file outlives the program's crash, but perhaps not the machine's.
    bool isFlushed = true;

    /// For documents that a person chose the place of: permissions as any editor would leave them.
    [[nodiscard]] static AtomicFileOptions document() { return {.mode = std::nullopt}; }
};

/// Saves `contents` as the file `target`, which at every moment, also if the program or the
/// machine stops half-way, is either the older file or the whole new one.
///
/// The bytes go to `.<name>.tonquil-new` in the same folder, onto the disk, and then take the
/// place of the target. One that a stopped program left behind is removed; while another program
/// is still writing its own, saving is refused. A symbolic link stays and the file it leads to, or
/// would lead to, is saved. An existing target must be a regular file that the user may write to.
///
/// On failure nothing of the new file remains, and the sentence says that the older one was kept.
[[nodiscard]] Result<void> writeFileAtomically(const std::filesystem::path& target,
                                               std::span<const std::uint8_t> contents,
                                               const AtomicFileOptions& options = {});

}  // namespace tonquil
