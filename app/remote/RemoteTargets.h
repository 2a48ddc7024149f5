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
/// A target takes the keyboard focus and hides everything below. If a user closes `mostDismissals`
/// of them within `dismissalTime`, no more are shown for `ignoringTime`.
class RemoteTargets {
 public:
    static constexpr std::size_t mostDismissals = 3;
    static constexpr std::chrono::seconds dismissalTime{10};
    static constexpr std::chrono::seconds ignoringTime{60};
    /// A target that is shown several times is reported as closed as many times, up to this limit.
    /// Subscribers get at most 20 reports at once (`AnswerLimits::forPushes`).
    static constexpr int mostReports = 32;

    struct Surroundings {
        ScreenRegistry& registry;
        TargetWindows& targets;
        RunLoop& runLoop;
        /// A target shown for a companion was closed.
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
    /// How often the close of a display's current target will be reported.
    std::map<DisplayID, int> _reports;
    /// Closed by the user, latest last.
    std::vector<Time> _dismissals;
    Time _ignoredUntil{};
    bool _isDismissing = false;
};

}  // namespace tonquil
