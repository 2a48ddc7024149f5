// SPDX-License-Identifier: MIT
#include "platform/qt/QtRunLoop.h"

#include <gtest/gtest.h>
#include <sys/eventfd.h>

#include <array>
#include <optional>
#include <string>

#include "tests/desktop/QtSurroundings.h"
#include "tests/support/FileDescriptor.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

TEST(QtRunLoop, CallsInOrderUntilHandleOrLoopIsDestroyed) {
    std::optional<QtRunLoop> made(std::in_place);
    QtRunLoop& loop = *made;
    std::string order;
    const auto timer = loop.callOnce(0ms, [&] {
        loop.post([&] {
            order += 'b';
            loop.post([&] { order += 'd'; });
        });
        loop.post([&] { order += 'c'; });
        order += 'a';
    });
    // Each read decrements it.
    const FileDescriptor counter(eventfd(2, EFD_SEMAPHORE | EFD_CLOEXEC));
    const auto start = loop.now();
    std::array<int, 3> calls{};
    std::array<std::unique_ptr<RunLoop::Handle>, 3> handles{
        loop.callOnce(19ms, [&] { ++calls[0]; }), loop.callRepeatedly(1ms, [&] { ++calls[1]; }),
        loop.watchReadable(counter.get(), [&] {
            eventfd_t value = 0;
            EXPECT_EQ(eventfd_read(counter.get(), &value), 0);
            ++calls[2];
        })};
    EXPECT_TRUE(processUntil([&] { return calls[0] == 1 && calls[1] >= 5 && calls[2] == 2; }));
    EXPECT_GE(loop.now() - start, 19ms);
    EXPECT_EQ(order, "abcd");
    handles = {};
    const auto final = calls;
    EXPECT_EQ(eventfd_write(counter.get(), 1), 0);
    const auto fail = [] { FAIL() << "the loop has gone"; };
    loop.post(fail);
    const auto repeated = loop.callRepeatedly(1ms, fail);
    const auto watch = loop.watchReadable(counter.get(), fail);
    made.reset();
    processFor(20ms);
    EXPECT_EQ(calls, final);
}

TEST(QtRunLoop, AllowsDestroyingHandleInItsCallback) {
    QtRunLoop loop;
    const FileDescriptor readable(eventfd(1, EFD_CLOEXEC));
    std::array<std::unique_ptr<RunLoop::Handle>, 3> handles;
    std::string calls;
    // The captured text lets the sanitizers check that the callback outlives its handle.
    const auto letGo = [&](std::size_t index) {
        return [&, index, text = std::string(100, 'x')] {
            handles.at(index).reset();
            calls += text;
        };
    };
    handles = {loop.callOnce(0ms, letGo(0)), loop.callRepeatedly(1ms, letGo(1)),
               loop.watchReadable(readable.get(), letGo(2))};
    EXPECT_TRUE(processUntil([&] { return calls.size() >= 300; }));
    processFor(20ms);
    EXPECT_EQ(calls.size(), 300U);
}

}  // namespace
}  // namespace tonquil
