// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Asks the session bus in advance what Qt will ask it at startup.
///
/// Qt waits for every answer, for 25 s or forever, so whatever does not answer here must be kept
/// from it.
class ToolkitProbe {
 public:
    static constexpr std::chrono::milliseconds longestTime{1000};

    struct Addresses {
        std::string session;
        /// The accessibility bus from the environment; otherwise empty.
        std::string accessibility = {};
        /// The accessibility bus announced on the X server. If there is one, Qt connects to both
        /// this and the session's.
        std::string announced = {};
    };
    /// Why something cannot be used; empty if it can.
    struct Obstacles {
        std::string session;
        std::string tray;
        std::string accessibility;
    };

    explicit ToolkitProbe(RunLoop& runLoop)
        : _runLoop(runLoop), _session(runLoop), _accessibility(runLoop), _announced(runLoop) {}

    /// Calls `done` once, from the run loop and within `longestTime`. Call once.
    void start(const Addresses& addresses, std::function<void(const Obstacles&)> done);

 private:
    /// Something that Qt will query.
    struct Subject {
        std::string obstacle = "it does not answer";
        int answersDue = 1;
    };

    void askForTray();
    void askForAccessibility();
    void takeStatus(BusArguments& arguments);
    void openAccessibility(BusConnection& bus, const std::string& address);
    /// Any answer counts, even an error.
    void ask(BusConnection& bus, Subject& subject, const BusConnection::Method& method,
             const std::vector<BusConnection::Argument>& arguments);
    void answered(Subject& subject);
    void fail(Subject& subject, const std::string& reason);
    void finish();

    RunLoop& _runLoop;
    std::function<void(const Obstacles&)> _done;
    bool _knowsAccessibility = false;
    Subject _bus;
    Subject _tray;
    Subject _assistance;
    BusConnection _session;
    BusConnection _accessibility;
    BusConnection _announced;
    std::unique_ptr<RunLoop::Handle> _limit;
};

}  // namespace tonquil
