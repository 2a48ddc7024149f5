// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

namespace tonquil {

/// Runs Qt's events until `condition` holds; false when it does not within `limit`.
[[nodiscard]] inline bool processUntil(const std::function<bool()>& condition,
                                       std::chrono::milliseconds limit = std::chrono::seconds(20)) {
    const QDeadlineTimer deadline(limit);
    QTimer look;
    look.start(std::chrono::milliseconds(5));
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return !deadline.hasExpired();
}

/// Runs Qt's events for a moment in which something is not to happen.
inline void processFor(std::chrono::milliseconds time) {
    static_cast<void>(processUntil([] { return false; }, time));
}

}  // namespace tonquil
