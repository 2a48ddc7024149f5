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

/// The program to run.
struct ProcessRequest {
    /// The program, looked up in PATH if it has no slash, and its arguments.
    std::vector<std::string> command;
    /// Added to this program's environment, or overriding it.
    std::map<std::string, std::string> environment = {};
    /// Variables removed from the environment.
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

/// A program running in the background; killed with this object or with this program.
class BackgroundProcess {
 public:
    /// A program that cannot be executed ends with 127.
    [[nodiscard]] static Result<std::unique_ptr<BackgroundProcess>> start(
        const ProcessRequest& request);
    ~BackgroundProcess() { kill(); }
    BackgroundProcess(const BackgroundProcess&) = delete;
    BackgroundProcess& operator=(const BackgroundProcess&) = delete;

    [[nodiscard]] bool isRunning() { return !wait({}).has_value(); }
    /// The output so far.
    [[nodiscard]] std::string standardOutput() const;
    [[nodiscard]] std::string standardError() const;

    /// Sends a signal without waiting for its effect; does nothing once the program has ended.
    void send(int signal);
    /// Kills it at once (kill -9) and waits until it is gone.
    ProcessResult kill();
    /// Waits for it to end; nothing if it still runs after `limit`.
    [[nodiscard]] std::optional<ProcessResult> wait(std::chrono::milliseconds limit);
    /// Waits until its standard output contains `text`; returns false if it ends or `limit` passes
    /// first.
    [[nodiscard]] bool waitForOutput(std::string_view text, std::chrono::milliseconds limit);

 private:
    BackgroundProcess();

    pid_t _pid = -1;
    FileDescriptor _output;
    FileDescriptor _error;
    std::optional<int> _status;
};

/// Runs a program to its end; kills it after a minute.
[[nodiscard]] Result<ProcessResult> run(const ProcessRequest& request);

}  // namespace tonquil
