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

}  // namespace tonquil
