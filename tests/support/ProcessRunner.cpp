// SPDX-License-Identifier: MIT
#include "tests/support/ProcessRunner.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace tonquil {

namespace {

using SteadyClock = std::chrono::steady_clock;

std::string contentOf(const FileDescriptor& file) {
    std::string content;
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = pread(file.get(), part.data(), part.size(),
                                           static_cast<off_t>(content.size()))) > 0;) {
        content.append(part.data(), static_cast<std::size_t>(count));
    }
    return content;
}

}  // namespace

BackgroundProcess::BackgroundProcess()
    : _output(memfd_create("output", MFD_CLOEXEC)), _error(memfd_create("error", MFD_CLOEXEC)) {}

Result<std::unique_ptr<BackgroundProcess>> BackgroundProcess::start(const ProcessRequest& request) {
    std::unique_ptr<BackgroundProcess> made(new BackgroundProcess);
    // `env` sets up the environment, and produces the exit status 127.
    std::vector<std::string> command{"env"};
    for (const auto& name : request.unset) {
        command.insert(command.end(), {"-u", name});
    }
    for (const auto& [name, value] : request.environment) {
        command.emplace_back(name).append("=").append(value);
    }
    command.insert(command.end(), request.command.begin(), request.command.end());
    // Everything is prepared before the fork, because the child must not allocate after it.
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (auto& text : command) {
        arguments.push_back(text.data());
    }
    arguments.push_back(nullptr);
    const FileDescriptor input(open("/dev/null", O_RDONLY | O_CLOEXEC));
    sigset_t none;
    sigemptyset(&none);
    const pid_t parent = getpid();
    made->_pid = fork();
    if (made->_pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        // The parent may have died before the death signal was requested.
        if (getppid() == parent && dup2(input.get(), 0) == 0 && dup2(made->_output.get(), 1) == 1 &&
            dup2(made->_error.get(), 2) == 2) {
            execvp(arguments.front(), arguments.data());
        }
        _exit(127);
    }
    if (made->_pid < 0) {
        made->_status = 0;
        return problem("No process can be started.", std::strerror(errno));
    }
    return made;
}

std::string BackgroundProcess::standardOutput() const {
    return contentOf(_output);
}

std::string BackgroundProcess::standardError() const {
    return contentOf(_error);
}

void BackgroundProcess::send(int signal) {
    // Until it has been waited for, its process ID cannot be reused.
    if (!_status) {
        ::kill(_pid, signal);
    }
}

ProcessResult BackgroundProcess::kill() {
    send(SIGKILL);
    return wait(std::chrono::minutes(1)).value();
}

std::optional<ProcessResult> BackgroundProcess::wait(std::chrono::milliseconds limit) {
    const auto deadline = SteadyClock::now() + limit;
    for (int status = 0; !_status; poll(nullptr, 0, 1)) {
        if (waitpid(_pid, &status, WNOHANG) == _pid) {
            _status = status;
            break;
        }
        if (SteadyClock::now() >= deadline) {
            return std::nullopt;
        }
    }
    return ProcessResult{standardOutput(), standardError(),
                         WIFEXITED(*_status) ? WEXITSTATUS(*_status) : -1};
}

bool BackgroundProcess::waitForOutput(std::string_view text, std::chrono::milliseconds limit) {
    const auto deadline = SteadyClock::now() + limit;
    for (bool goesOn = true; goesOn;) {
        goesOn = !wait(std::chrono::milliseconds(5)) && SteadyClock::now() < deadline;
        // Checked after the wait, because the program may write the text as its last action.
        if (standardOutput().find(text) != std::string::npos) {
            return true;
        }
    }
    return false;
}

Result<ProcessResult> run(const ProcessRequest& request) {
    return BackgroundProcess::start(request).map([](const auto& process) {
        return process->wait(std::chrono::minutes(1)).value_or(process->kill());
    });
}

}  // namespace tonquil
