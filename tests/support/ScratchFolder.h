// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace tonquil {

/// A new empty folder, deleted with this object together with its content.
class ScratchFolder {
 public:
    /// Ends the program if the temporary folder cannot be written.
    ScratchFolder() {
        auto pattern = (std::filesystem::temp_directory_path() / "tonquil-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            std::perror("No scratch folder can be made");
            std::abort();
        }
        _path = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return _path; }

 private:
    std::filesystem::path _path;
};

}  // namespace tonquil
