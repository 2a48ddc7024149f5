// SPDX-License-Identifier: MIT
#include "tests/support/ProcessRunner.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace tonquil {

namespace {

using SteadyClock = std::chrono::steady_clock;

FileDescriptor memoryFile(const std::string& content) {
    FileDescriptor file(memfd_create("tonquil", MFD_CLOEXEC));
    const auto size = static_cast<ssize_t>(content.size());
    if (file.get() >= 0 && (pwrite(file.get(), content.data(), content.size(), 0) != size ||
                            fcntl(file.get(), F_SETFL, content.empty() ? O_APPEND : 0) != 0)) {
        file.close();
    }
    return file;
}

std::string contentOf(const FileDescriptor& file) {
    struct stat status {};
    if (fstat(file.get(), &status) != 0) {
        return {};
    }
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    const auto count = pread(file.get(), content.data(), content.size(), 0);
    content.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return content;
}

std::vector<std::string> environmentFor(const ProcessRequest& request) {
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text(*entry);
        const std::string name = text.substr(0, text.find('='));
        if (!request.environment.contains(name) &&
            std::find(request.unset.begin(), request.unset.end(), name) == request.unset.end()) {
            result.push_back(text);
        }
    }
    for (const auto& [name, value] : request.environment) {
        std::string entry = name;
        entry.append("=").append(value);
        result.push_back(std::move(entry));
    }
    return result;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// Everything the child needs, made ready before the fork, after which it must not allocate.
struct Launch {
    std::vector<char*> arguments;
    std::vector<char*> environment;
    pid_t parent;
    std::array<int, 4> descriptors;  // -1 for one that stays as it is.
    int report;
};

[[noreturn]] void failInChild(int report) {
    const int reason = errno;
    (void)!write(report, &reason, sizeof(reason));
    _exit(127);
}

[[noreturn]] void becomeProgram(const Launch& launch) {
    // First out of the way of 0 to 3, so that no copy overwrites one still to be made.
    constexpr int outOfTheWay = 10;
    const int report = fcntl(launch.report, F_DUPFD_CLOEXEC, outOfTheWay);
    std::array<int, 4> moved{};
    for (std::size_t index = 0; index < moved.size(); ++index) {
        const int descriptor = launch.descriptors.at(index);
        moved.at(index) = descriptor < 0 ? -1 : fcntl(descriptor, F_DUPFD_CLOEXEC, outOfTheWay);
    }
    for (std::size_t index = 0; index < moved.size(); ++index) {
        if (launch.descriptors.at(index) >= 0 &&
            dup2(moved.at(index), static_cast<int>(index)) < 0) {
            failInChild(report);
        }
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != launch.parent) {
        _exit(127);  // The parent died before the line above.
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    execvpe(launch.arguments.front(), launch.arguments.data(), launch.environment.data());
    failInChild(report);
}

std::chrono::milliseconds remaining(SteadyClock::time_point deadline) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now());
    return std::max(rest, std::chrono::milliseconds::zero());
}

// The reason why the program could not be run, or 0 once it runs.
int reasonFrom(const FileDescriptor& report) {
    int reason = 0;
    ssize_t count = 0;
    do {
        count = read(report.get(), &reason, sizeof(reason));
    } while (count < 0 && errno == EINTR);
    return count == static_cast<ssize_t>(sizeof(reason)) ? reason : 0;
}

}  // namespace

BackgroundProcess::BackgroundProcess(pid_t pid, FileDescriptor handle, FileDescriptor output,
                                     FileDescriptor error)
    : _pid(pid), _handle(std::move(handle)), _output(std::move(output)), _error(std::move(error)) {}

BackgroundProcess::~BackgroundProcess() {
    kill();
}

