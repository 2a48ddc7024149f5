// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "app/correction/SessionEvents.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Session events that are told on D-Bus.
///
/// | event | from |
/// |---|---|
/// | Woke | the login service, at once and again after 1 s and 5 s |
/// | SessionBecameActive | the login service, at once and again after 1 s |
/// | ScreenSaverStopped | any of the desktops' screen savers and locks |
/// | ApplicationTerminated | a name that left the session bus, within 200 ms |
/// | ColourSpaceChanged | the colour management service, within 200 ms |
///
/// `start` returns at once, and neither a bus nor a service that hangs is waited for. Needs a
/// QCoreApplication and its event loop on the main thread.
class BusSessionEvents final : public SessionEvents {
 public:
    /// How long several events of one kind are told as one.
    static constexpr std::chrono::milliseconds coalescingTime{200};

    BusSessionEvents(RunLoop& runLoop, Log log);

    void start(Handler handler) override;

 private:
    using Timer = std::unique_ptr<RunLoop::Handle>;

    void watchSystemBus();
    void watchSessionBus();
    void findServices(const QStringList& names);
    void findSession();
    /// Watches the session that the login service's method names; otherwise calls `failed`.
    void askForSession(const QString& method, const QVariant& key,
                       const std::function<void()>& failed);
    void sleepChanged(const BusConnection::Arguments& arguments);
    void sessionChanged(const BusConnection::Arguments& arguments);
    void tellSoon(Timer& timer, SessionEvent event);
    [[nodiscard]] Timer tellAfter(std::chrono::milliseconds delay, SessionEvent event);
    void report(const std::string& line) const;

    RunLoop& _runLoop;
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
