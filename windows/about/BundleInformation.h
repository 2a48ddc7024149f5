// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tonquil {

/// What the program is told of itself when it is put together.
struct BundleInformation {
    /// The program's file, after which it is named where it has no name.
    std::filesystem::path path;
    std::optional<std::string> name{};
    std::string shortVersion;
    std::string build;
    std::optional<std::string> copyright{};
};

}  // namespace tonquil