Result<std::unique_ptr<BackgroundProcess>> BackgroundProcess::start(const ProcessRequest& request) {
    if (request.command.empty()) {
        return problem("There is no program to run.");
    }
    const std::string failure = "The program " + request.command.front() + " cannot be run.";
    const FileDescriptor input = memoryFile(request.standardInput);
    FileDescriptor output = memoryFile({});
    FileDescriptor error = memoryFile({});
    std::array<int, 2> ends{};
    if (input.get() < 0 || output.get() < 0 || error.get() < 0 ||
        pipe2(ends.data(), O_CLOEXEC) != 0) {
        return problem(failure, std::strerror(errno));
    }
    const FileDescriptor report(ends[0]);
    FileDescriptor reportEnd(ends[1]);
    auto arguments = request.command;
    auto environment = environmentFor(request);
    const Launch launch{
        pointersTo(arguments),
        pointersTo(environment),
        getpid(),
        {input.get(), output.get(), error.get(), request.thirdDescriptor.value_or(-1)},
        reportEnd.get()};
    const pid_t pid = fork();
    if (pid == 0) {
        becomeProgram(launch);
    }
    reportEnd.close();
    if (pid < 0) {
        return problem(failure, std::strerror(errno));
    }
    FileDescriptor handle(static_cast<int>(syscall(SYS_pidfd_open, pid, 0)));
    auto process = std::unique_ptr<BackgroundProcess>(
        new BackgroundProcess(pid, std::move(handle), std::move(output), std::move(error)));
    if (const int reason = reasonFrom(report); reason != 0) {
        return problem(failure, std::strerror(reason));
    }
    if (process->_handle.get() < 0) {
        return problem(failure, "The system gives no handle of the process.");
    }
    return process;
}

bool BackgroundProcess::isRunning() {
    using std::chrono::milliseconds;
    return !wait(milliseconds::zero()).has_value();
}

std::string BackgroundProcess::standardOutput() const {
    return contentOf(_output);
}

std::string BackgroundProcess::standardError() const {
    return contentOf(_error);
}

void BackgroundProcess::send(int signal) {
    // Until it has been waited for, its number cannot pass to another process.
    if (!_status) {
        ::kill(_pid, signal);
    }
}

ProcessResult BackgroundProcess::kill() {
    send(SIGKILL);
    int status = 0;
    while (!_status) {
        if (waitpid(_pid, &status, 0) == _pid) {
            _status = status;
        } else if (errno != EINTR) {
            _status = 0;
        }
    }
    return result();
}

std::optional<ProcessResult> BackgroundProcess::wait(std::chrono::milliseconds limit) {
    const auto deadline = SteadyClock::now() + limit;
    while (!_status) {
        int status = 0;
        if (waitpid(_pid, &status, WNOHANG) == _pid) {
            _status = status;
            break;
        }
        const auto rest = remaining(deadline);
        if (rest == std::chrono::milliseconds::zero()) {
            return std::nullopt;
        }
        pollfd ended{_handle.get(), POLLIN, 0};
        poll(&ended, 1, static_cast<int>(rest.count()));
    }
    return result();
}

bool BackgroundProcess::waitForOutput(std::string_view text, std::chrono::milliseconds limit) {
    constexpr auto lookEvery = std::chrono::milliseconds(5);
    const auto deadline = SteadyClock::now() + limit;
    while (standardOutput().find(text) == std::string::npos) {
        if (remaining(deadline) == std::chrono::milliseconds::zero()) {
            return false;
        }
        if (wait(lookEvery)) {
            // It may have written the text as the last thing it did.
            return standardOutput().find(text) != std::string::npos;
        }
    }
    return true;
}

ProcessResult BackgroundProcess::result() const {
    ProcessResult result;
    result.standardOutput = standardOutput();
    result.standardError = standardError();
    const int status = _status.value_or(0);
    if (WIFSIGNALED(status)) {
        result.signal = WTERMSIG(status);
    } else {
        result.exitStatus = WEXITSTATUS(status);
    }
    return result;
}

Result<ProcessResult> run(const ProcessRequest& request) {
    const auto process = BackgroundProcess::start(request);
    if (!process) {
        return tl::unexpected(process.error());
    }
    const auto result = (*process)->wait(request.limit);
    return result ? *result : (*process)->kill();
}

}  // namespace tonquil
