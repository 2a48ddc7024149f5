// SPDX-License-Identifier: MIT
#include "tests/desktop/QtSurroundings.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <array>
#include <chrono>
#include <memory>

namespace tonquil {

namespace {

using namespace std::chrono_literals;

/// The application object that Qt's event loop needs.
class QtEnvironment : public testing::Environment {
 public:
    void SetUp() override { _application = std::make_unique<QCoreApplication>(_count, &_name); }
    void TearDown() override { _application.reset(); }

 private:
    int _count = 1;
    std::array<char, 8> _letters{"desktop"};
    char* _name = _letters.data();
    std::unique_ptr<QCoreApplication> _application;
};

[[maybe_unused]] const auto* const environment =
    testing::AddGlobalTestEnvironment(std::make_unique<QtEnvironment>().release());

}  // namespace

bool processUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(20s);
    QTimer look;
    look.start(5ms);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

void processFor(std::chrono::milliseconds time) {
    const QDeadlineTimer end(time);
    EXPECT_TRUE(processUntil([&] { return end.hasExpired(); }));
}

}  // namespace tonquil
