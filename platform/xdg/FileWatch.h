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

/// Reports when a file was written, replaced, renamed or removed, including by its own program.
///
/// It watches the folder, so the file need not exist; for a symbolic link only changes of the link
/// itself are seen. If the folder or one above it is removed or renamed, the watch moves to its
/// replacement. While there is nothing to watch, it polls every five seconds.
class FileWatch {
 public:
    /// Calls `changed` once for changes within a moment, and at most twice a second. `runLoop` must
    /// outlive it.
    FileWatch(RunLoop& runLoop, const std::filesystem::path& file, std::function<void()> changed);

    /// Watches the folder now at the path, if it is a different one than before.
    [[nodiscard]] Result<void> renew();

 private:
    /// Identifies a version of the file.
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
    /// Whether one of the events is about the file. `hasGone` is set if a folder has gone.
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
    /// Watches of the folders above, which only report that they go.
    std::vector<int> _above;
    std::unique_ptr<RunLoop::Handle> _readable;
    /// Set while a change is to be reported.
    std::unique_ptr<RunLoop::Handle> _telling;
    RunLoop::Clock::time_point _nextTelling{};
    /// Set while nothing can be watched.
    std::unique_ptr<RunLoop::Handle> _looking;
    Stamp _seen;
};

}  // namespace tonquil
