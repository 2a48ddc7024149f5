// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tonquil {

/// The event loop: timers, posted callbacks and readable file descriptors, all on the main thread.
///
/// A timer or watch lives as long as its handle; it may be destroyed from inside its own callback.
class RunLoop {
 public:
    using Clock = std::chrono::steady_clock;
    using Call = std::function<void()>;

    /// A timer or a watch; the destructor cancels it.
    class Handle {
     public:
        virtual ~Handle() = default;
    };

    virtual ~RunLoop() = default;

    [[nodiscard]] virtual Clock::time_point now() const = 0;
    [[nodiscard]] virtual std::unique_ptr<Handle> callOnce(std::chrono::milliseconds delay,
                                                           Call call) = 0;
    [[nodiscard]] virtual std::unique_ptr<Handle> callRepeatedly(std::chrono::milliseconds interval,
                                                                 Call call) = 0;
    /// Calls back whenever `descriptor` can be read without blocking.
    [[nodiscard]] virtual std::unique_ptr<Handle> watchReadable(int descriptor, Call call) = 0;
    /// Calls back once, after the current event.
    virtual void post(Call call) = 0;
};

}  // namespace tonquil
