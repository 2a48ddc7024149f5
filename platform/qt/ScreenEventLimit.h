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

/// Spares the toolkit most of an X server's screen changes.
///
/// For each one it asks the server for all screens anew, several round trips long, and it handles
/// all that have come before anything else runs: a storm of them blocks the program for as long as
/// it lasts. Here they are collected for a while, a longer one in a storm, and the last of each
/// kind is then handed on. Needs a QGuiApplication; on other platforms than xcb it does nothing.
class ScreenEventLimit final : public QAbstractNativeEventFilter {
 public:
    /// Short enough that the toolkit knows its screens when the display service tells of a change.
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
    /// Never shown. What is sent to it comes to the toolkit's connection.
    std::uint32_t _window = 0;
    std::chrono::milliseconds _wait = shortestWait;
    RunLoop::Clock::time_point _handedOn;
    /// As they are on the wire; by kind, and by the CRTC or output that they are about.
    std::map<std::pair<int, std::uint32_t>, std::array<char, 32>> _held;
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
