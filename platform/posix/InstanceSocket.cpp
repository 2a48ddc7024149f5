// SPDX-License-Identifier: MIT
#include "platform/posix/InstanceSocket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

#include "files/FileHandle.h"
#include "platform/posix/InstanceService.h"

namespace tonquil {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

std::string systemsWords() {
    return std::generic_category().message(errno);
}

Result<sockaddr_un> addressOf(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // The path must be zero-terminated.
    if (path.native().size() >= sizeof address.sun_path) {
        return problem("The path " + path.native() + " is too long for a socket.");
    }
    std::copy(path.native().begin(), path.native().end(), std::begin(address.sun_path));
    return address;
}

std::optional<Problem> obstacleIn(const std::filesystem::path& folder) {
    struct stat status = {};
    // A symbolic link could lead anywhere, so it is not followed.
    if (lstat(folder.c_str(), &status) != 0) {
        return Problem{"The folder " + folder.native() + " cannot be used.", systemsWords()};
    }
    if (!S_ISDIR(status.st_mode) || status.st_uid != geteuid() || (status.st_mode & 0077U) != 0) {
        return Problem{"The folder " + folder.native() + " is not open to its owner alone.", {}};
    }
    return std::nullopt;
}

Result<FileHandle> bound(const std::filesystem::path& path, const sockaddr_un& address) {
    FileHandle listening(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    // A killed instance left it behind: we hold its lock now.
    unlink(path.c_str());
    constexpr int mostWaiting = 64;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what the system asks for.
    if (bind(listening.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(listening.get(), mostWaiting) != 0) {
        return problem("The socket " + path.native() + " cannot be made.", systemsWords());
    }
    return listening;
}

/// A second instance's exchange with the first, up to a deadline.
class Conversation {
 public:
    explicit Conversation(milliseconds limit) : _end(Clock::now() + limit) {}

    [[nodiscard]] bool connect(const sockaddr_un& address) {
        _socket = FileHandle(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
        const auto* const generic = reinterpret_cast<const sockaddr*>(&address);
        return ::connect(_socket.get(), generic, sizeof address) == 0;
    }

    [[nodiscard]] bool send(std::string_view bytes) {
        while (!bytes.empty() && isReady(POLLOUT)) {
            const auto count = ::send(_socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (count < 0 && errno != EAGAIN && errno != EINTR) {
                return false;
            }
            bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        }
        return bytes.empty();
    }

    /// Without the newline; nothing if no line arrives.
    [[nodiscard]] std::optional<std::string> receiveLine() {
        std::string line;
        std::array<char, 4096> bytes{};
        while (line.size() <= InstanceSocket::mostBytes && isReady(POLLIN)) {
            const auto count = recv(_socket.get(), bytes.data(), bytes.size(), 0);
            if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) {
                break;
            }
            line.append(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
            if (const auto end = line.find('\n'); end != std::string::npos) {
                return line.substr(0, end);
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] bool isOver() const { return Clock::now() >= _end; }

 private:
    [[nodiscard]] bool isReady(short event) const {
        const auto rest = std::chrono::ceil<milliseconds>(_end - Clock::now()).count();
        pollfd waiting{_socket.get(), event, 0};
        if (rest <= 0) {
            return false;
        }
        const int ready = poll(&waiting, 1, static_cast<int>(rest));
        return ready > 0 || (ready < 0 && errno == EINTR);
    }

    Clock::time_point _end;
    FileHandle _socket;
};

Problem noAnswer() {
    return {"Tonquil is already running but does not answer; end that program and start again.",
            {}};
}

/// What the first instance answers over a connection; nothing if it closes it without an answer.
std::optional<Result<std::string>> answerTo(std::string_view request, Conversation& conversation) {
    if (request.size() > InstanceSocket::mostBytes ||
        request.find('\0') != std::string_view::npos) {
        return problem("That cannot be handed over to the instance that is running.");
    }
    std::string bytes(InstanceService::requestStart);
    bytes.append(request).push_back('\0');
    if (conversation.send(bytes)) {
        if (auto line = conversation.receiveLine()) {
            return std::move(*line);
        }
    }
    if (conversation.isOver()) {
        return tl::unexpected(noAnswer());
    }
    return std::nullopt;
}

}  // namespace

Result<std::unique_ptr<InstanceListener>> InstanceSocket::claim(const std::filesystem::path& path,
                                                                RunLoop& runLoop, Handler handler,
                                                                Log log) {
    const auto address = addressOf(path);
    if (!address) {
        return tl::unexpected(address.error());
    }
    const auto folder = path.parent_path();
    mkdir(folder.c_str(), 0700);
    if (auto obstacle = obstacleIn(folder)) {
        return tl::unexpected(std::move(*obstacle));
    }
    const std::string lockPath = path.native() + ".lock";
    FileHandle lock(::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!lock.isOpen()) {
        return problem("The file " + lockPath + " cannot be opened.", systemsWords());
    }
    if (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            return nullptr;
        }
        return problem("The file " + lockPath + " cannot be locked.", systemsWords());
    }
    auto listening = bound(path, *address);
    if (!listening) {
        return tl::unexpected(listening.error());
    }
    return std::make_unique<InstanceService>(
        InstanceService::Place{path, std::move(lock), std::move(*listening)}, runLoop,
        std::move(handler), std::move(log));
}

std::optional<Result<std::string>> InstanceSocket::handOver(const std::filesystem::path& path,
                                                            std::string_view request,
                                                            milliseconds limit) {
    Conversation conversation(limit);
    const auto address = addressOf(path);
    if (!address || obstacleIn(path.parent_path()) || !conversation.connect(*address)) {
        return std::nullopt;
    }
    return answerTo(request, conversation);
}

Result<InstanceSocket::Start> InstanceSocket::claimOrHandOver(const std::filesystem::path& path,
                                                              std::string_view request,
                                                              RunLoop& runLoop,
                                                              const Handler& handler,
                                                              const Log& log, milliseconds limit) {
    const auto end = Clock::now() + limit;
    while (Clock::now() < end) {
        auto listener = claim(path, runLoop, handler, log);
        if (!listener) {
            return tl::unexpected(listener.error());
        }
        if (*listener != nullptr) {
            return std::move(*listener);
        }
        const auto rest = std::chrono::ceil<milliseconds>(end - Clock::now());
        if (auto answer = handOver(path, request, rest)) {
            return std::move(*answer);
        }
        // The other one holds the lock but is still starting, is ending, or has others waiting.
        poll(nullptr, 0, 20);
    }
    return tl::unexpected(noAnswer());
}

}  // namespace tonquil
