// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace tonquil {

/// A new empty folder that is deleted with this object, whatever it holds by then.
class ScratchFolder {
 public:
    /// Ends the program if the system's folder for temporary files cannot be written.
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(ScratchFolder&& other) noexcept;
    ScratchFolder& operator=(ScratchFolder&& other) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return _path; }

 private:
    std::filesystem::path _path;
};

}  // namespace tonquil
