// SPDX-License-Identifier: MIT
#include "program/ProgramEnvironment.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace tonquil {

void logLine(std::string_view line) {
    std::fprintf(stderr, "tonquil: %.*s\n", static_cast<int>(line.size()), line.data());
}

void report(const Problem& problem) {
    logLine(problem.sentence);
    if (!problem.detail.empty()) {
        logLine(problem.detail);
    }
}

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

std::string instanceName() {
    std::string name = "instance-";
    std::string display = environment("DISPLAY");
    // The screen behind the point is another face of the same display.
    display.erase(std::min(display.find('.', display.rfind(':')), display.size()));
    for (const char c : display.empty() ? environment("WAYLAND_DISPLAY") : display) {
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    }
    return name;
}

std::filesystem::path programFile() {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown);
}

std::filesystem::path launcherFile() {
    const auto folder = programFile().parent_path();
    std::error_code unknown;
    if (auto built = folder / "tonquil-launcher"; std::filesystem::exists(built, unknown)) {
        return built;
    }
    return (folder / TONQUIL_LAUNCHER_FROM_PROGRAM).lexically_normal();
}

}  // namespace tonquil
