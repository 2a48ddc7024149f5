// SPDX-License-Identifier: MIT
// Starts the program at login, from wherever this launcher is installed at that time.
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

/// The program in the launcher's own folder, or where it is installed from there; empty if there is
/// none.
std::string programNearUs() {
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    for (const char* place : {"tonquil", TONQUIL_PROGRAM_FROM_LAUNCHER}) {
        const auto program = (folder / place).lexically_normal();
        if (!error && ::access(program.c_str(), X_OK) == 0) {
            return program.native();
        }
    }
    return {};
}

}  // namespace

int main() {
    std::string name = "tonquil";
    const std::array<char*, 2> arguments = {name.data(), nullptr};
    if (const std::string program = programNearUs(); !program.empty()) {
        ::execv(program.c_str(), arguments.data());
    }
    ::execvp(name.c_str(), arguments.data());
    std::fprintf(stderr,
                 "tonquil-launcher: Tonquil could not be started: it is neither near the "
                 "launcher nor in PATH, or cannot be run (%s).\n",
                 std::strerror(errno));
    return EXIT_FAILURE;
}
