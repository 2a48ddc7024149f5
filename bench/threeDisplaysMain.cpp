// SPDX-License-Identifier: MIT
// Runs a command with DISPLAY naming a private X server of three displays.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "bench/ThreeDisplays.h"

namespace {

constexpr int notRun = 127;

int run(char** command) {
    const pid_t child = fork();
    if (child < 0) {
        std::perror("fork");
        return notRun;
    }
    if (child == 0) {
        execvp(command[0], command);
        std::perror(command[0]);
        _exit(notRun);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : notRun;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: three_displays COMMAND [ARGUMENT]...\n", stderr);
        return 2;
    }
    const auto server = tonquil::startThreeDisplays();
    if (!server) {
        std::fprintf(stderr, "three_displays: %s (%s)\n", server.error().sentence.c_str(),
                     server.error().detail.c_str());
        return 1;
    }
    setenv("DISPLAY", (*server)->display().c_str(), 1);  // NOLINT(concurrency-mt-unsafe)
    return run(argv + 1);
}
