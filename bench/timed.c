// SPDX-License-Identifier: MIT
// Times whole programs: timed ROUNDS -- COMMAND... [-- COMMAND...]...
//
// Runs all commands in turn, ROUNDS times after a tenth as many warm-up rounds, so that a temporary
// slowdown of the machine affects all of them alike. Prints one line per command, in order: the
// medians of the CPU time (user and system, milliseconds), the wall time (milliseconds) and the
// peak memory (KiB), and the number of failed runs, separated by tabs.
#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

enum { mostCommands = 32 };

struct Command {
    char** arguments;
    double *cpu, *wall, *memory;
    int failures;
};

static double milliseconds(struct timeval time) {
    return (double)time.tv_sec * 1e3 + (double)time.tv_usec / 1e3;
}

static double now(void) {
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (double)time.tv_sec * 1e3 + (double)time.tv_nsec / 1e6;
}

static void runOnce(struct Command* command, int round) {
    const double start = now();
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, 0);
        dup2(nowhere, 1);
        dup2(nowhere, 2);
        execvp(command->arguments[0], command->arguments);
        _exit(127);
    }
    int status = 0;
    struct rusage usage;
    while (child < 0 || wait4(child, &status, 0, &usage) < 0) {
        if (child < 0 || errno != EINTR) {
            perror("timed");
            exit(1);
        }
    }
    if (round < 0) {
        return;
    }
    command->wall[round] = now() - start;
    command->cpu[round] = milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
    command->memory[round] = (double)usage.ru_maxrss;
    command->failures += !WIFEXITED(status) || WEXITSTATUS(status) != 0;
}

static int ascending(const void* a, const void* b) {
    const double x = *(const double*)a;
    const double y = *(const double*)b;
    return (x > y) - (x < y);
}

static double median(double* values, int count) {
    qsort(values, (size_t)count, sizeof *values, ascending);
    return (values[(count - 1) / 2] + values[count / 2]) / 2;
}

// Splits the arguments at each "--" in place; the first argument is a "--".
static int split(int argc, char** argv, struct Command* commands, int rounds) {
    int count = 0;
    for (int i = 0; i < argc; ++i) {
        if (strcmp(argv[i], "--") != 0) {
            continue;
        }
        argv[i] = NULL;
        if (i + 1 == argc || count == mostCommands) {
            return 0;
        }
        commands[count++] = (struct Command){.arguments = argv + i + 1,
                                             .cpu = calloc((size_t)rounds, sizeof(double)),
                                             .wall = calloc((size_t)rounds, sizeof(double)),
                                             .memory = calloc((size_t)rounds, sizeof(double))};
    }
    return count;
}

int main(int argc, char** argv) {
    struct Command commands[mostCommands];
    const int rounds = argc > 3 && strcmp(argv[2], "--") == 0 ? atoi(argv[1]) : 0;
    const int count = rounds > 0 ? split(argc - 2, argv + 2, commands, rounds) : 0;
    if (count == 0) {
        fprintf(stderr, "usage: timed ROUNDS -- COMMAND... [-- COMMAND...]...\n");
        return 2;
    }
    for (int round = -(rounds / 10) - 1; round < rounds; ++round) {
        for (int i = 0; i < count; ++i) {
            runOnce(&commands[i], round);
        }
    }
    for (int i = 0; i < count; ++i) {
        printf("%.3f\t%.3f\t%.0f\t%d\n", median(commands[i].cpu, rounds),
               median(commands[i].wall, rounds), median(commands[i].memory, rounds),
               commands[i].failures);
    }
    return 0;
}
