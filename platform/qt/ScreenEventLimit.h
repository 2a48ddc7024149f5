// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "foundation/RunLoop.h"

struct xcb_connection_t;

namespace tonquil {

/// Shields Qt from most of an X server's screen changes.
///
/// For each one Qt queries all screens again, which takes several round trips, and it handles all
/// pending ones before anything else runs: a storm of them would block the program for as long as
/// it lasts. This filter collects them for a while, longer in a storm, and then forwards the last
/// of each kind. Needs a QGuiApplication; does nothing on platforms other than xcb.
class ScreenEventLimit final : public QAbstractNativeEventFilter {
 public:
    /// Short enough that Qt knows its screens by the time the display service reports a change.
    static constexpr std::chrono::milliseconds shortestWait{50};
    static constexpr std::chrono::milliseconds longestWait{400};

    explicit ScreenEventLimit(RunLoop& runLoop);
    ~ScreenEventLimit() override;
    Q_DISABLE_COPY_MOVE(ScreenEventLimit)

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
    void handOn();

    RunLoop& _runLoop;
    xcb_connection_t* _connection = nullptr;
    std::uint8_t _randrFirstEvent = 0;
    /// Never shown. Events sent to it arrive on Qt's connection.
    std::uint32_t _window = 0;
    std::chrono::milliseconds _wait = shortestWait;
    RunLoop::Clock::time_point _handedOn;
    /// Raw events; by kind, and by the CRTC or output that they are about.
    std::map<std::pair<int, std::uint32_t>, std::array<char, 32>> _held;
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
