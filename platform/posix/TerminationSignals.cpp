// SPDX-License-Identifier: MIT
#include "platform/posix/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <system_error>
#include <utility>

namespace tonquil {

namespace {

// A signal handler can only reach static data.
std::atomic<int> noticeDescriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void noticeSignal(int signal) {
    const int savedError = errno;
    const auto number = static_cast<unsigned char>(signal);
    // A full pipe already contains a notification.
    [[maybe_unused]] const auto written = write(noticeDescriptor.load(), &number, 1);
    errno = savedError;
}

}  // namespace

TerminationSignals::TerminationSignals(Handler handler) : _handler(std::move(handler)) {}

Result<std::unique_ptr<TerminationSignals>> TerminationSignals::watch(RunLoop& runLoop,
                                                                      Handler handler) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return problem("The program cannot watch for its end.",
                       std::generic_category().message(errno));
    }
    std::unique_ptr<TerminationSignals> signals(new TerminationSignals(std::move(handler)));
    signals->_readEnd = FileHandle(ends[0]);
    signals->_writeEnd = FileHandle(ends[1]);
    int none = -1;
    if (!noticeDescriptor.compare_exchange_strong(none, ends[1])) {
        return problem("The program watches for its end already.");
    }
    signals->takeOver();
    signals->_watch =
        runLoop.watchReadable(ends[0], [watching = signals.get()] { watching->takeSignal(); });
    return signals;
}

TerminationSignals::~TerminationSignals() {
    for (const Former& former : _former) {
        sigaction(former.signal, &former.action, nullptr);
    }
    int own = _writeEnd.get();
    noticeDescriptor.compare_exchange_strong(own, -1);
}

void TerminationSignals::takeOver() {
    const auto set = [this](int signal, void (*handler)(int), int flags) {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = flags;
        sigemptyset(&action.sa_mask);
        Former former{signal, {}};
        sigaction(signal, nullptr, &former.action);
        const bool isIgnored = former.action.sa_handler == SIG_IGN;
        if ((signal == SIGINT || signal == SIGHUP) && isIgnored) {
            return;
        }
        sigaction(signal, &action, nullptr);
        _former.push_back(former);
    };
    set(SIGTERM, noticeSignal, SA_RESTART | SA_RESETHAND);
    set(SIGINT, noticeSignal, SA_RESTART | SA_RESETHAND);
    set(SIGHUP, noticeSignal, SA_RESTART);
    set(SIGPIPE, SIG_IGN, 0);
}

void TerminationSignals::takeSignal() {
    unsigned char signal = 0;
    if (read(_readEnd.get(), &signal, 1) != 1) {
        return;
    }
    _watch.reset();
    // The handler may destroy this object.
    const Handler handler = std::move(_handler);
    handler(signal);
}

}  // namespace tonquil
