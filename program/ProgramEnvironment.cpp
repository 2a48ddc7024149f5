// SPDX-License-Identifier: MIT
#include "program/ProgramEnvironment.h"

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
