// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "files/FileHandle.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Tells when a file was written, replaced, renamed or removed, also by its own program.
///
/// It is the folder that is watched, so the file need not exist; through a symbolic link nothing
/// is seen but the link. When the folder goes, the watch goes over to one that has taken its place
/// at once, else ends until it is renewed.
class FileWatch {
 public:
    /// Calls `changed` once for what had happened since the last call. `runLoop` must outlive it.
    FileWatch(RunLoop& runLoop, const std::filesystem::path& file, std::function<void()> changed);

    /// Watches the folder that has the path now, if it is another one than before.
    [[nodiscard]] Result<void> renew();

 private:
    void receive();
    /// Whether one of the events is about the file. `hasGone` tells that the folder has.
    [[nodiscard]] bool concernsFile(const char* events, std::size_t size, bool& hasGone) const;

    std::filesystem::path _folder;
    std::string _name;
    std::function<void()> _changed;
    FileHandle _inotify;
    int _watch = -1;
    std::unique_ptr<RunLoop::Handle> _readable;
};

}  // namespace tonquil
