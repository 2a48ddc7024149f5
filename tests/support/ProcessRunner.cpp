// SPDX-License-Identifier: MIT
#include "tests/support/ProcessRunner.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace tonquil {

namespace {

using SteadyClock = std::chrono::steady_clock;

// Of which the program's own offset says nothing: what is written goes to the end.
FileDescriptor memoryFile() {
    FileDescriptor file(memfd_create("tonquil", MFD_CLOEXEC));
    fcntl(file.get(), F_SETFL, O_APPEND);
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

}  // namespace

BackgroundProcess::BackgroundProcess(pid_t pid, FileDescriptor output, FileDescriptor error)
    : _pid(pid), _output(std::move(output)), _error(std::move(error)) {}

BackgroundProcess::~BackgroundProcess() {
    kill();
}

Result<std::unique_ptr<BackgroundProcess>> BackgroundProcess::start(const ProcessRequest& request) {
    const FileDescriptor input(open("/dev/null", O_RDONLY | O_CLOEXEC));
    FileDescriptor output = memoryFile();
    FileDescriptor error = memoryFile();
    // All is made ready before the fork, after which the child must not allocate.
    auto arguments = request.command;
    auto environment = environmentFor(request);
    const auto argumentPointers = pointersTo(arguments);
    const auto environmentPointers = pointersTo(environment);
    sigset_t none;
    sigemptyset(&none);
    const pid_t parent = getpid();
    const pid_t pid = fork();
    if (pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        // The parent may have died before it was asked for its death.
        if (getppid() == parent && dup2(input.get(), 0) == 0 && dup2(output.get(), 1) == 1 &&
            dup2(error.get(), 2) == 2) {
            execvpe(argumentPointers.front(), argumentPointers.data(), environmentPointers.data());
        }
        _exit(127);
    }
    if (pid < 0) {
        return problem("No process can be started.", std::strerror(errno));
    }
    return std::unique_ptr<BackgroundProcess>(
        new BackgroundProcess(pid, std::move(output), std::move(error)));
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
        if (SteadyClock::now() >= deadline) {
            return std::nullopt;
        }
        poll(nullptr, 0, 1);
    }
    return result();
}

bool BackgroundProcess::waitForOutput(std::string_view text, std::chrono::milliseconds limit) {
    constexpr auto lookEvery = std::chrono::milliseconds(5);
    const auto deadline = SteadyClock::now() + limit;
    while (standardOutput().find(text) == std::string::npos) {
        if (SteadyClock::now() >= deadline) {
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
