// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include "foundation/RunLoop.h"

namespace tonquil {

/// The run loop of a program whose main thread runs Qt's event loop.
///
/// Calls are made while any event loop of the QCoreApplication runs, including those of dialogs.
/// Timers and watches may be created before the application: they start with its first event.
/// Destroying this object ends all its timers and watches and drops pending posted calls; handles
/// may outlive it.
///
/// Timers of 20 ms or longer may fire up to a twentieth early or late, so that the machine wakes up
/// less often; shorter ones are accurate to the millisecond. Delays below 0 ms count as 0 ms,
/// intervals below 1 ms as 1 ms, and either beyond 24 days as 24 days.
class QtRunLoop final : public RunLoop {
 public:
    QtRunLoop();

    [[nodiscard]] Clock::time_point now() const override { return Clock::now(); }
    [[nodiscard]] std::unique_ptr<Handle> callOnce(std::chrono::milliseconds delay,
                                                   Call call) override;
    [[nodiscard]] std::unique_ptr<Handle> callRepeatedly(std::chrono::milliseconds interval,
                                                         Call call) override;
    /// At most one watch may exist per file descriptor, and it must end before that is closed.
    [[nodiscard]] std::unique_ptr<Handle> watchReadable(int descriptor, Call call) override;
    void post(Call call) override;

 private:
    /// Owns all timers and notifiers, and receives posted calls.
    std::unique_ptr<QObject> _context;
};

}  // namespace tonquil
