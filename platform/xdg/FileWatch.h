// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "files/FileHandle.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Tells when a file was written, replaced, renamed or removed, also by its own program.
///
/// It is the folder that is watched, so the file need not exist; through a symbolic link nothing
/// is seen but the link. When the folder goes, or one above it, the watch goes over to what has
/// taken its place. While there is nothing that can be watched, it looks every five seconds.
class FileWatch {
 public:
    /// Calls `changed` once for what happened within a moment, and at most twice a second.
    /// `runLoop` must outlive it.
    FileWatch(RunLoop& runLoop, const std::filesystem::path& file, std::function<void()> changed);

    /// Watches the folder that has the path now, if it is another one than before.
    [[nodiscard]] Result<void> renew();

 private:
    /// What tells one state of the file from another.
    struct Stamp {
        bool exists = false;
        dev_t device = 0;
        ino_t node = 0;
        off_t size = 0;
        std::int64_t modified = 0;
        std::int64_t changed = 0;

        bool operator==(const Stamp&) const = default;
    };

    void receive();
    /// Whether one of the events is about the file. `hasGone` tells that a folder has.
    [[nodiscard]] bool concernsFile(const char* events, std::size_t size, bool& hasGone) const;
    void watchFoldersAbove();
    void tellSoon();
    void look();
    [[nodiscard]] Stamp stampNow() const;

    RunLoop& _runLoop;
    std::filesystem::path _file;
    std::filesystem::path _folder;
    std::function<void()> _changed;
    FileHandle _inotify;
    int _watch = -1;
    /// Of the folders above, which only tell that they go.
    std::vector<int> _above;
    std::unique_ptr<RunLoop::Handle> _readable;
    /// While something is to be told.
    std::unique_ptr<RunLoop::Handle> _telling;
    RunLoop::Clock::time_point _nextTelling{};
    /// While nothing can be watched.
    std::unique_ptr<RunLoop::Handle> _looking;
    Stamp _seen;
};

}  // namespace tonquil
