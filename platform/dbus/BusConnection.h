// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "foundation/RunLoop.h"
#include "platform/dbus/BusArgument.h"
#include "platform/dbus/BusArguments.h"

namespace tonquil {

/// A D-Bus connection that never blocks: connecting, authenticating and calling all run on the run
/// loop, so a bus that hangs at any point affects nothing but itself.
///
/// Messages are handled for at most `longestTurn` at a time and stay in the socket until then, so a
/// flood of them neither blocks the run loop nor fills the memory. No callback may destroy the
/// connection. Without a run loop, things happen only in `waitUntil`.
class BusConnection {
 public:
    static constexpr std::chrono::seconds connectingTime{5};
    static constexpr std::chrono::milliseconds longestTurn{2};

    using Call = std::function<void(BusArguments& arguments)>;
    using Argument = BusArgument;

    /// A signal by interface and name, from any sender.
    struct Signal {
        std::string interface;
        std::string name;
        /// Empty means any object's.
        std::string path = {};
        /// More conditions in match-rule syntax, such as "arg2=''".
        std::string rest = {};
    };
    struct Method {
        std::string service;
        std::string path;
        std::string interface;
        std::string name;
    };
    struct Handler {
        /// Called once, when the bus can be used.
        std::function<void()> opened;
        /// Called once, with the reason, if connecting fails or exceeds `connectingTime`.
        std::function<void(const std::string& reason)> unreachable = [](const std::string&) {};
        /// Called once, when the connection is lost after it was opened.
        std::function<void()> gone = [] {};
    };

    /// The run loop must outlive the connection.
    explicit BusConnection(RunLoop& runLoop) : BusConnection(&runLoop) {}
    /// Null is a program without one.
    explicit BusConnection(RunLoop* runLoop) : _runLoop(runLoop) {}
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    /// Starts connecting; does nothing for an empty address, which stands for no bus. Call once.
    void open(const std::string& address, Handler handler);

    /// The name that the bus has given the connection, such as ":1.42"; empty before it is open.
    [[nodiscard]] std::string uniqueName() const;
    /// Calls back with the arguments of each such signal from now on. Only after the connection is
    /// open.
    void watch(const Signal& signal, Call call);
    /// Calls a method, then `answered` with what it returns, or `failed` on an error or after 25 s;
    /// `failed` at once if a path that the service gave is invalid. Neither is called once the
    /// connection is lost.
    void ask(
        const Method& method, const std::vector<Argument>& arguments, Call answered,
        std::function<void()> failed = [] {});
    /// The same; `failed` gets the reason that the other side gave.
    void ask(const Method& method, const std::vector<Argument>& arguments, Call answered,
             std::function<void(const std::string& reason)> failed);

    /// Handles messages until `isDone`, the connection is closed, or `limit` is over; whether it is
    /// done. Waits for nothing when called from a callback.
    [[nodiscard]] bool waitUntil(const std::function<bool()>& isDone,
                                 std::chrono::milliseconds limit);

 private:
    struct Question {
        BusConnection& connection;
        Call answered;
        std::function<void(const std::string& reason)> failed;
    };

    static int takeSignal(sd_bus_message* message, void* call, sd_bus_error* error);
    static int takeAnswer(sd_bus_message* message, void* question, sd_bus_error* error);
    [[nodiscard]] int connect(const std::string& address);
    void process();
    void waitForMore();
    void close(const std::string& reason);

    RunLoop* _runLoop;
    Handler _handler;
    bool _isOpen = false;
    bool _isProcessing = false;
    std::list<Call> _watches;
    std::list<Question> _questions;
    /// Declared to be destroyed before the calls that it refers to.
    BusPointer _bus;
    std::unique_ptr<RunLoop::Handle> _readable;
    std::unique_ptr<RunLoop::Handle> _due;
    std::unique_ptr<RunLoop::Handle> _limit;
};

}  // namespace tonquil
