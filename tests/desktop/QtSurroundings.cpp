// SPDX-License-Identifier: MIT
#include "tests/desktop/QtSurroundings.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace tonquil {

bool processUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(std::chrono::seconds(20));
    QTimer look;
    look.start(std::chrono::milliseconds(5));
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return !deadline.hasExpired();
}

void processFor(std::chrono::milliseconds time) {
    const QDeadlineTimer end(time);
    EXPECT_TRUE(processUntil([&] { return end.hasExpired(); }));
}

}  // namespace tonquil

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
