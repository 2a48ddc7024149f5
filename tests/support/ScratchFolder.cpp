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
    m_path = pattern;
}

ScratchFolder::~ScratchFolder() {
    if (!m_path.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
}

ScratchFolder::ScratchFolder(ScratchFolder&& other) noexcept
    : m_path(std::exchange(other.m_path, std::filesystem::path())) {}

}  // namespace tonquil
