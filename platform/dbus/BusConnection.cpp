// SPDX-License-Identifier: MIT
#include "platform/dbus/BusConnection.h"

#include <poll.h>

#include <algorithm>
#include <system_error>
#include <utility>

namespace tonquil {

namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using SteadyClock = std::chrono::steady_clock;

// Without a callback, sd-bus closes the connection when the bus refuses a match.
int takeInstallation(sd_bus_message* /*message*/, void* /*call*/, sd_bus_error* /*error*/) {
    return 0;
}

}  // namespace

void BusConnection::open(const std::string& address, Handler handler) {
    if (address.empty()) {
        return;
    }
    _handler = std::move(handler);
    const int result = connect(address);
    if (_runLoop == nullptr) {
        if (result < 0) {
            close(std::generic_category().message(-result));
        }
        return;
    }
    if (result < 0) {
        _bus.reset();
        // Deferred, so that it does not fire within this call.
        _limit = _runLoop->callOnce(
            milliseconds(0), [this, result] { close(std::generic_category().message(-result)); });
        return;
    }
    _readable = _runLoop->watchReadable(sd_bus_get_fd(_bus.get()), [this] { process(); });
    _limit = _runLoop->callOnce(connectingTime, [this] { close("it does not answer"); });
    // The first turn sends whatever is to be sent first.
    _due = _runLoop->callOnce(milliseconds(0), [this] { process(); });
}

int BusConnection::connect(const std::string& address) {
    sd_bus* bus = nullptr;
    int result = sd_bus_new(&bus);
    _bus.reset(bus);
    if (result >= 0) {
        result = sd_bus_set_address(bus, address.c_str());
    }
    if (result >= 0) {
        sd_bus_set_bus_client(bus, 1);
        sd_bus_negotiate_fds(bus, 0);
        result = sd_bus_start(bus);
    }
    return result;
}

void BusConnection::watch(const Signal& signal, Call call) {
    std::string match =
        "type='signal',interface='" + signal.interface + "',member='" + signal.name + "'";
    if (!signal.path.empty()) {
        match += ",path='" + signal.path + "'";
    }
    if (!signal.rest.empty()) {
        match += "," + signal.rest;
    }
    _watches.push_back(std::move(call));
    sd_bus_add_match_async(_bus.get(), nullptr, match.c_str(), &takeSignal, &takeInstallation,
                           &_watches.back());
}

std::string BusConnection::uniqueName() const {
    const char* name = nullptr;
    return sd_bus_get_unique_name(_bus.get(), &name) < 0 ? std::string() : name;
}

void BusConnection::ask(const Method& method, const std::vector<Argument>& arguments, Call answered,
                        std::function<void()> failed) {
    ask(method, arguments, std::move(answered),
        [failed = std::move(failed)](const std::string&) { failed(); });
}

void BusConnection::ask(const Method& method, const std::vector<Argument>& arguments, Call answered,
                        std::function<void(const std::string& reason)> failed) {
    sd_bus_message* created = nullptr;
    int result = sd_bus_message_new_method_call(_bus.get(), &created, method.service.c_str(),
                                                method.path.c_str(), method.interface.c_str(),
                                                method.name.c_str());
    const BusMessagePointer message(created);
    for (const Argument& argument : arguments) {
        result = result < 0 ? result : appendArgument(created, argument);
    }
    if (result < 0) {
        if (_bus != nullptr) {
            failed(std::generic_category().message(-result));
        }
        return;
    }
    _questions.push_back({*this, std::move(answered), std::move(failed)});
    result = sd_bus_call_async(_bus.get(), nullptr, created, &takeAnswer, &_questions.back(), 0);
    if (result < 0) {
        const auto refused = std::move(_questions.back().failed);
        _questions.pop_back();
        refused(std::generic_category().message(-result));
    } else if (_runLoop != nullptr && !_isProcessing) {
        // What the socket did not take at once is still to be sent, and the answer has a deadline.
        waitForMore();
    }
}

int BusConnection::takeSignal(sd_bus_message* message, void* call, sd_bus_error* /*error*/) {
    BusArguments arguments(message);
    (*static_cast<Call*>(call))(arguments);
    return 0;
}

int BusConnection::takeAnswer(sd_bus_message* message, void* question, sd_bus_error* /*error*/) {
    auto& asked = *static_cast<Question*>(question);
    BusConnection& connection = asked.connection;
    // A closing bus answers everything with an error.
    if (sd_bus_is_open(connection._bus.get()) > 0) {
        if (sd_bus_message_is_method_error(message, nullptr) != 0) {
            const char* const reason = sd_bus_message_get_error(message)->message;
            asked.failed(reason == nullptr ? std::string() : reason);
        } else {
            BusArguments arguments(message);
            asked.answered(arguments);
        }
    }
    connection._questions.remove_if([&](const Question& each) { return &each == &asked; });
    return 0;
}

void BusConnection::process() {
    const auto end = SteadyClock::now() + longestTurn;
    int result = 1;
    _isProcessing = true;
    while (result > 0 && SteadyClock::now() < end) {
        result = sd_bus_process(_bus.get(), nullptr);
        if (result >= 0 && !_isOpen && sd_bus_is_ready(_bus.get()) > 0) {
            _isOpen = true;
            _limit.reset();
            _handler.opened();
        }
    }
    _isProcessing = false;
    if (result < 0) {
        close(std::generic_category().message(-result));
    } else if (_runLoop != nullptr) {
        waitForMore();
    }
}

bool BusConnection::waitUntil(const std::function<bool()>& isDone, milliseconds limit) {
    const auto end = SteadyClock::now() + limit;
    while (!isDone() && _bus != nullptr && !_isProcessing) {
        process();
        const auto left = std::chrono::duration_cast<microseconds>(end - SteadyClock::now());
        if (isDone() || _bus == nullptr || left <= microseconds(0)) {
            break;
        }
        sd_bus_wait(_bus.get(), static_cast<std::uint64_t>(left.count()));
    }
    return isDone();
}

// Messages already buffered by sd-bus do not make the descriptor readable, but count as due.
void BusConnection::waitForMore() {
    constexpr milliseconds writingPause(10);
    std::uint64_t time = 0;
    _due.reset();
    if ((sd_bus_get_events(_bus.get()) & POLLOUT) != 0) {
        _due = _runLoop->callOnce(writingPause, [this] { process(); });
    } else if (sd_bus_get_timeout(_bus.get(), &time) > 0 && time != UINT64_MAX) {
        const auto now =
            std::chrono::duration_cast<microseconds>(SteadyClock::now().time_since_epoch());
        const auto wait =
            std::chrono::ceil<milliseconds>(microseconds(static_cast<std::int64_t>(time)) - now);
        _due = _runLoop->callOnce(std::max(wait, milliseconds(0)), [this] { process(); });
    }
}

void BusConnection::close(const std::string& reason) {
    _readable.reset();
    _due.reset();
    _limit.reset();
    _bus.reset();
    if (std::exchange(_isOpen, false)) {
        _handler.gone();
    } else {
        _handler.unreachable(reason);
    }
}

}  // namespace tonquil
