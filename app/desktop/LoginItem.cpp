// SPDX-License-Identifier: MIT
#include "app/desktop/LoginItem.h"

#include <algorithm>
#include <array>

namespace tonquil {

namespace {

namespace fs = std::filesystem;

bool isBelow(const fs::path& path, const fs::path& folder) {
    const auto ends = std::ranges::mismatch(folder, path);
    return ends.in1 == folder.end() && ends.in2 != path.end();
}

}  // namespace

bool isInstalledReliably(const fs::path& program, const fs::path& home) {
    const fs::path path = program.lexically_normal();
    if (path.native().find("/Applications/") != std::string::npos) {
        return true;
    }
    const std::array<fs::path, 2> system = {"/usr", "/opt"};
    const std::array<fs::path, 2> own = {home / ".local", home / "Applications"};
    const auto holds = [&path](const fs::path& folder) { return isBelow(path, folder); };
    return std::ranges::any_of(system, holds) || (!home.empty() && std::ranges::any_of(own, holds));
}

}  // namespace tonquil
