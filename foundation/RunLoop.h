// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tonquil {

/// What runs after the current event: timers, posted work and readable descriptors, all on the
/// one thread that everything here lives on.
///
/// A timer or a watch lives as long as the handle that was returned for it; letting the handle go
/// from inside its own call is allowed.
class RunLoop {
 public:
    using Clock = std::chrono::steady_clock;
    using Call = std::function<void()>;

    /// A timer or a watch; destroying it ends it.
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
    /// Calls whenever `descriptor` can be read without blocking.
    [[nodiscard]] virtual std::unique_ptr<Handle> watchReadable(int descriptor, Call call) = 0;
    /// Calls once, after the event being handled.
    virtual void post(Call call) = 0;
};

}  // namespace tonquil
