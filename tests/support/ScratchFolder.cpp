// SPDX-License-Identifier: MIT
#include "tests/support/ScratchFolder.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>
#include <utility>

namespace tonquil {

ScratchFolder::ScratchFolder() {
    std::error_code error;
    auto pattern = (std::filesystem::temp_directory_path(error) / "tonquil-XXXXXX").string();
    if (error || mkdtemp(pattern.data()) == nullptr) {
        std::perror("No scratch folder can be made");
        std::abort();
    }
    _path = pattern;
}

ScratchFolder::~ScratchFolder() {
    if (!_path.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
}

ScratchFolder::ScratchFolder(ScratchFolder&& other) noexcept
    : _path(std::exchange(other._path, std::filesystem::path())) {}

}  // namespace tonquil
