// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <csignal>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Problem.h"
#include "tests/support/FileDescriptor.h"

namespace tonquil {

/// What to run.
struct ProcessRequest {
    /// The program, looked up in PATH when it has no slash, and its arguments.
    std::vector<std::string> command;
    /// Added to the environment of this program, or replacing what it holds.
    std::map<std::string, std::string> environment = {};
    /// Names taken out of the environment.
    std::vector<std::string> unset = {};
};

/// How a program ended.
struct ProcessResult {
    std::string standardOutput;
    std::string standardError;
    /// The exit status, or -1 when a signal ended the program.
    int exitStatus = -1;

    [[nodiscard]] bool succeeded() const { return exitStatus == 0; }
};

/// A program running beside this one; it is killed with this object or with this program.
class BackgroundProcess {
 public:
    /// A program that cannot be run ends with 127.
    [[nodiscard]] static Result<std::unique_ptr<BackgroundProcess>> start(
        const ProcessRequest& request);
    ~BackgroundProcess() { kill(); }
    BackgroundProcess(const BackgroundProcess&) = delete;
    BackgroundProcess& operator=(const BackgroundProcess&) = delete;

    [[nodiscard]] bool isRunning() { return !wait({}).has_value(); }
    /// What it has written so far.
    [[nodiscard]] std::string standardOutput() const;
    [[nodiscard]] std::string standardError() const;

    /// Sends a signal, without waiting for what it does; nothing once the program has ended.
    void send(int signal);
    /// Ends it at once (kill -9) and waits until it is gone.
    ProcessResult kill();
    /// Waits for its end; nothing when it still runs after `limit`.
    [[nodiscard]] std::optional<ProcessResult> wait(std::chrono::milliseconds limit);
    /// Waits until its standard output holds `text`; false when it ends or `limit` passes first.
    [[nodiscard]] bool waitForOutput(std::string_view text, std::chrono::milliseconds limit);

 private:
    BackgroundProcess();

    pid_t _pid = -1;
    FileDescriptor _output;
    FileDescriptor _error;
    std::optional<int> _status;
};

/// Runs a program to its end; one that runs for a minute is killed.
[[nodiscard]] Result<ProcessResult> run(const ProcessRequest& request);

}  // namespace tonquil
