// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/mutter/MutterGamma.h"

namespace tonquil {

/// A calibration session for each monitor that is corrected: the compositor's own colour management
/// leaves the monitor alone, until the session is stopped or our connection ends.
///
/// For that reason a session is opened only with the first ramp; until then a monitor's size is not
/// known. The session ends with the monitor, and only one program can have one. What was lost or
/// refused is asked for again: after a short while, which doubles each time, where the compositor
/// was not ready or stopped the session, and every `retryInterval` otherwise. After a session that
/// lasted for longer than that, it is the short while again.
class CalibrationSessions final : public MutterGamma {
 public:
    static constexpr std::chrono::milliseconds shortestPause{250};

    explicit CalibrationSessions(Host host);

    void setMonitors(const std::vector<std::string>& connectors) override;
    void hold(const std::string& connector) override;
    void release(const std::string& connector) override;
    [[nodiscard]] State state(const std::string& connector) const override;
    [[nodiscard]] bool isIdle() const override;

 private:
    struct Session {
        std::string connector;
        State state;
        bool isHeld = false;
        /// Where the session is; empty while there is none.
        std::string path;
        /// Answers to earlier attempts are of no use.
        std::uint64_t attempt = 0;
        bool isOpening = false;
        bool isSetting = false;
        bool isRampUnsent = false;
        std::chrono::milliseconds pause = shortestPause;
        /// When the session took its first ramp; never without a run loop.
        std::optional<RunLoop::Clock::time_point> reachedAt;
        std::unique_ptr<RunLoop::Handle> retry;
    };

    [[nodiscard]] Session* find(const std::string& connector, std::uint64_t attempt);
    void open(Session& session);
    void ask(const Session& session);
    void askAfterAbandoned(const std::string& connector);
    void opened(const std::string& connector, std::uint64_t attempt, const std::string& path);
    void sizeKnown(Session& session, std::uint32_t size);
    void refused(Session& session, const std::string& reason);
    void lost(Session& session);
    void close(Session& session);
    void stop(const std::string& path);
    void sendRamp(Session& session);
    void retryAfter(Session& session, std::chrono::milliseconds pause);

    Host _host;
    std::uint64_t _attempts = 0;
    std::size_t _stopsDue = 0;
    /// The monitors for which the compositor owes an answer to an attempt, even an abandoned one.
    std::set<std::string> _asked;
    std::map<std::string, Session> _sessions;
};

}  // namespace tonquil
