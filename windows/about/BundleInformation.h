// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tonquil {

/// What the build tells the program about itself.
struct BundleInformation {
    /// The executable; its file name is the fallback for a missing program name.
    std::filesystem::path path;
    std::optional<std::string> name{};
    std::string shortVersion;
    std::string build;
    std::optional<std::string> copyright{};
};

}  // namespace tonquil
