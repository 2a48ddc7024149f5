// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "tests/support/ScratchFolder.h"

namespace tonquil {

[[nodiscard]] inline std::filesystem::path operator/(const ScratchFolder& folder,
                                                     const std::filesystem::path& name) {
    return folder.path() / name;
}

[[nodiscard]] inline std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void putContents(const std::filesystem::path& path, std::string_view contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

/// Number of entries in a folder, including hidden ones.
[[nodiscard]] inline std::ptrdiff_t entriesIn(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder),
                         std::filesystem::directory_iterator());
}

}  // namespace tonquil
