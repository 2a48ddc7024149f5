// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <vector>

#include "app/desktop/TargetWindows.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Covers displays with targets for companions.
///
/// A target takes the keyboard and hides what is below. A person who closes `mostDismissals` of
/// them within `dismissalTime` has had enough: for `ignoringTime` no more are shown.
class RemoteTargets {
 public:
    static constexpr std::size_t mostDismissals = 3;
    static constexpr std::chrono::seconds dismissalTime{10};
    static constexpr std::chrono::seconds ignoringTime{60};
    /// A target that is shown several times is reported as closed as many times, up to this.
    /// Subscribers are told at most 20 times at once (`AnswerLimits::forPushes`).
    static constexpr int mostReports = 32;

    struct Surroundings {
        ScreenRegistry& registry;
        TargetWindows& targets;
        RunLoop& runLoop;
        /// A target that was shown for a companion has been closed.
        std::function<void()> closed;
        Log log;
    };

    explicit RemoteTargets(Surroundings surroundings) : _with(std::move(surroundings)) {}
    RemoteTargets(const RemoteTargets&) = delete;
    RemoteTargets& operator=(const RemoteTargets&) = delete;

    void show(DisplayID display, TargetKind kind);
    void dismiss(DisplayID display);

 private:
    using Time = RunLoop::Clock::time_point;

    void targetClosed(DisplayID display);
    [[nodiscard]] bool isListed(DisplayID display) const;
    void countDismissal();

    Surroundings _with;
    /// How often a display's present target will be reported as closed.
    std::map<DisplayID, int> _reports;
    /// By hand, the latest last.
    std::vector<Time> _dismissals;
    Time _ignoredUntil{};
    bool _isDismissing = false;
};

}  // namespace tonquil
