// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/correction/SessionEvents.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Session events reported on D-Bus.
///
/// | event | from |
/// |---|---|
/// | Woke | the login service, at once and again after 1 s and 5 s |
/// | SessionBecameActive | the login service, at once and again after 1 s |
/// | ScreenSaverStopped | any of the desktops' screen savers and locks |
/// | ApplicationTerminated | a name that left the session bus, within 200 ms |
/// | ColourSpaceChanged | the colour management service, within 200 ms |
///
/// Nothing here waits for a bus or a service, so one that hangs is simply left out.
class BusSessionEvents final : public SessionEvents {
 public:
    /// Events of one kind within this time are reported as one.
    static constexpr std::chrono::milliseconds coalescingTime{200};

    /// The addresses of the two buses; an empty one is silently skipped.
    struct Addresses {
        std::string system;
        std::string session;
    };

    BusSessionEvents(RunLoop& runLoop, Addresses addresses, Log log);

    void start(Handler handler) override;

 private:
    using Timer = std::unique_ptr<RunLoop::Handle>;

    void open(BusConnection& bus, const std::string& name, const std::string& address,
              std::function<void()> opened);
    void watchSystemBus();
    void watchSessionBus();
    void findServices(const std::vector<std::string>& names);
    void findSession();
    /// Watches the session returned by the login service's method; otherwise calls `failed`.
    void askForSession(const std::string& method, const BusConnection::Argument& key,
                       const std::function<void()>& failed);
    void sleepChanged(BusArguments& arguments);
    void sessionChanged(BusArguments& arguments);
    void tellSoon(Timer& timer, SessionEvent event);
    [[nodiscard]] Timer tellAfter(std::chrono::milliseconds delay, SessionEvent event);
    void report(const std::string& line) const;

    RunLoop& _runLoop;
    Addresses _addresses;
    Log _log;
    Handler _handler;
    BusConnection _system;
    BusConnection _session;
    std::array<Timer, 2> _wakes;
    Timer _active;
    Timer _terminated;
    Timer _colours;
};

}  // namespace tonquil
